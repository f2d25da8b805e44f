#include "desktop/shell/file_names.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <filesystem>
#include <system_error>

namespace kavela::desktop {

namespace {

/// The last folders of a path, the nearest one last.
QString folders(const QString& path, qsizetype count) {
    const QStringList parts = QFileInfo(path).absolutePath().split('/', Qt::SkipEmptyParts);
    return parts.mid(std::max<qsizetype>(parts.size() - count, 0)).join('/');
}

qsizetype depthOf(const QString& path) {
    return QFileInfo(path).absolutePath().count('/');
}

} // namespace

QString canonicalPath(const QString& file) {
    const QFileInfo info(file);
    return info.exists()
               ? info.canonicalFilePath()
               : QFileInfo(info.absolutePath()).canonicalFilePath() + '/' + info.fileName();
}

bool isSameFile(const QString& one, const QString& other) {
    const QString left = canonicalPath(one);
    const QString right = canonicalPath(other);
    if (left == right)
        return true;
    std::error_code notThere;
    return left.compare(right, Qt::CaseInsensitive) == 0 &&
           std::filesystem::equivalent(left.toStdString(), right.toStdString(), notThere);
}

QStringList namesToldApart(const QStringList& paths) {
    QStringList names;
    for (const QString& path : paths) {
        const QString name = QFileInfo(path).completeBaseName();
        QStringList others;
        for (const QString& other : paths)
            if (other != path && QFileInfo(other).completeBaseName() == name)
                others.append(other);
        qsizetype count = 1;
        const auto isShared = [&](const QString& other) {
            return folders(other, count) == folders(path, count);
        };
        while (count < depthOf(path) && std::ranges::any_of(others, isShared))
            ++count;
        names.append(others.isEmpty() ? name : QString("%1 (%2)").arg(name, folders(path, count)));
    }
    return names;
}

} // namespace kavela::desktop
