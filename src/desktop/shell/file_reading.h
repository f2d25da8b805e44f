#pragma once

#include "common/alerts.h"
#include "common/log.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

class QWidget;

namespace kavela::desktop {

class Workspace;

/// Takes over what was read, on the interface thread; false, after an alert, where it could not be
/// read. What was there before then stays.
using TakeIn = std::function<bool()>;
/// Reads a file, on any thread and maybe when its document is gone, of which it touches nothing.
using FileReading = std::function<TakeIn()>;

/// The same, and what is to follow once the file is taken over.
[[nodiscard]] FileReading followedBy(FileReading reading, std::function<void()> then);

/// What the plain libraries tell while they read, kept until it can be told on the interface
/// thread.
class ReadingNotes : public Alerts {
public:
    void show(const Alert& alert) override { m_alerts.push_back(alert); }
    /// Good as long as this is there.
    [[nodiscard]] DiagnosticLog log();
    void tell(const Workspace& workspace, QWidget* over) const;

private:
    std::vector<std::string> m_lines;
    std::vector<Alert> m_alerts;
};

} // namespace kavela::desktop
