#pragma once

#include <QString>

#include <filesystem>

namespace kavela::test {

inline QString pathText(const std::filesystem::path& path) {
    return QString::fromStdString(path.string());
}

} // namespace kavela::test
