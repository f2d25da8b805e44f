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

using Tools = std::vector<Tool>;

} // namespace kavela::desktop
