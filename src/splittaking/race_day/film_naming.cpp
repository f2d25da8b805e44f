#include "splittaking/race_day/film_naming.h"

#include "common/safe_file.h"
#include "splittaking/film_words.h"

#include <algorithm>

namespace kavela {

namespace {

std::string extensionOf(std::string_view name) {
    const std::size_t dot = name.find_last_of('.');
    return dot == std::string_view::npos || dot == 0 ? std::string()
                                                     : std::string(name.substr(dot));
}

/// What a placeholder stands for; the pattern was found to be one that can be used.
std::string filled(std::string_view placeholder, const DayStart& start, std::size_t number) {
    if (placeholder == "name")
        return start.name;
    if (placeholder == "category")
        return start.cat;
    if (placeholder == "phase")
        return start.phase;
    if (placeholder == "bib")
        return start.bib > 0 ? std::to_string(start.bib) : std::string();
    return placeholder == "number" ? std::to_string(number) : std::string();
}

/// Without what some disk refuses in a name; memory sticks refuse most.
std::string fitForDisk(std::string text) {
    for (char& letter : text) {
        const auto byte = static_cast<unsigned char>(letter);
        if (letter == '/')
            letter = '+';
        else if (byte < 0x20 || byte == 0x7F ||
                 std::string_view("\\:*?\"<>|").find(letter) != std::string_view::npos)
            letter = ' ';
    }
    std::vector<std::string> words = wordsOf(text);
    text = joinedWords(words, 0, words.size());
    // A dot in front hides a file, one behind goes on some disks.
    const std::size_t first = std::min(text.find_first_not_of(". "), text.size());
    text.erase(0, first);
    text.erase(text.find_last_not_of(". ") + 1);
    return text;
}

} // namespace

std::string filmNameOf(const DayStart& start, std::size_t number, std::string_view pattern,
                       std::string_view presentName) {
    std::string text;
    while (!pattern.empty()) {
        const std::size_t open = std::min(pattern.find('{'), pattern.size());
        text += pattern.substr(0, open);
        pattern.remove_prefix(open);
        const std::size_t close = pattern.find('}');
        if (close == std::string_view::npos)
            break;
        text += filled(pattern.substr(1, close - 1), start, number);
        pattern.remove_prefix(close + 1);
    }
    const std::string fit = fitForDisk(std::move(text));
    return fit.empty() ? fit : fit + extensionOf(presentName);
}

std::string numberedFilmName(const std::string& name, int number) {
    if (number <= 1)
        return name;
    const std::string extension = extensionOf(name);
    return name.substr(0, name.size() - extension.size()) + " (" + std::to_string(number) + ")" +
           extension;
}

std::string freeFilmName(const std::filesystem::path& folder, const std::string& name,
                         const std::string& presentName) {
    std::string candidate = name;
    for (int number = 2; candidate != presentName && isTaken(folder / candidate); ++number)
        candidate = numberedFilmName(name, number);
    return candidate;
}

} // namespace kavela
