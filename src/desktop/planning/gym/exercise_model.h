#pragma once

#include "common/log.h"
#include "desktop/planning/gym/gym_rows.h"

#include <QAbstractTableModel>

#include <functional>

namespace kavela::desktop {

/// The exercises of one gym session. Entries that are missing in the file are marked, and odd ones
/// too. Edits leave as signals.
class ExerciseModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column {
        ExerciseColumn,
        SetsColumn,
        RepetitionsColumn,
        WeightColumn,
        MaximumColumn,
        EstimateColumn, ///< where the maximum is another
        Columns
    };

    /// The estimates that a coach's input leads to are logged.
    explicit ExerciseModel(const DiagnosticLog& log, QObject* parent = nullptr);

    /// Shows a session; nothing without one.
    void show(const gymdataplanning_v1* session);
    [[nodiscard]] const GymRow& row(int row) const { return m_rows[static_cast<std::size_t>(row)]; }
    /// The estimate that can be taken in a row: it is there, and the maximum is another.
    [[nodiscard]] std::optional<double> offered(int row) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;

signals:
    /// An edit of the session; `what` names it as a step of the undo stack.
    void edited(const QString& what,
                const std::function<void(kavela::gymdataplanning_v1&)>& change);
    /// What was typed cannot be taken.
    void refused(const QString& reason);

private:
    using Change = std::function<void(gymdataplanning_v1&)>;

    [[nodiscard]] QString text(const QModelIndex& index, bool isEdited) const;
    [[nodiscard]] bool isMissing(const QModelIndex& index) const;
    [[nodiscard]] QString oddity(const QModelIndex& index) const;
    void setCell(int row, int column, const QString& typed);
    void logEstimates(std::optional<std::int64_t> repetitions, std::optional<double> weight) const;

    DiagnosticLog m_log;
    std::vector<GymRow> m_rows;
};

} // namespace kavela::desktop
