#pragma once

#include "common/why.h"
#include "desktop/shell/autosave.h"

#include <QMultiMap>
#include <QString>

#include <cstddef>
#include <functional>

namespace kavela::desktop {

class AnalysisWindows;
class CrossWindow;
class Desktop;
class TakingWindow;
class ToolWindow;
class Workspace;

/// The windows that edit a split file on its films: split taking and kayak cross. A file is edited
/// in one of them at a time: the other one closes first, when the coach decides about unsaved work.
/// One that stays open keeps the file; one that saves first gives way when that is done. A file is
/// read beside the windows, and what is asked for meanwhile is done when it is there.
class SplitFileWindows {
public:
    SplitFileWindows(Desktop& program, Workspace& workspace, const Autosave& autosave,
                     AnalysisWindows& analysis);

    /// What is to be done in the window once it is there.
    using Then = std::function<void(TakingWindow& window)>;
    /// Opens a folder of films, or a split file beside its films, for split taking; null, after a
    /// message, when it cannot be opened, and null where another window saves first or the file
    /// takes long to read: `then` is called in any case once the window is there, and not where it
    /// does not come.
    TakingWindow* openTaking(const QString& path, const Then& then = {});
    /// Opens the kayak cross of a split file, or of a folder of films; null as above.
    CrossWindow* openCross(const QString& path);
    void openFilm(const QString& path, const QString& splitFile);
    /// The moment behind a time of the analyzer, in the film it was taken from.
    void showMoment(const QString& path, int run, std::size_t split);
    /// Where the race and official results differ, over its split taking.
    void openOfficialDifferences(const QString& path);
    /// The drawing of the course, over its split taking.
    void openCourse(const QString& path);
    /// Where a number of a split file comes from: its run and frame.
    void showPlace(const Place& place);

private:
    /// Makes a window for the split file or folder, which none edits. `shown` hears of it when it
    /// is on the screen, maybe at once; with null, after a message, when it cannot be opened.
    template <class Window>
    using Shown = std::function<void(Window* window)>;
    void showTaking(const QString& path, const Shown<TakingWindow>& shown);
    void showCross(const QString& path, const Shown<CrossWindow>& shown);
    /// The same in place of the window that had it and is closed now; where it cannot be opened,
    /// that one comes back with `left`.
    void showTakingInstead(const QString& path, const QString& left,
                           const Shown<TakingWindow>& shown);
    void showCrossInstead(const QString& path, const QString& left,
                          const Shown<CrossWindow>& shown);
    /// Reads a file into a window that was made for it, and then does what was asked for meanwhile.
    template <class Window>
    void read(Window& window, const QString& path, const Shown<Window>& shown);
    /// Whether the file is being read: what is asked for now is done once it is there.
    [[nodiscard]] bool isAskedLater(const QString& path, std::function<void()> ask);
    /// Closes a window that gives way, as the coach would, who decides about unsaved work then.
    /// True when it is closed. Where it saves first, `then` is called once it is; one that stays
    /// open comes to the front.
    bool givesWay(ToolWindow& window, std::function<void()> then);
    /// A run of a file in split taking, which may have moved there since the file was saved; told
    /// when it is gone.
    void showRun(const QString& path, std::size_t run, const Then& then);
    [[nodiscard]] bool selectRun(TakingWindow& window, const QString& path, std::size_t run);

    Desktop& m_program;
    Workspace& m_workspace;
    const Autosave& m_autosave;
    AnalysisWindows& m_analysis;
    QMultiMap<QString, std::function<void()>> m_askedLater; ///< by canonical path
};

} // namespace kavela::desktop
