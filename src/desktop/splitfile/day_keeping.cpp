#include "desktop/splitfile/day_keeping.h"

#include "common/error.h"
#include "common/kept_file.h"
#include "desktop/shell/background_work.h"
#include "desktop/shell/disk_worker.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/workspace.h"

#include <stdexcept>
#include <utility>

namespace kavela::desktop {

DayKeeping::Day DayKeeping::read(const QString& splitFile, QWidget* over) {
    disk::waitForAll(); // what another document of this file still has to write
    const auto path = raceDayPath(splitFile.toStdString());
    m_isUnreadable = false;
    m_kept = std::make_shared<RaceDay>();
    try {
        if (auto day = readRaceDay(path))
            m_kept = std::make_shared<RaceDay>(std::move(*day));
    } catch (const std::runtime_error& error) {
        m_isUnreadable = true;
        m_workspace.showAlert(
            {"", tr("The race day %1 cannot be read: %2. It stays as it is; a new one takes its "
                    "name only after it was put aside.")
                     .arg(qtText(path.filename().string()), qtText(error.what()))
                     .toStdString()},
            over);
    }
    return m_kept;
}

void DayKeeping::keep(const Day& day, const QString& splitFile) {
    if (day == m_kept || splitFile.isEmpty())
        return;
    m_kept = day;
    const auto path = raceDayPath(splitFile.toStdString());
    const bool isPutAside = std::exchange(m_isUnreadable, false);
    disk::run(
        *this,
        [day, path, isPutAside] {
            if (isPutAside &&
                keepPreviousFile(path, ".kvday", "It stays", [](std::string_view) {}).empty())
                throw FileError(path, "what stands there could not be put aside");
            writeRaceDay(*day, path);
        },
        [this, isPutAside](const std::exception_ptr& fault) {
            if (!fault)
                return;
            m_isUnreadable = m_isUnreadable || isPutAside;
            m_kept.reset();
            emit notKept(qtText(messageOf(fault)));
        });
}

} // namespace kavela::desktop
