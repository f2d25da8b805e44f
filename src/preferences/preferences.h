#pragma once

#include "app/preference_table.h"

#include <filesystem>
#include <memory>

namespace kavela {

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
