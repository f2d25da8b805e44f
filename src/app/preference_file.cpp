#include "app/preference_file.h"

#include "common/error.h"
#include "common/text_file.h"

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <functional>
#include <vector>

namespace kavela {

namespace {

namespace fs = std::filesystem;

std::string environment(const char* name) {
    const char* const text = std::getenv(name);
    return text ? text : "";
}

/// The folder of the user's configuration; nothing where it is given in an unusual way.
std::optional<fs::path> userFolder() {
    const fs::path named = environment("XDG_CONFIG_HOME");
    const fs::path folder = named.empty() ? fs::path(environment("HOME")) / ".config" : named;
    return folder.is_absolute() ? std::optional(folder) : std::nullopt;
}

/// The folders in which an administrator gives all users what they have not chosen themselves.
std::vector<fs::path> sharedFolders() {
    std::string list = environment("XDG_CONFIG_DIRS");
    if (list.empty())
        list = "/etc/xdg";
    std::vector<fs::path> folders;
    for (std::size_t start = 0; start <= list.size();) {
        const std::size_t end = std::min(list.find(':', start), list.size());
        folders.emplace_back(list.substr(start, end - start));
        start = end + 1;
    }
    return folders;
}

bool isThere(const fs::path& file) {
    std::error_code error;
    return fs::symlink_status(file, error).type() != fs::file_type::not_found;
}

/// Whether the store looks into files beyond the user's own.
bool hasFurtherFiles(const fs::path& user) {
    if (isThere(user / "Kavela.conf"))
        return true;
    return std::ranges::any_of(sharedFolders(), [](const fs::path& folder) {
        return isThere(folder / "Kavela" / "Kavela.conf") || isThere(folder / "Kavela.conf");
    });
}

std::string_view trimmed(std::string_view text) {
    constexpr std::string_view Blanks = " \t";
    const std::size_t first = text.find_first_not_of(Blanks);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(Blanks) + 1 - first);
}

/// Whether a line ends where its line feed stands, which one within quotes or behind a backslash
/// does not.
bool endsItself(std::string_view line) {
    bool isQuoted = false;
    for (std::size_t i = 0; i < line.size(); ++i) {
        if (line[i] == '"')
            isQuoted = !isQuoted;
        else if (line[i] == '\\' && ++i == line.size())
            return false;
    }
    return !isQuoted;
}

/// Whether the store may take a character of the line for a blank or for the end of the line.
bool hasControls(std::string_view line) {
    return std::ranges::any_of(line, [](unsigned char c) { return c < ' ' && c != '\t'; });
}

bool isHeading(std::string_view line) {
    return line.size() > 2 && line.front() == '[' && line.find(']') == line.size() - 1;
}

/// Whether a group of this name holds the keys that belong to none.
bool isGeneral(std::string_view group) {
    constexpr std::string_view General = "general";
    return std::ranges::equal(group, General,
                              [](char c, char small) { return (c | 0x20) == small; });
}

bool isWord(std::string_view text) {
    return !text.empty() && std::ranges::all_of(text, [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
               c == '-' || c == '_' || c == '.';
    });
}

/// A word as a value of the kind; nothing where it cannot be read as one.
std::optional<PreferenceValue> readAs(PreferenceKind kind, const std::string& word) {
    if (kind == PreferenceKind::String)
        return word;
    if (kind == PreferenceKind::Bool && (word == "true" || word == "false"))
        return word == "true";
    std::int64_t number = 0;
    const auto [stop, error] = std::from_chars(word.data(), word.data() + word.size(), number);
    const bool isWhole = error == std::errc() && stop == word.data() + word.size();
    if (kind == PreferenceKind::Integer && isWhole)
        return number;
    return std::nullopt;
}

} // namespace

PreferenceFile::PreferenceFile() {
    const auto user = userFolder();
    if (user && !hasFurtherFiles(*user))
        m_texts = textsOf(*user / "Kavela" / "Kavela.conf");
}

PreferenceFile::PreferenceFile(const fs::path& file) : m_texts(textsOf(file)) {}

std::optional<PreferenceValue> PreferenceFile::value(std::string_view key) const {
    const PreferenceEntry& entry = preferenceEntry(key);
    if (!m_texts)
        return std::nullopt;
    const auto text = m_texts->find(key);
    if (text == m_texts->end())
        return entry.defaultValue;
    const bool isList =
        entry.kind() == PreferenceKind::Array || entry.kind() == PreferenceKind::Url;
    if (isList || !isWord(text->second))
        return std::nullopt;
    return readAs(entry.kind(), text->second).value_or(entry.defaultValue);
}

std::optional<PreferenceFile::Texts> PreferenceFile::textsOf(const fs::path& file) {
    if (!isThere(file))
        return Texts();
    try {
        return parsed(readTextFile(file));
    } catch (const FileError&) {
        return std::nullopt;
    } catch (const DecodeError&) {
        return std::nullopt;
    }
}

std::optional<PreferenceFile::Texts> PreferenceFile::parsed(std::string_view content) {
    Texts texts;
    bool isInGeneral = true;
    while (!content.empty()) {
        const std::size_t end = std::min(content.find('\n'), content.size());
        std::string_view line = content.substr(0, end);
        content.remove_prefix(std::min(end + 1, content.size()));
        if (line.ends_with('\r'))
            line.remove_suffix(1);
        line = trimmed(line);
        if (hasControls(line))
            return std::nullopt;
        if (line.empty() || line.front() == ';')
            continue;
        const std::size_t equals = line.find('=');
        const bool isGroup = isHeading(line);
        if (!endsItself(line) || (line.front() == '[' ? !isGroup : equals == line.npos))
            return std::nullopt;
        const std::string_view name = trimmed(line.substr(0, equals));
        if (isGroup)
            isInGeneral = isGeneral(trimmed(line.substr(1, line.size() - 2)));
        else if (isInGeneral && !isWord(name))
            return std::nullopt; // may be another key's name with escaped letters
        else if (isInGeneral)
            texts[std::string(name)] = trimmed(line.substr(equals + 1));
    }
    return texts;
}

} // namespace kavela
