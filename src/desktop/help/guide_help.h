#pragma once

#include <QObject>
#include <QPointer>

class QDialog;

namespace kavela::desktop {

class GuideWindow;
class Workspace;

/// Opens the user guide at the chapter of the window in front, by its Help menu and by F1 in its
/// dialogs.
class GuideHelp : public QObject {
    Q_OBJECT

public:
    /// Hears what windows ask the workspace for, and F1 in dialogs, as long as it lives.
    explicit GuideHelp(Workspace& workspace);
    ~GuideHelp() override;

    /// At the chapter on the windows of a kind, in the one window that the guide has.
    void show(const QString& kind);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// A dialog lets no window be used but those above it: the guide has one there.
    void showOver(QDialog& dialog);

    Workspace& m_workspace;
    QPointer<GuideWindow> m_window;
};

} // namespace kavela::desktop
