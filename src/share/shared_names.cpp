#include "share/shared_names.h"

#include "common/folded_text.h"
#include "common/text.h"
#include "common/utf8.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>

namespace kavela::share {

namespace {

constexpr std::size_t LongestSharedName =
    200; ///< bytes: file systems end at 255, and parts have longer names

bool isControl(char32_t character) {
    // Also the marks that turn the direction of reading, by which "exe.kvx" is shown of another.
    return character < 0x20 || (character >= 0x7F && character < 0xA0) ||
           (character >= 0x202A && character <= 0x202E) ||
           (character >= 0x2066 && character <= 0x2069);
}

bool isDevice(std::string_view stem) {
    constexpr std::array<std::string_view, 4> Devices{"con", "prn", "aux", "nul"};
    const std::string name = folded(stem);
    if (std::ranges::find(Devices, name) != Devices.end())
        return true;
    return name.size() == 4 && (name.starts_with("com") || name.starts_with("lpt")) &&
           name[3] >= '1' && name[3] <= '9';
}

} // namespace

std::optional<std::string> faultOfName(std::string_view name) {
    if (name.empty() || name == "." || name == ".." || name.find('/') != std::string_view::npos ||
        name.find('\\') != std::string_view::npos)
        return say("Its name leads out of the folder.");
    if (!isUtf8(name))
        return say("Its name is no text.");
    if (name.size() > LongestSharedName)
        return say("Its name is too long.");
    for (std::string_view rest = name; !rest.empty();)
        if (isControl(takeCharacter(rest).value_or(U'\0')))
            return say("Its name has control characters.");
    return std::nullopt;
}

std::string windowsNote(std::string_view name) {
    constexpr std::string_view Forbidden = "<>:\"|?*";
    const bool isReserved = isDevice(name.substr(0, name.find('.'))) ||
                            name.find_first_of(Forbidden) != std::string_view::npos ||
                            name.ends_with('.') || name.ends_with(' ');
    return isReserved ? say("A computer with Windows cannot take this name.") : "";
}

bool isLeftOut(std::string_view name) {
    return name.starts_with('.') || name.ends_with(".part") || name.ends_with(".part.note") ||
           name.ends_with('~');
}

std::string conflictName(const std::string& path, const std::string& machine,
                         std::chrono::year_month_day date,
                         const std::function<bool(const std::string& path)>& isTaken) {
    const std::size_t begin = path.rfind('/') + 1; // 0 where there is none
    const std::size_t dot = path.rfind('.');
    const bool hasExtension = dot != std::string::npos && dot > begin;
    const std::string stem = path.substr(0, hasExtension ? dot : path.size());
    const std::string extension = hasExtension ? path.substr(dot) : std::string();
    std::string from = machine;
    for (char& c : from)
        if (c == '/' || c == '\\' || static_cast<unsigned char>(c) < 0x20)
            c = '-';
    const std::string base =
        fmt::format("{} (from {}, {:04}-{:02}-{:02}", stem, from, static_cast<int>(date.year()),
                    static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()));
    std::string name = base + ')' + extension;
    for (int count = 2; isTaken(name); ++count)
        name = fmt::format("{} {}){}", base, count, extension);
    return name;
}

} // namespace kavela::share
