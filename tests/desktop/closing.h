#pragma once

#include "desktop/shell/tool_window.h"

#include <QTest>

namespace kavela::test {

/// Closes a window as the coach does, and waits for what it saves: whether it is gone then.
inline bool closes(desktop::ToolWindow& window) {
    window.close();
    return QTest::qWaitFor([&] { return !window.isClosing(); }) && window.isHidden();
}

} // namespace kavela::test
