#include "splitdata/athlete_keys.h"

#include "common/folded_text.h"
#include "common/utf8.h"

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

namespace kavela {

namespace {

std::vector<std::string> wordsOf(std::string_view text) {
    constexpr std::string_view Blanks = " \t\r\n,";
    std::vector<std::string> words;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find_first_of(Blanks), text.size());
        if (end > 0)
            words.emplace_back(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return words;
}

/// The first in the alphabet of the texts that come of moving words from the front to the back:
/// either part of a name may have several words.
std::string personKey(std::string_view name) {
    std::vector<std::string> words = wordsOf(folded(name));
    std::string best;
    for (std::size_t turn = 0; turn < words.size(); ++turn) {
        std::string text;
        for (const std::string& word : words)
            text += word + ' ';
        if (turn == 0 || text < best)
            best = std::move(text);
        std::rotate(words.begin(), words.begin() + 1, words.end());
    }
    return best;
}

void addPeople(std::string_view crew, std::vector<std::string>& keys) {
    while (!crew.empty()) {
        const std::size_t dash = crew.find(" - ");
        const std::size_t end = std::min({crew.find_first_of("/&+"), dash, crew.size()});
        if (std::string key = personKey(crew.substr(0, end)); !key.empty())
            keys.push_back(std::move(key));
        crew.remove_prefix(std::min(end + (end == dash ? 3 : 1), crew.size()));
    }
}

using WrittenPhase = std::pair<std::string_view, const char*>;

std::string joined(std::vector<std::string> keys) {
    std::sort(keys.begin(), keys.end());
    std::string text;
    for (const std::string& key : keys)
        text += key + '/';
    return text;
}

} // namespace

std::string crewKey(std::string_view crew) {
    std::vector<std::string> keys;
    addPeople(crew, keys);
    return joined(std::move(keys));
}

std::string crewKey(std::span<const std::string> names) {
    std::vector<std::string> keys;
    for (const std::string& name : names)
        addPeople(name, keys);
    return joined(std::move(keys));
}

std::string bareKey(std::string_view text) {
    constexpr std::string_view Marks = " -_./";
    std::string key = folded(text);
    std::erase_if(key, [&](char c) { return Marks.find(c) != std::string_view::npos; });
    return key;
}

std::string categoryKey(std::string_view label) {
    std::string key = bareKey(label);
    std::sort(key.begin(), key.end());
    return key;
}

std::string teamPhase(std::string_view written) {
    static constexpr std::array Words{
        WrittenPhase{"heat", "Heats 1"},         WrittenPhase{"heats", "Heats 1"},
        WrittenPhase{"heat1", "Heats 1"},        WrittenPhase{"heats1", "Heats 1"},
        WrittenPhase{"run1", "Heats 1"},         WrittenPhase{"1strun", "Heats 1"},
        WrittenPhase{"heat2", "Heats 2"},        WrittenPhase{"heats2", "Heats 2"},
        WrittenPhase{"run2", "Heats 2"},         WrittenPhase{"2ndrun", "Heats 2"},
        WrittenPhase{"semi", "Semifinal"},       WrittenPhase{"semifinal", "Semifinal"},
        WrittenPhase{"semifinals", "Semifinal"}, WrittenPhase{"final", "Final"},
        WrittenPhase{"finals", "Final"}};
    const std::string key = bareKey(written);
    const auto found = std::ranges::find(Words, key, &WrittenPhase::first);
    return found == Words.end() ? std::string() : found->second;
}

std::string inCapitals(std::string_view text) {
    std::string capitals;
    for (const char32_t character : charactersIn(text))
        appendUtf8(capitals, capitalLetter(character));
    return capitals;
}

} // namespace kavela
