#pragma once

#include "analysis/run_motion.h"
#include "desktop/shell/tables/column_model.h"

#include <QWidget>

#include <map>

class QLabel;

namespace kavela::desktop {

class ColumnTable;
class RaceDocument;
class SensorChart;

/// A section of a run, or the whole run.
struct NamedSection {
    QString title;
    SectionMotion motion;
};

/// What the recordings attached to the selected runs tell, along the sections: strokes, stroke
/// rate, speed and heart rate of the first of them in a table, of all of them as curves over the
/// time of the run.
class MotionPanel : public QWidget {
    Q_OBJECT

public:
    explicit MotionPanel(RaceDocument& document, QWidget* parent = nullptr);

    /// Shows runs by their numbers among the shown ones. They are analysed when the panel is seen.
    void showRuns(std::vector<std::size_t> runs);
    /// The runs are other ones.
    void forget();

    [[nodiscard]] const ColumnTable& table() const { return *m_table; }
    [[nodiscard]] const SensorChart& speedChart() const { return *m_speed; }

protected:
    void showEvent(QShowEvent* event) override;

private:
    void refresh();
    void fillTable(std::size_t run);
    void fillCharts(const std::vector<std::size_t>& runs);
    [[nodiscard]] const RunMotion& motionOf(std::size_t run);
    [[nodiscard]] QString sectionTitle(std::size_t section) const;

    RaceDocument& m_document;
    std::vector<std::size_t> m_runs;
    std::map<std::size_t, RunMotion> m_motions;
    QLabel* m_name;
    QLabel* m_note;
    ColumnModel<NamedSection> m_sections;
    ColumnTable* m_table;
    SensorChart* m_speed;
    SensorChart* m_rate;
    SensorChart* m_heart;
};

} // namespace kavela::desktop
