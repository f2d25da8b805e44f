#pragma once

#include "desktop/shell/autosave.h"

#include <QPointer>
#include <QString>

namespace kavela::desktop {

struct CompareRequest;
class Desktop;
class SlitWindow;
class SplitFileWindows;
class TakingWindow;
class Workspace;

/// The windows that show and bring films: those of a folder, slit pictures, comparisons, and what
/// fetches films from a server.
class FilmWindows {
public:
    FilmWindows(Desktop& program, Workspace& workspace, const Autosave& autosave,
                SplitFileWindows& splitFiles)
        : m_program(program),
          m_workspace(workspace),
          m_autosave(autosave),
          m_splitFiles(splitFiles) {}

    /// See Desktop.
    void openFilms(const QString& path);
    void openFetch();
    void openSlit(const QString& film, TakingWindow* race);
    void openCompare(const CompareRequest& request);

private:
    void openRace(const QString& path, const QPointer<SlitWindow>& slit);

    Desktop& m_program;
    Workspace& m_workspace;
    const Autosave& m_autosave;
    SplitFileWindows& m_splitFiles;
};

} // namespace kavela::desktop
