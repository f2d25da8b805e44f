#pragma once

#include <QList>
#include <QString>

namespace kavela::desktop {

class ToolWindow;
class Workspace;

/// A file that is open, and in which kind of tool; no kind for the one that fits what it holds.
struct OpenFile {
    QString kind;
    QString path;      ///< empty for a window that shows no file, such as that of fetching
    int window = 0;    ///< those of one window have the same number; 0 for one that is not known
    QString view = {}; ///< what that window shows of its files, as it tells it itself
};

/// The files of a window, which is given a number that no other one has.
[[nodiscard]] QList<OpenFile> filesOf(const ToolWindow& window, int number);

/// What the next start opens.
void rememberSession(Workspace& workspace, const QList<OpenFile>& files);
/// What was open when the program was left, as far as it is still there.
[[nodiscard]] QList<OpenFile> rememberedSession(const Workspace& workspace);

} // namespace kavela::desktop
