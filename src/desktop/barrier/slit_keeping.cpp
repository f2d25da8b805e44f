#include "desktop/barrier/slit_keeping.h"

#include "common/error.h"
#include "common/json_encode.h"
#include "common/kept_file.h"
#include "desktop/shell/background_work.h"
#include "desktop/shell/disk_worker.h"
#include "desktop/shell/qt_text.h"

#include <memory>
#include <utility>

namespace kavela::desktop {

void SlitKeeping::open(const QString& film) {
    m_film = film;
    m_file = {};
    m_isUnreadable = false;
    m_isReading = true;
    emit opened();
    const auto path = slitFileOf(film.toStdString());
    const auto read = std::make_shared<slitfile001>();
    // Behind what another window of this film still has to write.
    disk::runAwaited(
        *this, [path, read] { *read = readSlitFile(path).value_or(slitfile001()); },
        [this, read, number = ++m_readings,
         name = qtText(path.filename().string())](const std::exception_ptr& fault) {
            if (number == m_readings) // else another film was opened meanwhile
                takeRead(std::move(*read), name, fault);
        });
    if (m_isReading)
        emit changed();
}

void SlitKeeping::takeRead(slitfile001 file, const QString& name, const std::exception_ptr& fault) {
    m_isReading = false;
    m_isUnreadable = fault != nullptr;
    if (fault)
        emit failed(tr("The lines in %1 cannot be read: %2. The file is put aside before new lines "
                       "take its name.")
                        .arg(name, qtText(messageOf(fault))));
    else
        m_file = std::move(file);
    emit changed();
}

void SlitKeeping::edit(const std::function<void(slitfile001&)>& change) {
    if (m_isReading) { // nothing is written over lines that are not known yet
        emit failed(tr("The lines of this film are still being read. Try again in a moment."));
        emit changed();
        return;
    }
    const slitfile001 before = m_file;
    change(m_file);
    if (encode(m_file) != encode(before)) // a click on a line moves it nowhere
        emit edited(before);
    write();
    emit changed();
}

void SlitKeeping::putBack(slitfile001 file) {
    if (m_isReading)
        return;
    m_file = std::move(file);
    write();
    emit changed();
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
