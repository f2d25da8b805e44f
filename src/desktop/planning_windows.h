#pragma once

#include "desktop/shell/autosave.h"

#include <QByteArray>
#include <QString>

namespace kavela::desktop {

class Desktop;
class Workspace;

/// The windows of plannings that nobody opened as a file: the one of the start, those of a server.
class PlanningWindows {
public:
    PlanningWindows(Desktop& program, Workspace& workspace, const Autosave& autosave)
        : m_program(program), m_workspace(workspace), m_autosave(autosave) {}

    /// Opens the planning that the preferences name, where they ask for one.
    void loadAtStart();
    /// A planning of the server in a window of its own; told when it is none.
    void showCopy(const QByteArray& content, const QString& name);

private:
    Desktop& m_program;
    Workspace& m_workspace;
    const Autosave& m_autosave;
};

} // namespace kavela::desktop
