#pragma once

#include "desktop/shell/edited_file.h"
#include "desktop/shell/tool_window.h"

#include <QTest>

#include <functional>
#include <memory>
#include <optional>

namespace kavela::test {

/// Begins what tells later whether it was written, and waits until it does.
inline bool isWritten(const std::function<void(std::function<void(bool)> told)>& begin) {
    constexpr int WaitedFor = 30000; // ms
    const auto answer = std::make_shared<std::optional<bool>>();
    begin([answer](bool isSaved) { *answer = isSaved; });
    return QTest::qWaitFor([&] { return answer->has_value(); }, WaitedFor) && **answer;
}

/// Saves as the coach does, and waits until it is written or refused: whether it is in the file.
inline bool saved(desktop::ToolWindow& window) {
    return isWritten([&](auto told) { window.saveBeside(std::move(told)); });
}

inline bool savedAs(desktop::ToolWindow& window, const QString& path) {
    return isWritten([&](auto told) { window.saveToBeside(path, std::move(told)); });
}

/// The same of a document, which takes nothing over from fields.
inline bool saved(desktop::EditedFile& document) {
    return isWritten([&](auto told) { document.saveBeside(nullptr, std::move(told)); });
}

inline bool savedAs(desktop::EditedFile& document, const QString& path) {
    return isWritten([&](auto told) { document.saveAsBeside(path, nullptr, std::move(told)); });
}

} // namespace kavela::test
