#include "desktop/shell/autosave.h"

#include "common/error.h"
#include "common/safe_file.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFile>

namespace kavela::desktop {

namespace {

constexpr qsizetype MostPutAside = 20;

std::optional<std::string> contentOf(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    return file.readAll().toStdString();
}

} // namespace

/// The content stands in SLOT.work, the document's path in SLOT.path.
QString Autosave::slot(const QString& path) const {
    const QByteArray hash = QCryptographicHash::hash(path.toUtf8(), QCryptographicHash::Sha1);
    return m_folder + '/' + QString::fromLatin1(hash.toHex().left(16));
}

void Autosave::keep(const QString& path, const std::string& content) const {
    if (!QDir().mkpath(m_folder))
        throw FileError(m_folder.toStdString(), "the folder cannot be made");
    writeFileSafely((slot(path) + ".path").toStdString(), path.toStdString());
    writeFileSafely((slot(path) + ".work").toStdString(), content);
}

void Autosave::forget(const QString& path) const {
    QFile::remove(slot(path) + ".work");
    QFile::remove(slot(path) + ".path");
}

void Autosave::putAside(const QString& path) const {
    const QString aside = m_folder + "/given up";
    QDir().mkpath(aside);
    const QString stamp = QDateTime::currentDateTimeUtc().toString("yyyyMMdd-hhmmsszzz");
    QFile::rename(slot(path) + ".work", aside + '/' + stamp + ".work");
    QFile::rename(slot(path) + ".path", aside + '/' + stamp + ".path");
    const QStringList kept = QDir(aside).entryList(QDir::Files, QDir::Name);
    for (qsizetype i = 0; i < kept.size() - 2 * MostPutAside; ++i)
        QFile::remove(aside + '/' + kept[i]);
}

std::optional<std::string> Autosave::find(const QString& path) const {
    return contentOf(slot(path) + ".work");
}

std::vector<Autosave::Found> Autosave::all() const {
    std::vector<Found> found;
    for (const QString& name : QDir(m_folder).entryList({"*.work"}, QDir::Files, QDir::Time)) {
        const QString stem = m_folder + '/' + name.chopped(5);
        const auto path = contentOf(stem + ".path");
        auto content = contentOf(stem + ".work");
        if (path && content)
            found.push_back({QString::fromStdString(*path), std::move(*content)});
    }
    return found;
}

} // namespace kavela::desktop
