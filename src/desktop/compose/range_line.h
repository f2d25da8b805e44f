#pragma once

#include "compose/split_moments.h"

#include <QStringList>
#include <QWidget>

#include <vector>

namespace kavela::desktop {

/// The time that films have in common, with the splits of the first one there: the part that is
/// composed stands out, and its ends can be dragged. An end that comes near a split takes it.
class RangeLine : public QWidget {
    Q_OBJECT

public:
    explicit RangeLine(QWidget* parent = nullptr);

    /// All in seconds of common time. `titles` are those of the splits, entry 0 the start.
    void setTimes(const CommonRange& choice, const CommonRange& shown,
                  std::vector<SplitMoment> splits, const QStringList& titles);
    void setPosition(double common);
    void clear();

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
    /// Pixels from the left of a moment, and the moment there.
    [[nodiscard]] int placeOf(double common) const;
    [[nodiscard]] double commonAt(int place) const;

signals:
    /// A moment of common time was clicked or dragged to.
    void seekRequested(double common);
    /// Another part was dragged out, from one moment of common time to another.
    void rangeDragged(double from, double to);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    enum class Grip { None, Position, From, To };
    [[nodiscard]] Grip gripAt(int place) const;
    [[nodiscard]] double snapped(int place) const;
    void drag(int place);
    [[nodiscard]] int roomOf(const SplitMoment& moment) const;

    CommonRange m_choice;
    CommonRange m_shown;
    std::vector<SplitMoment> m_splits;
    QStringList m_titles;
    double m_position = 0;
    Grip m_grip = Grip::None;
    bool m_hasMoved = false;
};

} // namespace kavela::desktop
