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
    [[nodiscard]] int rowHeight() const;
    [[nodiscard]] QPoint placeOf(const LaneMark& mark) const;
    /// Where the title of a row stands: beside the marks, in the first room that is wide enough for
    /// it, or else in the widest.
    [[nodiscard]] QRect titlePlace(int row) const;

signals:
    void chosen(const MarkHandle& handle);
    void dragged(double seconds); ///< a mark is on its way
    void dropped(const MarkHandle& handle, double seconds);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    [[nodiscard]] const LaneMark* markAt(QPoint place) const;

    static constexpr int MostRows = 8; ///< further ones share the last

    /// A mark under the button.
    struct Drag {
        MarkHandle handle;
        QPoint from;
        bool isMoving = false; ///< the mouse has left the place where it was pressed
    };

    const TimeLine& m_line;
    std::optional<Drag> m_drag;
    std::vector<QString> m_titles;
    std::vector<LaneMark> m_marks; ///< `lane` is the row here
    std::optional<MarkHandle> m_selected;
};

} // namespace kavela::desktop
