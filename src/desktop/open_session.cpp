#include "desktop/open_session.h"

#include "desktop/shell/tool_window.h"
#include "desktop/shell/workspace.h"

#include <QFileInfo>

#include <algorithm>
#include <array>
#include <utility>

namespace kavela::desktop {

namespace {

/// Of each file the kind of its tool, a space and its path. Behind the kind stand a "#", the number
/// of the window and, behind a colon, what it shows, in hexadecimal digits.
constexpr const char* SessionKey = "openWindows";
/// Where earlier releases kept them, and the tool that opened those.
constexpr std::array<std::pair<const char*, const char*>, 4> OlderKeys{{{"openFiles", "race"},
                                                                        {"openTakings", "taking"},
                                                                        {"openCrosses", "cross"},
                                                                        {"openEditors", ""}}};

/// Windows that show no file: what they work on is remembered otherwise.
constexpr std::array<const char*, 1> KindsWithoutFiles{"fetch"};

bool isWithoutFiles(const QString& kind) {
    return std::ranges::any_of(KindsWithoutFiles,
                               [&](const char* each) { return kind == QLatin1String(each); });
}

QString headOf(const OpenFile& file) {
    return file.window == 0 ? file.kind
                            : QStringLiteral("%1#%2:%3")
                                  .arg(file.kind)
                                  .arg(file.window)
                                  .arg(QString::fromLatin1(file.view.toUtf8().toHex()));
}

OpenFile openFileOf(const QString& head, const QString& path) {
    const QString window = head.section('#', 1);
    const QByteArray view = QByteArray::fromHex(window.section(':', 1).toLatin1());
    return {head.section('#', 0, 0), path, window.section(':', 0, 0).toInt(),
            QString::fromUtf8(view)};
}

} // namespace

QList<OpenFile> filesOf(const ToolWindow& window, int number) {
    QList<OpenFile> files;
    const QString view = window.shownView();
    for (const QString& path : window.paths())
        files.append({window.kind(), path, number, view});
    if (files.isEmpty() && isWithoutFiles(window.kind()))
        files.append({window.kind(), {}, number, view});
    return files;
}

void rememberSession(Workspace& workspace, const QList<OpenFile>& files) {
    QStringList entries;
    for (const OpenFile& file : files)
        entries.append(headOf(file) + ' ' + file.path);
    workspace.remember(SessionKey, entries);
    for (const auto& [key, kind] : OlderKeys)
        if (!workspace.remembered(key).isEmpty())
            workspace.remember(key, {});
}

QList<OpenFile> rememberedSession(const Workspace& workspace) {
    QList<OpenFile> files;
    for (const QString& entry : workspace.remembered(SessionKey))
        files.append(openFileOf(entry.section(' ', 0, 0), entry.section(' ', 1)));
    for (const auto& [key, kind] : OlderKeys)
        for (const QString& path : workspace.remembered(key))
            files.append({kind, path});
    files.removeIf([](const OpenFile& file) {
        const bool isOfNone = file.path.isEmpty() && isWithoutFiles(file.kind);
        return !isOfNone && !QFileInfo::exists(file.path);
    });
    return files;
}

} // namespace kavela::desktop
