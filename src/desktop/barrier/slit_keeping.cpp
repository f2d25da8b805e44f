#include "desktop/barrier/slit_keeping.h"

#include "common/error.h"
#include "common/json_encode.h"
#include "common/kept_file.h"
#include "desktop/shell/background_work.h"
#include "desktop/shell/disk_worker.h"
#include "desktop/shell/qt_text.h"

#include <QDir>

#include <memory>
#include <stdexcept>
#include <utility>

namespace kavela::desktop {

namespace {

/// The lines that were changed last in the folder of a film, but for its own. Those that cannot be
/// read are told where they are opened.
std::optional<SlitNeighbour> neighbourOf(const std::filesystem::path& own) {
    const QString folder = qtText(own.parent_path().string());
    const QFileInfoList files =
        QDir(folder).entryInfoList({QStringLiteral("*.slit.json")}, QDir::Files, QDir::Time);
    for (const QFileInfo& file : files) {
        const std::filesystem::path path = file.filePath().toStdString();
        if (path.filename() == own.filename())
            continue;
        try {
            auto read = readSlitFile(path);
            if (read && !read->lines.empty())
                return SlitNeighbour{file.fileName().chopped(QStringView(u".slit.json").size()),
                                     std::move(*read)};
        } catch (const std::runtime_error&) {
            continue;
        }
    }
    return std::nullopt;
}

} // namespace

void SlitKeeping::open(const QString& film) {
    m_film = film;
    m_file = {};
    m_neighbour.reset();
    m_isUnreadable = false;
    m_isReading = true;
    emit opened();
    const auto path = slitFileOf(film.toStdString());
    const auto read = std::make_shared<Read>();
    // Behind what another window of this film still has to write.
    disk::runAwaited(
        *this,
        [path, read] {
            read->neighbour = neighbourOf(path);
            read->file = readSlitFile(path);
        },
        [this, read, number = ++m_readings,
         name = qtText(path.filename().string())](const std::exception_ptr& fault) {
            if (number == m_readings) // else another film was opened meanwhile
                takeRead(std::move(*read), name, fault);
        });
    if (m_isReading)
        emit changed();
}

void SlitKeeping::takeRead(Read read, const QString& name, const std::exception_ptr& fault) {
    m_isReading = false;
    m_neighbour = std::move(read.neighbour);
    m_isUnreadable = fault != nullptr;
    if (fault)
        emit failed(tr("The lines in %1 cannot be read: %2. The file is put aside before new lines "
                       "take its name.")
                        .arg(name, qtText(messageOf(fault))));
    else if (read.file)
        m_file = std::move(*read.file);
    else if (m_neighbour) // one race is timed at one point
        m_file.timedAt = m_neighbour->file.timedAt;
    emit changed();
}

void SlitKeeping::edit(const std::function<void(slitfile002&)>& change) {
    if (m_isReading) { // nothing is written over lines that are not known yet
        emit failed(tr("The lines of this film are still being read. Try again in a moment."));
        emit changed();
        return;
    }
    const slitfile002 before = m_file;
    change(m_file);
    if (encode(m_file) != encode(before)) // a click on a line moves it nowhere
        emit edited(before);
    write();
    emit changed();
}

void SlitKeeping::putBack(slitfile002 file) {
    if (m_isReading)
        return;
    file.searches = std::move(m_file.searches);
    m_file = std::move(file);
    write();
    emit changed();
}

void SlitKeeping::keepSearches(std::vector<slitsearch001> searches) {
    if (m_isReading)
        return;
    m_file.searches = std::move(searches);
    write();
}

void SlitKeeping::write() {
    if (m_film.isEmpty())
        return;
    const auto path = slitFileOf(m_film.toStdString());
    const bool isPutAside = std::exchange(m_isUnreadable, false);
    disk::run(
        *this,
        [file = m_file, path, isPutAside] {
            if (isPutAside &&
                keepPreviousFile(path, ".json", "It stays", [](std::string_view) {}).empty())
                throw FileError(path, "what stands there could not be put aside");
            writeSlitFile(file, path);
        },
        [this, isPutAside,
         name = qtText(path.filename().string())](const std::exception_ptr& fault) {
            if (!fault)
                return;
            m_isUnreadable = m_isUnreadable || isPutAside;
            emit failed(
                tr("The lines could not be kept in %1: %2").arg(name, qtText(causeOf(fault))));
        });
}

} // namespace kavela::desktop
