#include "desktop/shell/file_reading.h"

#include "desktop/shell/workspace.h"

#include <string_view>
#include <utility>

namespace kavela::desktop {

FileReading followedBy(FileReading reading, std::function<void()> then) {
    return [reading = std::move(reading), then = std::move(then)]() -> TakeIn {
        return [take = reading(), then] {
            if (!take())
                return false;
            then();
            return true;
        };
    };
}

DiagnosticLog ReadingNotes::log() {
    return [this](std::string_view line) { m_lines.emplace_back(line); };
}

void ReadingNotes::tell(const Workspace& workspace, QWidget* over) const {
    for (const std::string& line : m_lines)
        workspace.log()(line);
    for (const Alert& alert : m_alerts)
        workspace.showAlert(alert, over);
}

} // namespace kavela::desktop
