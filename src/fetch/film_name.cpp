#include "fetch/film_name.h"

#include "common/utf8.h"
#include "splittaking/video_names.h"

#include <algorithm>

namespace kavela::fetch {

namespace {

/// Not " - ", at which older names are taken apart by a pattern's own text.
constexpr std::string_view BetweenCrew = " & ";

std::string crewText(const FetchRun& run) {
    std::string text;
    for (const std::string& name : run.names)
        text += (text.empty() ? "" : std::string(BetweenCrew)) + name;
    return text;
}

std::string filledPlace(std::string_view place, const FetchRun& run) {
    if (place == "name")
        return crewText(run);
    if (place == "category")
        return run.category;
    if (place == "phase")
        return run.phase;
    if (place == "bib")
        return std::to_string(run.bib);
    if (place == "number")
        return std::to_string(run.run > 0 ? run.run : run.bib);
    return {};
}

bool isForbiddenInNames(char32_t character) {
    constexpr std::u32string_view Forbidden = U"/\\:*?\"<>|";
    return character < 0x20 || character == 0x7F ||
           Forbidden.find(character) != std::u32string_view::npos;
}

/// One blank at most between words, none at the ends; no dot in front, which would hide the file.
std::string plainFileName(std::string_view text) {
    std::string name;
    while (!text.empty() && name.size() < LongestFilmName - 4) {
        const char32_t character = takeCharacter(text).value_or(U'-');
        if (character == U' ' ? name.empty() || name.back() == ' '
                              : character == U'.' && name.empty())
            continue;
        appendUtf8(name, isForbiddenInNames(character) ? U'-' : character);
    }
    while (!name.empty() && (name.back() == ' ' || name.back() == '.'))
        name.pop_back();
    return name;
}

} // namespace

std::string filmName(std::string_view pattern, const FetchRun& run) {
    std::string text;
    while (!pattern.empty()) {
        const std::size_t open = std::min(pattern.find('{'), pattern.size());
        text += pattern.substr(0, open);
        pattern.remove_prefix(open);
        const std::size_t close = pattern.find('}');
        if (pattern.empty() || close == std::string_view::npos)
            break;
        text += filledPlace(pattern.substr(1, close - 1), run);
        pattern.remove_prefix(close + 1);
    }
    const std::string name = plainFileName(text);
    return name.empty() ? "bib " + std::to_string(run.bib) : name;
}

std::string filmExtension(const Address& address) {
    const std::string name = address.lastName();
    const std::size_t dot = name.rfind('.');
    if (dot == std::string::npos || !isVideoFile("film" + name.substr(dot)))
        return ".mp4";
    std::string extension = name.substr(dot);
    std::ranges::transform(extension, extension.begin(), [](char c) {
        return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    });
    return extension;
}

} // namespace kavela::fetch
