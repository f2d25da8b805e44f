#pragma once

#include "desktop/shell/autosave.h"

#include <QStringList>

namespace kavela::desktop {

class Desktop;
class Workspace;

/// The windows that take recordings and what other devices wrote: several files come into one.
class RecordingWindows {
public:
    RecordingWindows(Desktop& program, Workspace& workspace, const Autosave& autosave)
        : m_program(program), m_workspace(workspace), m_autosave(autosave) {}

    /// Opens raw recordings beside each other, in the window that has some where there is one.
    void openRecordings(const QStringList& paths);
    /// Takes lists and tracks of other devices into the session in front, or into a new one.
    void openImports(const QStringList& paths);

private:
    Desktop& m_program;
    Workspace& m_workspace;
    const Autosave& m_autosave;
};

} // namespace kavela::desktop
