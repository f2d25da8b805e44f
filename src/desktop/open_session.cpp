#include "desktop/open_session.h"

#include "desktop/shell/workspace.h"

#include <QFileInfo>

#include <array>
#include <utility>

namespace kavela::desktop {

namespace {

/// Of each file the kind of its tool, a space and its path.
constexpr const char* SessionKey = "openWindows";
/// Where earlier releases kept them, and the tool that opened those.
constexpr std::array<std::pair<const char*, const char*>, 4> OlderKeys{{{"openFiles", "race"},
                                                                        {"openTakings", "taking"},
                                                                        {"openCrosses", "cross"},
                                                                        {"openEditors", ""}}};

} // namespace

void rememberSession(Workspace& workspace, const QList<OpenFile>& files) {
    QStringList entries;
    for (const OpenFile& file : files)
        entries.append(file.kind + ' ' + file.path);
    workspace.remember(SessionKey, entries);
    for (const auto& [key, kind] : OlderKeys)
        if (!workspace.remembered(key).isEmpty())
            workspace.remember(key, {});
}

QList<OpenFile> rememberedSession(const Workspace& workspace) {
    QList<OpenFile> files;
    for (const QString& entry : workspace.remembered(SessionKey))
        files.append({entry.section(' ', 0, 0), entry.section(' ', 1)});
    for (const auto& [key, kind] : OlderKeys)
        for (const QString& path : workspace.remembered(key))
            files.append({kind, path});
    files.removeIf([](const OpenFile& file) { return !QFileInfo::exists(file.path); });
    return files;
}

} // namespace kavela::desktop
