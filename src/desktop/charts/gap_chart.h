#pragma once

#include "desktop/charts/chart.h"
#include "desktop/charts/section_ticker.h"

namespace kavela::desktop {

/// Where on the course the selected runs win and lose time against the reference.
class GapChart : public Chart {
    Q_OBJECT

public:
    explicit GapChart(QWidget* parent = nullptr);

    [[nodiscard]] QString name() const override { return tr("Gap"); }
    [[nodiscard]] QString purpose() const override {
        return tr("Gap along the course for the selected runs");
    }
    [[nodiscard]] bool usesReference() const override { return true; }

    /// What the read-out says of a split, counted from 1.
    [[nodiscard]] QString readOutOf(std::size_t split) const;

private:
    struct Line {
        SelectedRun selected;
        std::vector<SectionGap> gaps;
    };

    [[nodiscard]] QString emptyReason() const override;
    void fill() override;
    [[nodiscard]] QString csvText() const override;
    void hoverAt(const QPointF& position) override;
    void clickAt(const QPointF& position) override;
    void moveCursor(int steps) override;
    void leaveCursor() override;
    [[nodiscard]] std::optional<QPointF> cursorPlace() const override;

    void addLine(const Line& line);
    void showLabels();
    void setLimits();
    void showCursor(std::size_t split, const QPointF& at);
    void paintCursor(QCPPainter& painter) const;
    [[nodiscard]] QString title() const;
    [[nodiscard]] std::vector<const Line*> shownLines() const;

    QSharedPointer<SectionTicker> m_sections;
    std::vector<Line> m_lines;
    std::size_t m_cursor = 0; ///< split; 0 for none
};

} // namespace kavela::desktop
