#pragma once

#include "app/preference_table.h"

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace kavela {

/// The text file behind the store of preferences, read without the library of that store, which
/// takes longer to load than a table takes to print. Only what the store writes for flags, numbers
/// and single words is read here; what is written in any other way is left to the store, so that
/// both never read the same file differently.
class PreferenceFile {
public:
    /// The user's own preferences.
    PreferenceFile();
    /// A file of its own; one that does not exist holds nothing.
    explicit PreferenceFile(const std::filesystem::path& file);

    /// The value that `Preferences` gives for a key of the table; nothing where only the store can
    /// tell. Throws std::logic_error for a key that is not in the table.
    [[nodiscard]] std::optional<PreferenceValue> value(std::string_view key) const;

private:
    using Texts = std::map<std::string, std::string, std::less<>>;

    /// The texts under the keys that belong to no group; nothing where the file is not plain.
    static std::optional<Texts> textsOf(const std::filesystem::path& file);
    static std::optional<Texts> parsed(std::string_view content);

    std::optional<Texts> m_texts;
};

} // namespace kavela
