#pragma once

#include "splittaking/annotations/lanes.h"

#include <QWidget>

namespace kavela::desktop {

class TimeLine;

/// The notes of a run under its time line, a row for each kind and each tag. Splits stand on the
/// time line itself.
class LaneStrip : public QWidget {
    Q_OBJECT

public:
    explicit LaneStrip(const TimeLine& line, QWidget* parent = nullptr);

    /// Those of the kinds shown that lie on the run's first film.
    void setLanes(const AnnotationLanes& lanes, const MarkFilter& kinds);
    void setSelected(const std::optional<MarkHandle>& handle);

    [[nodiscard]] int rows() const { return static_cast<int>(m_titles.size()); }
    [[nodiscard]] QSize sizeHint() const override;
    /// Where a mark is drawn.
    [[nodiscard]] QPoint placeOf(const LaneMark& mark) const;

signals:
    void chosen(const MarkHandle& handle);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    static constexpr int MostRows = 6; ///< further ones share the last

    const TimeLine& m_line;
    std::vector<QString> m_titles;
    std::vector<LaneMark> m_marks; ///< `lane` is the row here
    std::optional<MarkHandle> m_selected;
};

} // namespace kavela::desktop
