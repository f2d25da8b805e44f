#pragma once

#include "desktop/shell/command_palette.h"
#include "desktop/shell/tool.h"

#include <QMainWindow>

class QLabel;
class QListWidget;
class QVBoxLayout;

namespace kavela::desktop {

class Workspace;

/// The first screen: the tools as tiles, recent files, and the sample season for a newcomer. Files
/// dropped anywhere on it are opened.
class HomeWindow : public QMainWindow {
    Q_OBJECT

public:
    HomeWindow(Workspace& workspace, const Tools& tools);

signals:
    void settingsRequested();
    void sampleRequested();
    /// Files or folders dropped on the window or chosen in it.
    void filesRequested(const QStringList& paths);

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void makeMenus();
    [[nodiscard]] QWidget* header();
    [[nodiscard]] QWidget* tiles(const Tools& tools);
    [[nodiscard]] QWidget* recentFiles();
    void showRecentFiles();
    void chooseFile();

    Workspace& m_workspace;
    Commands m_more; ///< the tools, for the search
    QListWidget* m_recent = nullptr;
    QLabel* m_noRecent = nullptr;
};

} // namespace kavela::desktop
