#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
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

/// The platform's own per-user store.
class Preferences {
public:
    /// The user's own preferences.
    Preferences();
    /// A store in a file of its own.
    explicit Preferences(const std::filesystem::path& file);
    Preferences(Preferences&&) noexcept;
    Preferences& operator=(Preferences&&) noexcept;
    ~Preferences();

    /// Whether the key exists, whatever it holds.
    [[nodiscard]] bool contains(std::string_view key) const;

    /// The value under a key of the table; its default when the key is missing or holds a value of
    /// another kind. Throws std::logic_error for a key that is not in the table.
    [[nodiscard]] PreferenceValue value(std::string_view key) const;
    [[nodiscard]] bool boolean(std::string_view key) const;
    [[nodiscard]] std::int64_t integer(std::string_view key) const;
    [[nodiscard]] std::string string(std::string_view key) const;
    [[nodiscard]] std::vector<std::string> array(std::string_view key) const;
    [[nodiscard]] std::optional<std::string> url(std::string_view key) const;

    /// The text under a key outside the table; nothing when there is none or it is no text.
    [[nodiscard]] std::optional<std::string> rawText(std::string_view key) const;

    /// The list under a key outside the table; empty when there is none.
    [[nodiscard]] std::vector<std::string> rawList(std::string_view key) const;

    /// Stores a value under a key.
    void set(std::string_view key, const PreferenceValue& value);

private:
    struct Store;
    std::unique_ptr<Store> m_store;
};

} // namespace kavela
