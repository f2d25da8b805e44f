#pragma once

#include "analysis/ranking.h"
#include "desktop/charts/chart.h"

namespace kavela::desktop {

/// The total time of every full run against its penalties. The penalties that occur stand side by
/// side at equal distances: between a few touches and a missed gate lies nothing worth the room.
class TotalsChart : public Chart {
    Q_OBJECT

public:
    explicit TotalsChart(QWidget* parent = nullptr);

    [[nodiscard]] QString name() const override { return tr("Totals"); }
    [[nodiscard]] QString purpose() const override { return tr("Total time against penalties"); }

    /// The place in the widget of a run's dot.
    [[nodiscard]] std::optional<QPointF> dotOf(std::size_t run) const;
    [[nodiscard]] QString readOutOf(std::size_t run) const;

private:
    struct Dot {
        std::size_t run;
        std::size_t column; ///< of its penalties
        double time;
    };

    [[nodiscard]] QString emptyReason() const override;
    void fill() override;
    [[nodiscard]] QString csvText() const override;
    void hoverAt(const QPointF& position) override;
    void clickAt(const QPointF& position) override;
    [[nodiscard]] std::vector<QPointF> stops() const override;

    void collectDots();
    void addDots();
    void setLimits();
    void paintNames(QCPPainter& painter) const;
    void paintNamesOf(QCPPainter& painter, std::size_t column) const;
    [[nodiscard]] QPointF placeOf(const Dot& dot) const;
    [[nodiscard]] const Dot* dotAt(const QPointF& position) const;

    std::vector<RankedRun> m_ranking;
    std::vector<std::int64_t> m_penalties; ///< those that occur, ascending
    std::vector<Dot> m_dots;               ///< the selected ones last, so that they lie on top
};

} // namespace kavela::desktop
