#include "desktop/barrier/slit_keeping.h"

#include "common/error.h"
#include "common/json_encode.h"
#include "common/kept_file.h"
#include "desktop/shell/background_work.h"
#include "desktop/shell/disk_worker.h"
#include "desktop/shell/qt_text.h"

#include <stdexcept>
#include <utility>

namespace kavela::desktop {

void SlitKeeping::open(const QString& film) {
    disk::waitForAll(); // what another window of this film still has to write
    m_film = film;
    m_file = {};
    m_isUnreadable = false;
    const auto path = slitFileOf(film.toStdString());
    try {
        m_file = readSlitFile(path).value_or(slitfile001());
    } catch (const std::runtime_error& error) {
        m_isUnreadable = true;
        emit failed(tr("The lines in %1 cannot be read: %2. The file is put aside before new lines "
                       "take its name.")
                        .arg(qtText(path.filename().string()), qtText(error.what())));
    }
    emit opened();
    emit changed();
}

void SlitKeeping::edit(const std::function<void(slitfile001&)>& change) {
    const slitfile001 before = m_file;
    change(m_file);
    if (encode(m_file) != encode(before)) // a click on a line moves it nowhere
        emit edited(before);
    write();
    emit changed();
}

void SlitKeeping::putBack(slitfile001 file) {
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
