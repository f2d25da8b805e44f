#pragma once

#include "common/alerts.h"
#include "common/log.h"

#include <string>
#include <vector>

namespace kavela::test {

/// Takes log lines and alerts, for tests that look at them.
struct Recorder : Alerts {
    std::vector<std::string> lines;
    std::vector<std::string> alerts;

    void show(const Alert& alert) override { alerts.push_back(alert.text); }
    [[nodiscard]] DiagnosticLog log() {
        return [this](std::string_view line) { lines.emplace_back(line); };
    }
};

} // namespace kavela::test
