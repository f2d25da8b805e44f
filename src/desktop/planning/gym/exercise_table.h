#pragma once

#include "desktop/planning/gym/exercise_model.h"

#include <QWidget>

class QLabel;
class QPushButton;
class QStackedWidget;
class QTableView;

namespace kavela::desktop {

class ExerciseDelegate;

/// The exercises of a gym session, with the estimates of the maximum for the current one and the
/// totals of the session under the table.
class ExerciseTable : public QWidget {
    Q_OBJECT

public:
    explicit ExerciseTable(const DiagnosticLog& log, QWidget* parent = nullptr);

    using QWidget::show;
    /// Shows a session, or words without one; `names` are offered for completion.
    void show(const gymdataplanning_v1* session, const QStringList& names,
              const QString& emptyText);
    /// Adds an exercise and opens its name to be typed.
    void addExercise();
    void removeExercise();
    /// Takes the estimate of the current row as its maximum, where it is another.
    void takeEstimate();

    [[nodiscard]] QTableView& view() const { return *m_view; }
    [[nodiscard]] ExerciseModel& model() { return m_model; }

signals:
    void edited(const QString& what,
                const std::function<void(kavela::gymdataplanning_v1&)>& change);
    /// Another exercise stands in the current row; empty for none.
    void exerciseChosen(const QString& name);

private:
    void makeView();
    void makeButtons();
    void showRow();
    void showEstimates(const GymRow* row);
    [[nodiscard]] QString totalsText(const gymdataplanning_v1& session) const;

    ExerciseModel m_model;
    QTableView* m_view;
    ExerciseDelegate* m_delegate;
    QLabel* m_empty;
    QStackedWidget* m_stack;
    QPushButton* m_add;
    QPushButton* m_remove;
    QPushButton* m_take;
    QLabel* m_estimates;
    QLabel* m_totals;
    QString m_chosen; ///< the exercise in the current row
    bool m_hasSession = false;
};

} // namespace kavela::desktop
