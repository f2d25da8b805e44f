#pragma once

#include "common/log.h"
#include "desktop/planning/gym/gym_rows.h"
#include "desktop/shell/tables/column_model.h"

#include <QWidget>

class QAction;
class QLabel;

namespace kavela::desktop {

class ColumnTable;

/// The exercises of a gym session, with the estimates of the maximum for the current one and the
/// totals of the session under the table. Entries that are missing in the file are marked, and odd
/// ones too.
class ExerciseTable : public QWidget {
    Q_OBJECT

public:
    enum ColumnPlace {
        ExerciseColumn,
        SetsColumn,
        RepetitionsColumn,
        WeightColumn,
        MaximumColumn,
        EstimateColumn ///< where the maximum is another
    };

    /// The estimates that a coach's input leads to are logged.
    explicit ExerciseTable(const DiagnosticLog& log, QWidget* parent = nullptr);

    using QWidget::show;
    /// Shows a session, or words without one; `names` are offered for completion.
    void show(const gymdataplanning_v1* session, const QStringList& names, const QString& emptyText,
              bool isOther);
    /// Adds an exercise and opens its name to be typed.
    void addExercise();
    void removeExercise();
    /// Takes the estimate of the current row as its maximum, where it is another.
    void takeEstimate();

    [[nodiscard]] ColumnTable& table() const { return *m_table; }

signals:
    /// An edit of the session; `what` names it as a step of the undo stack.
    void edited(const QString& what,
                const std::function<void(kavela::gymdataplanning_v1&)>& change);
    /// Another exercise stands in the current row; empty for none.
    void exerciseChosen(const QString& name);

private:
    [[nodiscard]] std::vector<Column<GymRow>> columns();
    [[nodiscard]] QWidget* makeTable();
    void showRow();
    void showEstimates(const GymRow* row);
    [[nodiscard]] const GymRow* currentRow() const;
    [[nodiscard]] QString totalsText(const gymdataplanning_v1& session) const;
    void logEstimates(std::optional<std::int64_t> repetitions, std::optional<double> weight) const;

    DiagnosticLog m_log;
    QStringList m_names;
    ColumnModel<GymRow> m_model;
    ColumnTable* m_table;
    QAction* m_add = nullptr;
    QAction* m_take = nullptr;
    QLabel* m_estimates;
    QLabel* m_totals;
    QString m_chosen; ///< the exercise in the current row
    bool m_hasSession = false;
};

} // namespace kavela::desktop
