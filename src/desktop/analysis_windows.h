#pragma once

#include "desktop/open_session.h"
#include "desktop/shell/autosave.h"
#include "desktop/shell/background_work.h"

#include <QMap>
#include <QStringList>

#include <cstddef>
#include <memory>
#include <optional>
#include <vector>

namespace kavela {
struct RaceSet;
}

namespace kavela::desktop {

class Desktop;
class HeldDocuments;
class LossesWindow;
class RaceWindow;
class SeasonWindow;
class TablesWindow;
class TakingDocument;
class Workspace;
struct ReadRace;

/// The windows that look at races and change nothing in them: analyzer, search, penalties, losses.
class AnalysisWindows {
public:
    AnalysisWindows(Desktop& program, Workspace& workspace, const Autosave& autosave);

    /// Opens races together, in a window of their own where none is given; those that a window
    /// shows already come to the front there. They are read beside the windows; what is parsed of
    /// them is `held` until then.
    void openRaces(const QStringList& paths, RaceWindow* into,
                   const std::shared_ptr<const HeldDocuments>& held);
    /// The races that are being read, which the session is to remember.
    [[nodiscard]] QList<OpenFile> racesBeingRead() const;
    /// Shows a race as it is being edited, saved or not.
    void showEdited(const TakingDocument& document);
    /// The race as an analyzer shows it; null when none does.
    [[nodiscard]] const RaceSet* shownRace(const QString& path) const;
    void openFind(const QStringList& paths);
    void openPenalties(const QStringList& paths);
    void openLosses(const QStringList& paths, std::optional<std::size_t> run);
    /// What a window of tables asks of the program.
    void connectTables(TablesWindow& window);
    /// Each list in a window of its own, the window that shows it already in front; an empty
    /// window without any. `list` is which of the lists of a file is meant, empty for any.
    void openTables(const QStringList& paths, const QString& list);
    /// The same of an earlier start, with what it showed then.
    void showLossesAgain(const QStringList& paths, const QString& view);
    /// The same with the season of an athlete.
    void openSeasonLosses(const QStringList& paths, const QString& athlete);
    /// Asks in which folder the races of a team's athlete are, and opens the season there.
    void askForSeasonLosses(const QString& athlete, const QString& teamFile);
    /// A team's season with its races, or without paths the one that was shown last.
    void openSeason(const QStringList& paths);
    /// The season of a team's athlete, with the races that the team was shown with last.
    void openSeasonOf(const QString& athlete, const QString& category, const QString& teamFile);
    /// A season of an earlier start, with what it showed then.
    void showSeasonAgain(const QStringList& paths, const QString& view);

private:
    [[nodiscard]] SeasonWindow* makeSeasonWindow();
    [[nodiscard]] RaceWindow* makeRaceWindow();
    /// The window that shows a race; null when none does.
    [[nodiscard]] RaceWindow* windowOfRace(const QString& path) const;
    [[nodiscard]] QStringList notShownAmong(const QStringList& races);
    [[nodiscard]] bool isBeingRead(const QString& race) const;
    void showRead(const std::vector<std::shared_ptr<ReadRace>>& races, RaceWindow* into);
    /// A window that shows no list yet, in front.
    TablesWindow& emptyTablesWindow();
    void openTable(const QString& path, const QString& list);
    /// The window that shows the losses of just these files, else a new one, in front.
    LossesWindow& lossesWindow(const QStringList& paths);

    Desktop& m_program;
    Workspace& m_workspace;
    const Autosave& m_autosave;
    QMap<int, QStringList> m_reading; ///< races that are read together, as they began
    int m_lastReading = 0;
    BackgroundWork m_work;
};

} // namespace kavela::desktop
