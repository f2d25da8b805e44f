#pragma once

#include "desktop/shell/autosave.h"

class QWidget;

namespace kavela::desktop {

class Desktop;
class Workspace;

/// What comes back of earlier starts of the program: the windows that were open when it was left,
/// and the work that was not saved when it ended.
class EarlierWork {
public:
    EarlierWork(Desktop& program, Workspace& workspace, const Autosave& autosave)
        : m_program(program), m_workspace(workspace), m_autosave(autosave) {}

    /// What is open now is what the next start opens.
    void rememberWindows() const;
    /// Opens what was open when the program was left. False when nothing was, or nothing is there.
    [[nodiscard]] bool restoreWindows() const;

    /// Opens what an earlier start left unsaved, each after asking, in the tool that it was edited
    /// with, whether it was ever saved or not; after a crash what was open beside it too.
    void offerUnsaved() const;
    /// Shows what was kept and not taken up again, for one of it to be brought back.
    void chooseToBringBack(QWidget* over) const;

    /// What was put off and is in no document again; told beside the interface, as long as
    /// `context` is there.
    void listPutOff(QObject& context, Autosave::Listed listed) const;
    /// Into the window that edits the document, where one does, else into a new one.
    void bringBack(const Autosave::Found& earlier) const;

private:
    void recover(const Autosave::Label& found) const;
    void closeWherePutOff(const QString& path) const;

    Desktop& m_program;
    Workspace& m_workspace;
    const Autosave& m_autosave;
};

} // namespace kavela::desktop
