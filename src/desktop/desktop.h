#pragma once

#include "desktop/shell/workspace.h"

#include <QPointer>

namespace kavela::desktop {

class HomeWindow;
class RaceWindow;

/// The desktop program: the home screen, and for each opened file the window of its tool.
class Desktop : public QObject {
    Q_OBJECT

public:
    explicit Desktop(Workspace& workspace);
    ~Desktop() override;

    void showHome();
    /// Opens a file in the tool it belongs to, by what it holds; every split file of a folder.
    void open(const QString& path) { openAll({path}); }
    /// The same for several: their races come into one window, which is `into` where it is given.
    void openAll(const QStringList& paths, RaceWindow* into = nullptr);
    /// Opens what was open when the program was left. False when nothing was, or nothing is there.
    [[nodiscard]] bool restoreSession();
    void openSettings();
    void openSampleSeason();

    /// The windows that are open, in the order of their opening.
    [[nodiscard]] QList<RaceWindow*> raceWindows() const;

private:
    void chooseRace();
    void openRaces(const QStringList& paths, RaceWindow* into);
    [[nodiscard]] RaceWindow* makeRaceWindow();
    /// The races among files and folders; what is not one is told.
    [[nodiscard]] QStringList racesAmong(const QStringList& paths);
    void rememberSession();
    [[nodiscard]] QWidget* front() const;

    Workspace& m_workspace;
    QPointer<HomeWindow> m_home;
    QList<QPointer<RaceWindow>> m_races;
};

} // namespace kavela::desktop
