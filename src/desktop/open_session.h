#pragma once

#include <QList>
#include <QString>

namespace kavela::desktop {

class Workspace;

/// A file that is open, and in which kind of tool; no kind for the one that fits what it holds.
struct OpenFile {
    QString kind;
    QString path;
};

/// What the next start opens.
void rememberSession(Workspace& workspace, const QList<OpenFile>& files);
/// What was open when the program was left, as far as it is still there.
[[nodiscard]] QList<OpenFile> rememberedSession(const Workspace& workspace);

} // namespace kavela::desktop
