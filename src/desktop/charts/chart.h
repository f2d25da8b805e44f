#pragma once

#include "analysis/course_gaps.h"
#include "desktop/charts/chart_frame.h"
#include "desktop/charts/chart_race.h"
#include "desktop/charts/series_label.h"

#include <map>
#include <vector>

class QAction;
class QCPPainter;

namespace kavela::desktop {

/// A chart of a race, linked with the selection of its table.
class Chart : public ChartFrame {
    Q_OBJECT

public:
    explicit Chart(QWidget* parent);

    [[nodiscard]] virtual QString name() const = 0;    ///< short, for a tab
    [[nodiscard]] virtual QString purpose() const = 0; ///< one line
    [[nodiscard]] QString fileName() const override { return purpose(); }

    /// The runs are another set: nothing is selected any more.
    void setRace(const ChartRace& race);
    /// Runs keep their colours as others join or leave. Those beyond `MostSeries` are not shown.
    void setSelection(const std::vector<std::size_t>& runs);
    void setReference(const CourseReference& reference);
    void setPenaltiesIncluded(bool included);

    /// Whether the chart depends on the reference, and the switches that it brings.
    [[nodiscard]] virtual bool usesReference() const { return false; }
    [[nodiscard]] virtual QList<QAction*> options() const { return {}; }

signals:
    void runActivated(std::size_t run);

protected:
    struct SelectedRun {
        std::size_t run;
        SeriesStyle style;
    };

    [[nodiscard]] const ChartRace& race() const { return m_race; }
    /// Why there is no run at all.
    [[nodiscard]] QString noRunsReason() const;
    [[nodiscard]] const CourseReference& reference() const { return m_reference; }
    [[nodiscard]] bool penaltiesIncluded() const { return m_penaltiesIncluded; }
    [[nodiscard]] std::vector<SelectedRun> selectedRuns() const;
    [[nodiscard]] bool isSelected(std::size_t run) const { return m_slots.contains(run); }
    [[nodiscard]] QColor colourOf(std::size_t run) const;
    /// " · first 21 of 60 selected runs", where not all can be told apart.
    [[nodiscard]] QString leftOutNote() const;
    [[nodiscard]] SeriesLabel labelOf(const SelectedRun& selected) const;

private:
    ChartRace m_race;
    CourseReference m_reference;
    bool m_penaltiesIncluded = false;
    std::map<std::size_t, std::size_t>
        m_slots; ///< selected runs with their place among the colours
    std::size_t m_selectedCount = 0;
};

/// "1 run", "58 runs"
[[nodiscard]] QString runsText(std::size_t count);

/// The number of a run as the id of its series.
[[nodiscard]] inline int seriesId(std::size_t run) {
    return static_cast<int>(run);
}

} // namespace kavela::desktop
