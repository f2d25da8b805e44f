#pragma once

#include "app/preference_file.h"
#include "cli/painting.h"

namespace kavela::cli {

/// The user's preferences, in a program with or without their store. Asking throws NeedsPainting
/// where the store is needed and missing, so a command asks before it prints or writes anything.
class UserPreferences {
public:
    explicit UserPreferences(const Painting* painting) : m_painting(painting) {}

    [[nodiscard]] bool boolean(std::string_view key) const { return std::get<bool>(value(key)); }
    [[nodiscard]] std::int64_t integer(std::string_view key) const {
        return std::get<std::int64_t>(value(key));
    }
    [[nodiscard]] std::string string(std::string_view key) const {
        return std::get<std::string>(value(key));
    }

private:
    [[nodiscard]] PreferenceValue value(std::string_view key) const {
        if (m_painting)
            return m_painting->preference(key);
        const auto plain = m_file.value(key);
        return plain ? *plain : needed(m_painting).preference(key);
    }

    const Painting* m_painting;
    PreferenceFile m_file;
};

} // namespace kavela::cli
