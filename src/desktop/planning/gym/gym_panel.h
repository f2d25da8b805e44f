#pragma once

#include "common/log.h"
#include "desktop/charts/chart_content.h"
#include "desktop/planning/season_panel.h"
#include "desktop/shell/tables/column_model.h"

class QAction;
class QComboBox;
class QPushButton;

namespace kavela::desktop {

class ColumnTable;
class ExerciseTable;
class SeriesChart;

/// The gym sessions of a season: the sessions by date, the exercises of the chosen one with their
/// estimated maximum, and how an exercise developed through all seasons of the athlete.
class GymPanel : public SeasonPanel {
    Q_OBJECT

public:
    /// The clock says which day a new session is of; the estimates are logged as they are made.
    GymPanel(PlanningDocument& document, const DiagnosticLog& log, Clock clock,
             QWidget* parent = nullptr);

    void addSession();
    /// The chosen session once more, of today.
    void duplicateSession();
    void chooseSession(std::size_t place);
    /// The chosen session, by its place in the season.
    [[nodiscard]] std::optional<std::size_t> session() const;
    /// Shows the history of an exercise.
    void chooseExercise(const QString& name);

    [[nodiscard]] ColumnTable& sessions() const { return *m_sessions; }
    [[nodiscard]] ExerciseTable& exercises() const { return *m_exercises; }
    [[nodiscard]] SeriesChart& chart() const { return *m_chart; }

protected:
    void refresh() override;

private:
    [[nodiscard]] QWidget* makeSessions();
    void makeParts(QWidget* sessions);
    void moveSession(std::size_t place, ReferenceDate date);
    void connectExercises();
    void addSession(gymdataplanning_v1 session, const QString& what);
    void editSession(const QString& what, const std::function<void(gymdataplanning_v1&)>& change);
    void showSessions();
    void showExercises(bool isOther);
    void showNames();
    void showHistory();
    [[nodiscard]] const gymdataplanning_v1* shownSession() const;
    [[nodiscard]] QString sessionsEmptyText() const;
    [[nodiscard]] QStringList usedNames() const;
    [[nodiscard]] ReferenceDate today() const;

    Clock m_clock;
    ColumnModel<gymdataplanning_v1> m_model;
    ColumnTable* m_sessions;
    QAction* m_add = nullptr;
    QPushButton* m_duplicate = nullptr;
    ExerciseTable* m_exercises;
    QComboBox* m_names;
    SeriesChart* m_chart;
};

/// How an exercise developed: the weight lifted and the maximum by date, in kilograms.
[[nodiscard]] ChartContent gymChart(const athletesplanning_v6& athlete, const QString& exercise);

} // namespace kavela::desktop
