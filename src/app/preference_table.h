#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

/// The user's choices that outlive a working session. One table of keys, kinds and defaults drives
/// the start-up, the readers and the settings page.
namespace kavela {

enum class PreferenceKind { Bool, Integer, String, Array, Url };

/// A URL as text; nothing when the preference exists but holds no URL.
struct PreferenceUrl {
    std::optional<std::string> text;

    friend bool operator==(const PreferenceUrl&, const PreferenceUrl&) = default;
};

/// A preference's value; the alternatives stand in the order of PreferenceKind.
using PreferenceValue =
    std::variant<bool, std::int64_t, std::string, std::vector<std::string>, PreferenceUrl>;

/// One line of the table.
struct PreferenceEntry {
    std::string_view key;
    PreferenceValue defaultValue;
    std::string_view meaning; ///< one sentence for the settings page

    [[nodiscard]] PreferenceKind kind() const {
        return static_cast<PreferenceKind>(defaultValue.index());
    }
};

/// Every preference that start-up creates, in the order in which it checks them. `lastdatatype` and
/// `autoloadPlanningOnline` are checked twice and stand here twice.
[[nodiscard]] std::span<const PreferenceEntry> preferenceTable();

/// The line of a key. Throws std::logic_error for a key that is not in the table.
[[nodiscard]] const PreferenceEntry& preferenceEntry(std::string_view key);

} // namespace kavela
