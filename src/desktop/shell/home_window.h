#pragma once

#include "desktop/shell/command_palette.h"
#include "desktop/shell/tool.h"

#include <QMainWindow>

#include <functional>
#include <vector>

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

    /// Work that is kept and in no document: a line for each, which brings it back.
    struct KeptWork {
        QString line;
        QString place; ///< of its document
        std::function<void()> bringBack;
    };
    void showKeptWork(const std::vector<KeptWork>& works);

    /// Puts something below the name of the program, above all else; the window owns it.
    void addBelowHeader(QWidget* part);

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
    [[nodiscard]] QWidget* recentFiles();
    [[nodiscard]] QWidget* keptWork();
    void showRecentFiles();
    void chooseFile();

    Workspace& m_workspace;
    QVBoxLayout* m_column = nullptr;
    QListWidget* m_recent = nullptr;
    QLabel* m_noRecent = nullptr;
    QWidget* m_keptBox = nullptr;
    QListWidget* m_kept = nullptr;
    std::vector<KeptWork> m_works; ///< in the order of the list
};

} // namespace kavela::desktop
