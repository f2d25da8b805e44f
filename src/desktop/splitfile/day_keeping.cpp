#include "desktop/splitfile/day_keeping.h"

#include "common/error.h"
#include "common/kept_file.h"
#include "desktop/shell/background_work.h"
#include "desktop/shell/disk_worker.h"
#include "desktop/shell/file_names.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/workspace.h"

#include <exception>
#include <filesystem>
#include <map>
#include <mutex>
#include <stdexcept>
#include <utility>

namespace kavela::desktop {

namespace {

/// The days that have yet to reach their files, of every document.
class DaysUnderWay {
public:
    void add(const QString& file, const DayKeeping::Day& day) {
        const std::lock_guard lock(m_mutex);
        m_days[file] = day;
    }
    /// It is in its file, or could not be written; a later one stays.
    void end(const QString& file, const DayKeeping::Day& day) {
        const std::lock_guard lock(m_mutex);
        if (const auto found = m_days.find(file); found != m_days.end() && found->second == day)
            m_days.erase(found);
    }
    /// Null for none.
    [[nodiscard]] DayKeeping::Day find(const QString& file) {
        const std::lock_guard lock(m_mutex);
        const auto found = m_days.find(file);
        return found == m_days.end() ? nullptr : found->second;
    }

private:
    std::mutex m_mutex;
    std::map<QString, DayKeeping::Day> m_days;
};

DaysUnderWay& daysUnderWay() {
    static DaysUnderWay days;
    return days;
}

void writeDay(const RaceDay& day, const std::filesystem::path& path, bool isPutAside) {
    if (isPutAside && keepPreviousFile(path, ".kvday", "It stays", [](std::string_view) {}).empty())
        throw FileError(path, "what stands there could not be put aside");
    writeRaceDay(day, path);
}

} // namespace

/// What another document of this file still has to write is not waited for.
DayKeeping::Found DayKeeping::find(const QString& splitFile) {
    if (Day day = daysUnderWay().find(canonicalPath(splitFile)))
        return {std::move(day), {}};
    const auto path = raceDayPath(splitFile.toStdString());
    try {
        auto day = readRaceDay(path);
        return {std::make_shared<RaceDay>(day ? std::move(*day) : RaceDay()), {}};
    } catch (const std::runtime_error& error) {
        return {std::make_shared<RaceDay>(),
                tr("The race day %1 cannot be read: %2. It stays as it is; a new one takes its "
                   "name only after it was put aside.")
                    .arg(qtText(path.filename().string()), qtText(error.what()))};
    }
}

DayKeeping::Day DayKeeping::take(const Found& found, QWidget* over) {
    m_kept = found.day;
    m_isUnreadable = !found.fault.isEmpty();
    if (m_isUnreadable)
        m_workspace.showAlert({"", found.fault.toStdString()}, over);
    return m_kept;
}

void DayKeeping::keep(const Day& day, const QString& splitFile) {
    if (day == m_kept || splitFile.isEmpty())
        return;
    m_kept = day;
    const auto path = raceDayPath(splitFile.toStdString());
    const bool isPutAside = std::exchange(m_isUnreadable, false);
    const QString file = canonicalPath(splitFile);
    daysUnderWay().add(file, day);
    disk::run(
        *this,
        [day, path, isPutAside, file] {
            const std::exception_ptr fault = faultOf([&] { writeDay(*day, path, isPutAside); });
            daysUnderWay().end(file, day);
            if (fault)
                std::rethrow_exception(fault);
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
