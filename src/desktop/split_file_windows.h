#pragma once

#include "common/why.h"
#include "desktop/shell/autosave.h"

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
/// One that stays open keeps the file; one that saves first gives way when that is done.
class SplitFileWindows {
public:
    SplitFileWindows(Desktop& program, Workspace& workspace, const Autosave& autosave,
                     AnalysisWindows& analysis);

    /// What is to be done in the window once it is there.
    using Then = std::function<void(TakingWindow& window)>;
    /// Opens a folder of films, or a split file beside its films, for split taking; null, after a
    /// message, when it cannot be opened, and null where another window saves first: `then` is
    /// called in any case once the window is there, and not where it does not come.
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
    /// A new window for the split file or folder, which none edits; null, after a message, when it
    /// cannot be opened.
    TakingWindow* showTaking(const QString& path);
    CrossWindow* showCross(const QString& path);
    /// The same in place of the window that had it and is closed now; where it cannot be opened,
    /// that one comes back with `left`.
    TakingWindow* showTakingInstead(const QString& path, const QString& left);
    CrossWindow* showCrossInstead(const QString& path, const QString& left);
    /// Closes a window that gives way, as the coach would, who decides about unsaved work then.
    /// True when it is closed. Where it saves first, `then` is called once it is; one that stays
    /// open comes to the front.
    bool givesWay(ToolWindow& window, std::function<void()> then);
    [[nodiscard]] static TakingWindow* done(TakingWindow* window, const Then& then);
    /// A run of a file in split taking, which may have moved there since the file was saved; told
    /// when it is gone.
    void showRun(const QString& path, std::size_t run, const Then& then);
    [[nodiscard]] bool selectRun(TakingWindow& window, const QString& path, std::size_t run);

    Desktop& m_program;
    Workspace& m_workspace;
    const Autosave& m_autosave;
    AnalysisWindows& m_analysis;
};

} // namespace kavela::desktop
