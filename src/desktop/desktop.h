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
    void open(const QString& path);
    void openSettings();
    void openSampleSeason();

    /// The windows that are open, in the order of their opening.
    [[nodiscard]] QList<RaceWindow*> raceWindows() const;

private:
    void chooseRace();
    void openRace(const QString& path);
    [[nodiscard]] QWidget* front() const;

    Workspace& m_workspace;
    QPointer<HomeWindow> m_home;
    QList<QPointer<RaceWindow>> m_races;
};

} // namespace kavela::desktop
