#pragma once

#include "analysis/course_gaps.h"
#include "desktop/charts/chart_plot.h"
#include "desktop/charts/chart_race.h"
#include "desktop/charts/series_labels.h"

#include <QWidget>

#include <map>
#include <set>
#include <vector>

class QAction;
class QLabel;
class QStackedLayout;

namespace kavela::desktop {

class ReadOut;

/// A chart of a race, linked with the selection of its table. It is drawn when it is seen or asked
/// for: a change of the race or the selection costs nothing on a tab that is not in front.
class Chart : public QWidget {
    Q_OBJECT

public:
    explicit Chart(QWidget* parent);

    [[nodiscard]] virtual QString name() const = 0;    ///< short, for a tab
    [[nodiscard]] virtual QString purpose() const = 0; ///< one line

    /// The runs are another set: nothing is selected any more.
    void setRace(const ChartRace& race);
    /// Runs keep their colours as others join or leave. Those beyond `MostSeries` are not shown.
    void setSelection(const std::vector<std::size_t>& runs);
    void setReference(const CourseReference& reference);
    void setPenaltiesIncluded(bool included);

    /// Whether the chart depends on the reference, and the switches that it brings.
    [[nodiscard]] virtual bool usesReference() const { return false; }
    [[nodiscard]] virtual QList<QAction*> options() const { return {}; }

    /// What the chart says instead of being empty; nothing when it has something to show.
    [[nodiscard]] QString emptyMessage();
    /// The plot as it is drawn for the present race and selection.
    [[nodiscard]] ChartPlot& plot();
    [[nodiscard]] const SeriesLabels& labels() const { return *m_labels; }
    /// The visible range of the visible series as semicolon-separated text.
    [[nodiscard]] QString csv();

    /// Hides a series or shows it again; shows it alone, or all again.
    void toggleSeries(int id);
    void isolateSeries(int id);

signals:
    void runActivated(std::size_t run);

protected:
    struct SelectedRun {
        std::size_t run;
        SeriesStyle style;
    };

    /// Why there is nothing to show; empty otherwise.
    [[nodiscard]] virtual QString emptyReason() const = 0;
    /// Draws everything afresh into a plot without plottables.
    virtual void fill() = 0;
    [[nodiscard]] virtual QString csvText() const = 0;
    virtual void hoverAt(const QPointF& position) = 0;
    virtual void clickAt(const QPointF& position) = 0;
    virtual void moveCursor(int steps);
    virtual void leaveCursor();

    [[nodiscard]] const ChartRace& race() const { return m_race; }
    [[nodiscard]] const CourseReference& reference() const { return m_reference; }
    [[nodiscard]] bool penaltiesIncluded() const { return m_penaltiesIncluded; }
    [[nodiscard]] std::vector<SelectedRun> selectedRuns() const;
    [[nodiscard]] bool isShown(int id) const { return !m_hidden.contains(id); }
    [[nodiscard]] bool isSelected(std::size_t run) const { return m_slots.contains(run); }
    [[nodiscard]] QColor colourOf(std::size_t run) const;
    /// " · first 21 of 60 selected runs", where not all can be told apart.
    [[nodiscard]] QString leftOutNote() const;
    [[nodiscard]] SeriesLabel labelOf(const SelectedRun& selected) const;

    void invalidate();
    [[nodiscard]] ChartPlot& canvas() { return *m_plot; }
    [[nodiscard]] const ChartPlot& canvas() const { return *m_plot; }
    [[nodiscard]] SeriesLabels& seriesLabels() { return *m_labels; }
    [[nodiscard]] ReadOut& readOut() { return *m_readOut; }

    void showEvent(QShowEvent* event) override;

private:
    void connectPlot();
    void refresh();
    void handleKey(QKeyEvent& event);

    ChartRace m_race;
    CourseReference m_reference;
    bool m_penaltiesIncluded = false;
    std::map<std::size_t, std::size_t>
        m_slots; ///< selected runs with their place among the colours
    std::size_t m_selectedCount = 0;
    std::set<int> m_hidden;
    bool m_isStale = true;

    ChartPlot* m_plot;
    SeriesLabels* m_labels;
    QLabel* m_message;
    QStackedLayout* m_stack;
    ReadOut* m_readOut;
};

/// "1 run", "58 runs"
[[nodiscard]] QString runsText(std::size_t count);

/// The number of a run as the id of its series.
[[nodiscard]] inline int seriesId(std::size_t run) {
    return static_cast<int>(run);
}

} // namespace kavela::desktop
