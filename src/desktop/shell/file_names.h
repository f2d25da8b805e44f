#pragma once

#include <QString>
#include <QStringList>

/// How files are known and named.
namespace kavela::desktop {

/// A path by which a file is known however it is named; it need not be there yet.
[[nodiscard]] QString canonicalPath(const QString& file);

/// Whether two paths lead to one file: through links, or written in other letter case on a disk
/// that does not tell cases apart.
[[nodiscard]] bool isSameFile(const QString& one, const QString& other);

/// A name for each of some files, short but told apart: "cup", or "cup (june)" and "cup (july)"
/// where several are called the same, with as much of the folder as that takes.
[[nodiscard]] QStringList namesToldApart(const QStringList& paths);

} // namespace kavela::desktop
