#include "desktop/shell/autosave.h"

#include "common/error.h"
#include "common/safe_file.h"
#include "desktop/shell/background_work.h"
#include "desktop/shell/disk_worker.h"
#include "desktop/shell/file_names.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <array>
#include <exception>
#include <functional>
#include <iterator>
#include <memory>
#include <utility>

namespace kavela::desktop {

namespace {

constexpr qsizetype MostPutAside = 20;

constexpr std::array Parts{".work", ".path", ".tool", ".note"};
constexpr const char* GivenUp = "/given up";
constexpr const char* Postponed = "/later";

std::optional<std::string> contentOf(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    return file.readAll().toStdString();
}

void move(const QString& from, const QString& to) {
    QDir().mkpath(QFileInfo(to).path());
    for (const char* const part : Parts) {
        QFile::remove(to + part);
        QFile::rename(from + part, to + part);
    }
}

void write(const QString& slot, const Autosave::Label& label, const Autosave::Content& content) {
    const QString folder = QFileInfo(slot).path();
    if (!QDir().mkpath(folder))
        throw FileError(folder.toStdString(), "the folder cannot be made");
    const std::string text = content();
    writeFileSafely((slot + ".path").toStdString(), label.path.toStdString());
    writeFileSafely((slot + ".tool").toStdString(), label.tool.toStdString());
    writeFileSafely((slot + ".note").toStdString(), label.note.toStdString());
    writeFileSafely((slot + ".work").toStdString(), text);
}

QString lineOf(const QString& path) {
    return QString::fromStdString(contentOf(path).value_or(std::string()));
}

std::optional<Autosave::Found> foundAt(const QString& place, bool isGivenUp) {
    auto content = contentOf(place + ".work");
    if (!content)
        return std::nullopt;
    return Autosave::Found{
        {lineOf(place + ".path"), lineOf(place + ".tool"), lineOf(place + ".note")},
        QFileInfo(place + ".work").lastModified(),
        std::move(*content),
        place,
        isGivenUp};
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

std::vector<Autosave::Found> foundIn(const QString& folder, bool isGivenUp) {
    std::vector<Autosave::Found> found;
    for (const QString& name : QDir(folder).entryList({"*.work"}, QDir::Files, QDir::Time))
        if (auto work = foundAt(folder + '/' + name.chopped(5), isGivenUp);
            work && !work->label.path.isEmpty())
            found.push_back(std::move(*work));
    return found;
}

std::vector<Autosave::Found> earlierIn(const QString& folder) {
    std::vector<Autosave::Found> found = foundIn(folder + Postponed, false);
    std::ranges::move(foundIn(folder + GivenUp, true), std::back_inserter(found));
    std::ranges::stable_sort(found, std::ranges::greater(), &Autosave::Found::when);
    return found;
}

/// What was postponed is the work of its document again where that has none.
std::optional<Autosave::Found> lookedUp(const QString& folder, const QString& place,
                                        bool alsoPostponed) {
    const QString later = folder + Postponed + '/' + QFileInfo(place).fileName();
    if (alsoPostponed && !QFile::exists(place + ".work") && QFile::exists(later + ".work"))
        move(later, place);
    return foundAt(place, false);
}

} // namespace

/// The content stands in SLOT.work, its label beside it in files of their own. Work that was done
/// through a link is found under the file's own path too.
QString Autosave::slot(const QString& path) const {
    const QByteArray hash =
        QCryptographicHash::hash(canonicalPath(path).toUtf8(), QCryptographicHash::Sha1);
    return m_folder + '/' + QString::fromLatin1(hash.toHex().left(16));
}

void Autosave::keep(const Label& label, Content content, QObject* context, Kept kept) const {
    disk::run(
        *context,
        [slot = slot(label.path), label, content = std::move(content)] {
            write(slot, label, content);
        },
        [kept = std::move(kept)](const std::exception_ptr& fault) {
            kept(fault ? messageOf(fault) : std::string());
        });
}

void Autosave::forget(const QString& path) const {
    disk::run([slot = slot(path)] {
        for (const char* const part : Parts)
            QFile::remove(slot + part);
    });
}

void Autosave::settle(const QString& path) const {
    forget(path);
    disk::run([folder = m_folder, slot = slot(path)] {
        const QString later = folder + Postponed + '/' + QFileInfo(slot).fileName();
        if (QFile::exists(later + ".work"))
            moveAside(later, folder + GivenUp);
    });
}

void Autosave::putAside(const QString& path) const {
    disk::run([folder = m_folder, slot = slot(path)] { moveAside(slot, folder + GivenUp); });
}

void Autosave::postpone(const QString& path) const {
    disk::run([folder = m_folder, slot = slot(path)] {
        if (QFile::exists(slot + ".work")) // or what was postponed before would make room for it
            move(slot, folder + Postponed + '/' + QFileInfo(slot).fileName());
    });
}

void Autosave::look(const QString& path, bool alsoPostponed, QObject& context,
                    Looked looked) const {
    const auto found = std::make_shared<std::optional<Found>>();
    disk::runAwaited(
        context,
        [folder = m_folder, place = slot(path), alsoPostponed, found] {
            *found = lookedUp(folder, place, alsoPostponed);
        },
        [found, looked = std::move(looked)](const std::exception_ptr&) { looked(*found); });
}

void Autosave::listAll(QObject& context, Listed listed) const {
    const auto found = std::make_shared<std::vector<Found>>();
    disk::runAwaited(
        context, [folder = m_folder, found] { *found = foundIn(folder, false); },
        [found, listed = std::move(listed)](const std::exception_ptr&) { listed(*found); });
}

std::optional<Autosave::Found> Autosave::find(const QString& path, bool alsoPostponed) const {
    disk::waitForAll();
    return lookedUp(m_folder, slot(path), alsoPostponed);
}

std::vector<Autosave::Found> Autosave::all() const {
    disk::waitForAll();
    return foundIn(m_folder, false);
}

std::vector<Autosave::Found> Autosave::earlier() const {
    disk::waitForAll();
    return earlierIn(m_folder);
}

void Autosave::listEarlier(QObject& context, Listed listed) const {
    const auto found = std::make_shared<std::vector<Found>>();
    disk::run(
        context, [folder = m_folder, found] { *found = earlierIn(folder); },
        [found, listed = std::move(listed)](const std::exception_ptr&) { listed(*found); });
}

void Autosave::takeOver(const QString& folder) const {
    for (const char* const part : {"", Postponed, GivenUp})
        for (const QString& name : QDir(folder + part).entryList({"*.work"}, QDir::Files)) {
            const QString slot = '/' + name.chopped(5);
            if (QFile::exists(m_folder + part + slot + ".work"))
                moveAside(folder + part + slot, m_folder + GivenUp);
            else
                move(folder + part + slot, m_folder + part + slot);
        }
    for (const char* const part : {Postponed, GivenUp})
        QDir().rmdir(folder + part);
}

void Autosave::bringBack(const Found& earlier) const {
    disk::run([folder = m_folder, slot = slot(earlier.label.path), place = earlier.place] {
        if (QFile::exists(slot + ".work"))
            moveAside(slot, folder + GivenUp);
        move(place, slot);
    });
}

} // namespace kavela::desktop
