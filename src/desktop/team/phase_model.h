#pragma once

#include "desktop/shell/tables/column_model.h"
#include "desktop/team/season_model.h"

#include <QObject>

namespace kavela::desktop {

/// A phase of a race, and the run of it.
struct PhaseRow {
    std::string phase;
    std::optional<std::size_t> place; ///< of the run in the race; none for a phase not raced
    mtPhaseStruct run;
};

/// The runs of one race: the four phases in their order, raced or not, then others that the file
/// has. What is typed into a phase that was not raced adds it.
class PhaseModel : public QObject {
    Q_OBJECT

public:
    enum ColumnPlace {
        PhaseColumn,
        TimeColumn,
        PenaltyColumn,
        TotalColumn,
        PositionColumn,
        DateColumn,
        PercentColumn,
        SplitsColumn
    };

    PhaseModel(TeamDocument& document, const SeasonModel& seasons, QObject* parent = nullptr);

    /// Shows a race; nothing without one.
    void show(std::optional<SeasonPlace> race);
    /// Takes a run out.
    void removeRun(int row);
    [[nodiscard]] RowModel& rows() { return m_rows; }

private:
    using RunEdit = std::function<void(mtPhaseStruct&)>;

    [[nodiscard]] std::vector<Column<PhaseRow>> columns();
    [[nodiscard]] std::vector<PhaseRow> phases() const;
    [[nodiscard]] const mtRaceStruct* race() const;
    void edit(const QString& what, const std::function<void(mtRaceStruct&)>& change);
    void editRun(const QString& what, const PhaseRow& row, const RunEdit& change);

    TeamDocument& m_document;
    const SeasonModel& m_seasons;
    std::optional<SeasonPlace> m_race;
    ColumnModel<PhaseRow> m_rows;
};

} // namespace kavela::desktop
