#pragma once

#include "desktop/opened_as.h"
#include "desktop/shell/autosave.h"
#include "desktop/shell/document_choice.h"

#include <QString>

#include <functional>
#include <vector>

namespace kavela::desktop {

class ToolWindow;
class Workspace;

/// A tool of the program: one line of the table that home screen, dialogs, opening by content,
/// recovery and the session are read from.
struct ToolKind {
    /// How its files are chosen from the home screen.
    enum class Choice {
        Document, ///< one that was open before, another, or a new one
        Files,    ///< several
        Folder,
        None,          ///< the window asks for them
        FilesOrFolder, ///< several, or one folder with all below it, in one window
    };

    QString kind; ///< that of its windows
    OpensAs opens;
    QString title;
    QString sentence; ///< what it is for; empty for a tool that only opens files
    const char* icon;
    Choice choice;
    DocumentKind documents; ///< how they are called where one is chosen
    /// Makes a window that is not shown yet.
    std::function<ToolWindow*(Workspace&, const Autosave&)> make;
};

/// Tools that stand together on the home screen.
struct HomeGroup {
    QString title;
    std::vector<const ToolKind*> tools;
};
/// All that have a sentence, each once.
[[nodiscard]] std::vector<HomeGroup> homeGroups();

[[nodiscard]] const std::vector<ToolKind>& toolKinds();

/// Null for none.
[[nodiscard]] const ToolKind* toolOfKind(const QString& kind);
[[nodiscard]] const ToolKind* toolFor(OpensAs opens);

} // namespace kavela::desktop
