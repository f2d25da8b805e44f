#include "desktop/shell/autosave.h"

#include "common/error.h"
#include "common/safe_file.h"
#include "desktop/shell/disk_worker.h"
#include "desktop/shell/file_names.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFile>

#include <array>
#include <exception>
#include <utility>

namespace kavela::desktop {

namespace {

constexpr qsizetype MostPutAside = 20;

constexpr std::array Parts{".work", ".path", ".tool"};

std::optional<std::string> contentOf(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    return file.readAll().toStdString();
}

std::string messageOf(const std::exception_ptr& fault) {
    try {
        std::rethrow_exception(fault);
    } catch (const std::exception& error) {
        return error.what();
    }
}

/// The last few that were put aside stay.
void moveAside(const QString& slot, const QString& aside) {
    QDir().mkpath(aside);
    const QString stamp = QDateTime::currentDateTimeUtc().toString("yyyyMMdd-hhmmsszzz");
    for (const char* const part : Parts)
        QFile::rename(slot + part, aside + '/' + stamp + part);
    const QStringList kept = QDir(aside).entryList({"*.work"}, QDir::Files, QDir::Name);
    for (qsizetype i = 0; i < kept.size() - MostPutAside; ++i)
        for (const char* const part : Parts)
            QFile::remove(aside + '/' + kept[i].chopped(5) + part);
}

} // namespace

/// The content stands in SLOT.work, the document's path in SLOT.path, its tool in SLOT.tool. Work
/// that was done through a link is found under the file's own path too.
QString Autosave::slot(const QString& path) const {
    const QByteArray hash =
        QCryptographicHash::hash(canonicalPath(path).toUtf8(), QCryptographicHash::Sha1);
    return m_folder + '/' + QString::fromLatin1(hash.toHex().left(16));
}

void Autosave::keep(const QString& path, const QString& tool, Content content, QObject* context,
                    Failed failed) const {
    const auto write = [folder = m_folder, slot = slot(path), path, tool,
                        content = std::move(content)] {
        if (!QDir().mkpath(folder))
            throw FileError(folder.toStdString(), "the folder cannot be made");
        const std::string text = content();
        writeFileSafely((slot + ".path").toStdString(), path.toStdString());
        writeFileSafely((slot + ".tool").toStdString(), tool.toStdString());
        writeFileSafely((slot + ".work").toStdString(), text);
    };
    disk::run(context, write, [failed = std::move(failed)](std::exception_ptr fault) {
        if (fault)
            failed(messageOf(fault));
    });
}

void Autosave::forget(const QString& path) const {
    disk::run([slot = slot(path)] {
        for (const char* const part : Parts)
            QFile::remove(slot + part);
    });
}

void Autosave::putAside(const QString& path) const {
    disk::run([folder = m_folder, slot = slot(path)] { moveAside(slot, folder + "/given up"); });
}

std::optional<std::string> Autosave::find(const QString& path) const {
    disk::waitForAll();
    return contentOf(slot(path) + ".work");
}

std::vector<Autosave::Found> Autosave::all() const {
    disk::waitForAll();
    std::vector<Found> found;
    for (const QString& name : QDir(m_folder).entryList({"*.work"}, QDir::Files, QDir::Time)) {
        const QString stem = m_folder + '/' + name.chopped(5);
        const auto path = contentOf(stem + ".path");
        auto content = contentOf(stem + ".work");
        const auto tool = contentOf(stem + ".tool");
        if (path && content)
            found.push_back({QString::fromStdString(*path),
                             QString::fromStdString(tool.value_or(std::string())),
                             std::move(*content)});
    }
    return found;
}

} // namespace kavela::desktop
