#pragma once

#include "analysis/gate_penalties.h"
#include "desktop/charts/chart.h"

namespace kavela::desktop {

/// Where the penalties of the race happened: touches and missed gates by gate, and those of the
/// selected runs above them.
class GateChart : public Chart {
    Q_OBJECT

public:
    // Series that are no runs.
    static constexpr int TouchSeries = -1;
    static constexpr int MissedSeries = -2;

    explicit GateChart(QWidget* parent = nullptr);

    [[nodiscard]] QString name() const override { return tr("Gates"); }
    [[nodiscard]] QString purpose() const override { return tr("Penalties by gate"); }

    /// What the read-out says of a gate, counted from 1.
    [[nodiscard]] QString readOutOf(std::size_t gate) const;
    /// The place in the widget of the mark of a selected run's penalty.
    [[nodiscard]] std::optional<QPointF> markOf(std::size_t run, std::size_t gate) const;

private:
    /// A penalty of a selected run.
    struct Mark {
        std::size_t gate; ///< counted from 1
        SelectedRun selected;
        bool isMissed;
        int level; ///< how many marks of the gate lie below
    };

    [[nodiscard]] QString emptyReason() const override;
    void fill() override;
    [[nodiscard]] QString csvText() const override;
    void hoverAt(const QPointF& position) override;
    void clickAt(const QPointF& position) override;
    [[nodiscard]] std::vector<QPointF> stops() const override;

    void addBars();
    void collectMarks();
    void showLabels();
    void setLimits();
    [[nodiscard]] bool isNumbered(std::size_t index, std::size_t step) const;
    void paintGateNumbers(QCPPainter& painter) const;
    void paintMarks(QCPPainter& painter) const;
    [[nodiscard]] QPointF placeOf(const Mark& mark) const;
    [[nodiscard]] const Mark* markAt(const QPointF& position) const;
    [[nodiscard]] double barHeight(const GatePenalties& gate) const;

    CoursePenalties m_course;
    std::vector<Mark> m_marks;
};

} // namespace kavela::desktop
