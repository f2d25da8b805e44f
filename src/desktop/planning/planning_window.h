#pragma once

#include "desktop/planning/online/online_states.h"
#include "desktop/planning/online/online_store.h"
#include "desktop/planning/planning_document.h"
#include "desktop/shell/tool_window.h"

class QTabWidget;

namespace kavela::desktop {

class AthleteList;
class BodyPanel;
class GoalsPanel;
class GymPanel;
class IntervalsPanel;
class PlanView;
class RankingPanel;

/// The planning of a group: every athlete's seasons with weeks, sessions and tests, goals, body and
/// heart, gym, rankings and races, and the coach's favourite interval sessions.
class PlanningWindow : public ToolWindow {
    Q_OBJECT

public:
    PlanningWindow(Workspace& workspace, Autosave autosave);
    ~PlanningWindow() override;

    /// False, after an alert, when the file cannot be opened; what is shown then stays.
    [[nodiscard]] bool open(const QString& path) override;
    /// A new planning; the path is where saving will propose to put it.
    void startNew(const QString& path) override;

    [[nodiscard]] PlanningDocument& document() const { return *m_document; }
    [[nodiscard]] AthleteList& athletes() const { return *m_athletes; }
    [[nodiscard]] PlanView& plan() const { return *m_plan; }
    [[nodiscard]] QTabWidget& tabs() const { return *m_tabs; }
    [[nodiscard]] BodyPanel& body() const { return *m_body; }
    [[nodiscard]] GymPanel& gym() const { return *m_gym; }
    [[nodiscard]] RankingPanel& ranking() const { return *m_ranking; }

    void addAthlete(const athletesplanning_v6& athlete);
    void askForAthlete();
    void editAthlete();
    void removeAthlete();
    /// A season of 52 empty weeks behind the latest one of the athlete.
    void addSeason();
    void removeSeason();

    void previewReports();
    /// The week in front as an iCalendar file; throws FileError.
    void writeCalendar(const QString& path);
    void askForCalendar();

    /// A planning that was read elsewhere, to be looked at; the name is where saving will propose
    /// to put it. False when it is none.
    [[nodiscard]] bool showCopy(const QByteArray& content, const QString& path);

    /// Puts the planning and its access record into the store under the entry's name. Asks before
    /// it replaces what somebody else put there.
    void saveOnline(const OnlineAddress& address, const QString& entry);
    void askToSaveOnline();
    /// Opens a planning of the store as an unsaved document; what is shown stays when that fails.
    void loadOnline(const OnlineAddress& address, const QString& entry);
    void askToLoadOnline();

signals:
    void onlineLoaded(bool isOpen);
    void onlineSaved(bool isSaved);
    /// What lies on the server is to be looked at in a window of its own.
    void copyRequested(const QByteArray& content, const QString& name);

protected:
    void takeFiles(const QStringList& paths) override;
    [[nodiscard]] bool takePending() override;

private:
    PlanningWindow(Workspace& workspace, std::unique_ptr<PlanningDocument> document);
    void makeParts();
    void connectParts();
    void showSeason();
    void tell(const QString& text);
    void tellOnlineFault(const QString& reason);
    void chooseForChanged(OnlineSaving& saving, const OnlineAddress& address, const QString& entry,
                          const QByteArray& there);
    void saveOnlineUnderAnotherName(const OnlineAddress& address, const QString& entry);

    std::unique_ptr<PlanningDocument> m_document;
    OnlineStore m_store;
    OnlineStates m_states;
    AthleteList* m_athletes = nullptr;
    QTabWidget* m_tabs = nullptr;
    PlanView* m_plan = nullptr;
    GoalsPanel* m_goals = nullptr;
    BodyPanel* m_body = nullptr;
    GymPanel* m_gym = nullptr;
    RankingPanel* m_ranking = nullptr;
    IntervalsPanel* m_intervals = nullptr;
};

} // namespace kavela::desktop
