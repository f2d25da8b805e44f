#pragma once

#include "analysis/run_figures.h"
#include "analysis/table_figures.h"
#include "desktop/shell/tables/column_model.h"

#include <QWidget>

#include <optional>
#include <vector>

class QLabel;

namespace kavela::desktop {

class ColumnTable;
class RaceDocument;
class WhyLabel;

/// What a run is held against.
struct RunAgainst {
    QString name;
    std::vector<double> values; ///< seconds by column of the table, 0 where there is none
};

/// One run in detail: its sections with penalties, gaps and places, its penalties by gate, totals
/// and expected time. Section by section it is held against
/// the best of each, or against what was chosen. Every number answers why.
class RunPanel : public QWidget {
    Q_OBJECT

public:
    explicit RunPanel(RaceDocument& document, QWidget* parent = nullptr);

    /// Shows a run by its number among the shown ones, held against another one if given.
    void showRun(std::optional<std::size_t> run, const std::optional<RunAgainst>& against);

private:
    /// A section, or what the run comes to.
    struct Section {
        QString title;
        double time = 0;
        std::int64_t penalty = 0;
        std::optional<std::int64_t> rank;
        std::optional<double> gap;
    };

    [[nodiscard]] static std::vector<Column<Section>> columns(const QString& gap);
    /// A line of figures of the run.
    [[nodiscard]] WhyLabel* figureLabel(RunFigure figure);
    void makeLayout();
    void makeAnswers();
    void fillFigures(std::size_t run);
    /// Why the number in a cell of the sections is what it is.
    [[nodiscard]] std::optional<Reason> whyOf(std::size_t section, int column) const;
    void fillHeading(std::size_t run, const std::optional<RunAgainst>& against);
    void fillSections(std::size_t run, const std::optional<RunAgainst>& against);

    RaceDocument& m_document;
    std::optional<std::size_t> m_run;
    TableReference m_reference;
    QLabel* m_name;
    QLabel* m_facts;
    WhyLabel* m_total;
    WhyLabel* m_penalties;
    WhyLabel* m_real;
    WhyLabel* m_realPenalties;
    WhyLabel* m_expected;
    WhyLabel* m_potential;
    QLabel* m_standing;
    QLabel* m_gates;
    ColumnModel<Section> m_rows;
    ColumnTable* m_sections;
    QLabel* m_empty;
};

} // namespace kavela::desktop
