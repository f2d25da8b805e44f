#include "desktop/folder/thumbnail_store.h"

#include "common/error.h"
#include "desktop/shell/qt_text.h"
#include "video/thumbnail.h"

#include <QBuffer>
#include <QCryptographicHash>
#include <QDataStream>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPainter>
#include <QSaveFile>
#include <QStandardPaths>

#include <algorithm>

namespace kavela::desktop {

namespace {

constexpr int MostLooksAtOnce = 2;
constexpr int MostThumbnails = 5'000; ///< on the disk: some 60 MB
constexpr int PictureQuality = 85;    ///< percent
constexpr quint32 LookVersion = 1;

QString keptLookOf(const QString& folder, const QString& film) {
    const QFileInfo info(film);
    const QString key = QStringLiteral("%1\n%2\n%3")
                            .arg(info.absoluteFilePath())
                            .arg(info.size())
                            .arg(info.lastModified().toMSecsSinceEpoch());
    const auto hash = QCryptographicHash::hash(key.toUtf8(), QCryptographicHash::Sha1);
    return folder + '/' + QString::fromLatin1(hash.toHex()) + QStringLiteral(".look");
}

std::optional<FilmLook> readLook(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    QDataStream stream(&file);
    stream.setVersion(QDataStream::Qt_6_0);
    quint32 version = 0;
    double seconds = 0;
    QByteArray picture;
    stream >> version >> seconds >> picture;
    FilmLook look;
    if (stream.status() != QDataStream::Ok || version != LookVersion ||
        !look.picture.loadFromData(picture))
        return std::nullopt;
    if (seconds > 0)
        look.seconds = seconds;
    return look;
}

/// One that cannot be kept is made again the next time.
void keepLook(const QString& path, const FilmLook& look) {
    QByteArray picture;
    QBuffer buffer(&picture);
    if (!QDir().mkpath(QFileInfo(path).path()) || !buffer.open(QIODevice::WriteOnly) ||
        !look.picture.save(&buffer, "JPG", PictureQuality))
        return;
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return;
    QDataStream stream(&file);
    stream.setVersion(QDataStream::Qt_6_0);
    stream << LookVersion << look.seconds.value_or(0) << picture;
    if (stream.status() == QDataStream::Ok)
        (void)file.commit();
}

/// The oldest go.
void thinOutLooks(const QString& folder) {
    const QFileInfoList kept = QDir(folder).entryInfoList({"*.look"}, QDir::Files, QDir::Time);
    for (const QFileInfo& file : kept.mid(std::min<qsizetype>(MostThumbnails, kept.size())))
        QFile::remove(file.filePath());
}

/// Every one is as large, so that the names beside them stand in line.
QImage smallLook(const QImage& picture) {
    QImage small(ThumbnailStore::SmallBox, QImage::Format_ARGB32_Premultiplied);
    small.fill(Qt::transparent);
    if (picture.isNull())
        return small;
    const QImage scaled =
        picture.scaled(small.size(), Qt::KeepAspectRatio, Qt::SmoothTransformation);
    QRect place(QPoint(), scaled.size());
    place.moveCenter(small.rect().center());
    QPainter(&small).drawImage(place.topLeft(), scaled);
    return small;
}

FilmLook lookAt(const QString& film, const QString& folder, const std::stop_token& stop) {
    const QString kept = folder.isEmpty() ? QString() : keptLookOf(folder, film);
    if (!kept.isEmpty())
        if (auto look = readLook(kept))
            return *look;
    FilmLook look;
    try {
        const Thumbnail made = readThumbnail(
            film.toStdString(), {ThumbnailStore::Box.width(), ThumbnailStore::Box.height()}, stop);
        look.seconds = made.seconds;
        if (made.picture.pixels)
            look.picture =
                QImage(made.picture.pixels.get(), made.picture.width, made.picture.height,
                       made.picture.bytesPerLine, QImage::Format_RGB32)
                    .copy();
    } catch (const FileError& error) {
        look.fault = QString::fromStdString(error.reason());
    }
    if (!kept.isEmpty() && !look.picture.isNull())
        keepLook(kept, look);
    return look;
}

} // namespace

QString userThumbnailFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::CacheLocation) +
           QStringLiteral("/thumbnails");
}

ThumbnailStore::ThumbnailStore(QString folder, QObject* parent)
    : QObject(parent), m_folder(std::move(folder)) {
    if (!m_folder.isEmpty())
        m_work.run([kept = m_folder] { thinOutLooks(kept); }, [] {});
}

void ThumbnailStore::ask(const QStringList& films) {
    m_waiting.clear();
    for (const QString& film : films)
        if (!m_looks.contains(film) && !m_running.contains(film))
            m_waiting.append(film);
    startNext();
}

void ThumbnailStore::startNext() {
    while (m_running.size() < MostLooksAtOnce && !m_waiting.isEmpty()) {
        const QString film = m_waiting.takeFirst();
        m_running.insert(film);
        m_work.run(
            [film, kept = m_folder](const WorkSteps& steps) {
                FilmLook look = lookAt(film, kept, steps.stopToken());
                look.small = smallLook(look.picture);
                return look;
            },
            [this, film, generation = m_generation](FilmLook look) {
                if (generation != m_generation)
                    return;
                m_running.remove(film);
                m_looks.insert(film, std::move(look));
                startNext();
                emit looked(film);
            },
            {.failed = [this, film, generation = m_generation](const std::exception_ptr& fault) {
                if (generation != m_generation)
                    return;
                m_running.remove(film);
                m_looks.insert(film, {.fault = qtText(messageOf(fault))});
                startNext();
                emit looked(film);
            }});
    }
}

const FilmLook* ThumbnailStore::lookOf(const QString& film) const {
    const auto look = m_looks.constFind(film);
    return look == m_looks.constEnd() ? nullptr : &*look;
}

void ThumbnailStore::rename(const QString& from, const QString& to) {
    if (m_looks.contains(from))
        m_looks.insert(to, m_looks.take(from));
}

void ThumbnailStore::forget() {
    ++m_generation;
    m_waiting.clear();
    m_running.clear();
    m_looks.clear();
}

} // namespace kavela::desktop
