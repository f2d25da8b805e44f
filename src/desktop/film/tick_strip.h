#pragma once

#include "desktop/film/time_line.h"

namespace kavela::desktop {

/// The marks that have no label on the time line, as ticks below it: there they do not hide each
/// other.
class TickStrip : public QWidget {
    Q_OBJECT

public:
    explicit TickStrip(const TimeLine& line, QWidget* parent = nullptr);

    /// `selected` is the number of a mark, which may be none of these.
    void setMarks(std::vector<LineMark> marks, std::optional<std::size_t> selected);

    [[nodiscard]] QSize sizeHint() const override;

signals:
    void markClicked(std::size_t number);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    [[nodiscard]] int placeOf(const LineMark& mark) const;

    const TimeLine& m_line;
    std::vector<LineMark> m_marks;
    std::optional<std::size_t> m_selected;
};

} // namespace kavela::desktop
