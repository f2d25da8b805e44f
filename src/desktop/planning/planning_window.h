#pragma once

#include "desktop/planning/planning_document.h"
#include "desktop/shell/tool_window.h"

#include <memory>

class QTabWidget;

namespace kavela::desktop {

class AthleteList;
class BodyPanel;
class GoalsPanel;
class GymPanel;
class IntervalsPanel;
class OnlinePlanning;
class PlanningHandouts;
class PlanView;
class RankingPanel;

/// The planning of a group: every athlete's seasons with weeks, sessions and tests, goals, body and
/// heart, gym, rankings and races, and the coach's favourite interval sessions.
class PlanningWindow : public ToolWindow {
    Q_OBJECT

public:
    PlanningWindow(Workspace& workspace, Autosave autosave);
    ~PlanningWindow() override;

    /// A new planning; the path is where saving will propose to put it.
    void startNew(const QString& path) override;

    [[nodiscard]] PlanningDocument& document() const { return *m_document; }
    [[nodiscard]] AthleteList& athletes() const { return *m_athletes; }
    [[nodiscard]] PlanView& plan() const { return *m_plan; }
    [[nodiscard]] QTabWidget& tabs() const { return *m_tabs; }
    [[nodiscard]] BodyPanel& body() const { return *m_body; }
    [[nodiscard]] GymPanel& gym() const { return *m_gym; }
    [[nodiscard]] RankingPanel& ranking() const { return *m_ranking; }
    [[nodiscard]] OnlinePlanning& online() const { return *m_online; }
    [[nodiscard]] PlanningHandouts& handouts() const { return *m_handouts; }

    void addAthlete(const athletesplanning_v6& athlete);
    void askForAthlete();
    void editAthlete();
    void removeAthlete();
    /// A season of 52 empty weeks behind the latest one of the athlete.
    void addSeason();
    void removeSeason();

protected:
    [[nodiscard]] FileReading readingOf(const QString& path) override;
    void takeFiles(const QStringList& paths) override;
    [[nodiscard]] bool takePending() override;

private:
    void showOpened();
    PlanningWindow(Workspace& workspace, std::unique_ptr<PlanningDocument> document);
    void makeParts();
    void connectParts();
    void showSeason();
    void tell(const QString& text);

    std::unique_ptr<PlanningDocument> m_document;
    AthleteList* m_athletes = nullptr;
    QTabWidget* m_tabs = nullptr;
    PlanView* m_plan = nullptr;
    GoalsPanel* m_goals = nullptr;
    BodyPanel* m_body = nullptr;
    GymPanel* m_gym = nullptr;
    RankingPanel* m_ranking = nullptr;
    IntervalsPanel* m_intervals = nullptr;
    std::unique_ptr<OnlinePlanning> m_online; ///< its answers find the document still there
    std::unique_ptr<PlanningHandouts> m_handouts;
};

} // namespace kavela::desktop
