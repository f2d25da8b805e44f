#pragma once

#include <QIcon>
#include <QString>

#include <functional>
#include <vector>

namespace kavela::desktop {

/// One tool of the program, as the home screen shows it.
struct Tool {
    QString title;
    QString purpose; ///< one line
    QIcon icon;
    std::function<void()> open;
};

/// What belongs together, under one heading.
struct ToolGroup {
    QString title;
    std::vector<Tool> tools;
};

using Tools = std::vector<ToolGroup>;

} // namespace kavela::desktop
