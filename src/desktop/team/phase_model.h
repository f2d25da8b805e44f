#pragma once

#include "desktop/team/season_model.h"

#include <QAbstractTableModel>

namespace kavela::desktop {

/// The runs of one race: the four phases in their order, raced or not, then others that the file
/// has. What is typed into a phase that was not raced adds it.
class PhaseModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column {
        PhaseColumn,
        TimeColumn,
        PenaltyColumn,
        TotalColumn,
        PositionColumn,
        DateColumn,
        PercentColumn,
        SplitsColumn,
        Columns
    };

    PhaseModel(TeamDocument& document, const SeasonModel& seasons, QObject* parent = nullptr);

    /// Shows a race; nothing without one.
    void show(std::optional<SeasonPlace> race);
    /// Takes a run out.
    void removeRun(int row);
    /// Whether a phase was raced.
    [[nodiscard]] bool hasRun(int row) const { return runOf(row) != nullptr; }

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;

signals:
    /// What was typed cannot be taken.
    void refused(const QString& reason);

private:
    /// A phase, and the run of it, by its place in the race.
    struct Row {
        std::string phase;
        std::optional<std::size_t> run;

        friend bool operator==(const Row&, const Row&) = default;
    };

    void reload();
    [[nodiscard]] std::vector<Row> rows() const;
    [[nodiscard]] const mtRaceStruct* race() const;
    [[nodiscard]] const mtPhaseStruct* runOf(int row) const;
    [[nodiscard]] QString text(int row, int column) const;
    void edit(const QString& what, const std::function<void(mtRaceStruct&)>& change);
    void setCell(Row row, int column, const QString& typed);

    TeamDocument& m_document;
    const SeasonModel& m_seasons;
    std::optional<SeasonPlace> m_race;
    std::vector<Row> m_rows;
};

} // namespace kavela::desktop
