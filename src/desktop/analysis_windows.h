#pragma once

#include "desktop/shell/autosave.h"

#include <QStringList>

#include <cstddef>
#include <optional>

namespace kavela {
struct RaceSet;
}

namespace kavela::desktop {

class Desktop;
class LossesWindow;
class RaceWindow;
class SeasonWindow;
class TablesWindow;
class TakingDocument;
class Workspace;

/// The windows that look at races and change nothing in them: analyzer, search, penalties, losses.
class AnalysisWindows {
public:
    AnalysisWindows(Desktop& program, Workspace& workspace, const Autosave& autosave);

    /// Opens races together, in a window of their own where none is given; those that a window
    /// shows already come to the front there.
    void openRaces(const QStringList& paths, RaceWindow* into);
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
    /// A window that shows no list yet, in front.
    TablesWindow& emptyTablesWindow();
    void openTable(const QString& path, const QString& list);
    /// The window that shows the losses of just these files, else a new one, in front.
    LossesWindow& lossesWindow(const QStringList& paths);

    Desktop& m_program;
    Workspace& m_workspace;
    const Autosave& m_autosave;
};

} // namespace kavela::desktop
