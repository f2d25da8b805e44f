#include "splittaking/folder/film_naming.h"

#include "common/folded_text.h"
#include "common/text.h"
#include "splittaking/film_words.h"
#include "splittaking/video_names.h"

#include <algorithm>
#include <set>

namespace kavela {

namespace {

/// File systems hold no longer names, in bytes.
constexpr std::size_t LongestFilmName = 255;

std::string joinedCrew(const std::vector<std::string>& names) {
    std::string crew;
    for (const std::string& name : names)
        crew += (crew.empty() ? "" : " + ") + name;
    return crew;
}

std::string textOfNumber(const std::optional<int>& number) {
    return number ? std::to_string(*number) : std::string();
}

/// A placeholder may be written in any case, with blanks around it.
std::string plainPlaceholder(std::string_view written) {
    const auto words = wordsOf(folded(written));
    return words.empty() ? std::string() : words.front();
}

std::string valueFor(const ListedFilm& film, std::string_view placeholder) {
    if (placeholder == "name")
        return joinedCrew(film.names);
    if (placeholder == "category")
        return film.category;
    if (placeholder == "phase")
        return film.phase;
    return textOfNumber(placeholder == "bib" ? film.bib : film.number);
}

std::string wordFor(std::string_view placeholder) {
    if (placeholder == "name")
        return say("no name is known");
    return say("no {} is known", translated(placeholder));
}

/// What some file system does not take in a name, or what would make another folder of it.
std::string asFileName(std::string_view text) {
    constexpr std::string_view Refused = "/\\:*?\"<>|";
    std::string name;
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        name += Refused.find(c) != std::string_view::npos || byte < 0x20 || byte == 0x7F ? '-' : c;
    }
    const std::size_t first = name.find_first_not_of(" .");
    if (first == std::string::npos)
        return {};
    const std::size_t last = name.find_last_not_of(" .");
    return name.substr(first, last + 1 - first);
}

struct NamedFilm {
    std::string stem;
    std::string fault;
};

/// Which camera filmed, as the name ends with it: " cam 2". A pattern has no word for it, and the
/// films of one run are told apart by nothing else.
std::string cameraOf(std::string_view fileName) {
    constexpr std::size_t MostWords = 3;
    const auto words = wordsOf(plainFilmName(fileName));
    for (std::size_t count = std::min(MostWords, words.size()); count > 0; --count)
        if (std::string camera = joinedWords(words, words.size() - count, count); isCamera(camera))
            return ' ' + camera;
    return {};
}

NamedFilm namedBy(std::string_view pattern, const ListedFilm& film) {
    NamedFilm named;
    while (!pattern.empty()) {
        const std::size_t open = pattern.find('{');
        named.stem += pattern.substr(0, open);
        if (open == std::string_view::npos)
            break;
        const std::size_t close = pattern.find('}', open);
        const std::string placeholder =
            plainPlaceholder(pattern.substr(open + 1, close - open - 1));
        const std::string value = valueFor(film, placeholder);
        if (value.empty() && named.fault.empty())
            named.fault = wordFor(placeholder);
        named.stem += value;
        pattern.remove_prefix(close + 1);
    }
    named.stem = asFileName(named.stem);
    if (!named.stem.empty() && cameraOf(named.stem).empty())
        named.stem += cameraOf(film.path.filename().string());
    if (named.stem.empty() && named.fault.empty())
        named.fault = say("nothing would be left of the name");
    return named;
}

/// The first name that is free: "Ann Heats.mp4", "Ann Heats 2.mp4".
std::string freeName(const std::string& stem, const std::string& extension,
                     const std::multiset<std::string>& taken) {
    std::string name = stem + extension;
    for (int count = 2; taken.contains(folded(name)); ++count)
        name = stem + ' ' + std::to_string(count) + extension;
    return name;
}

} // namespace

std::optional<std::string> faultOfNaming(std::string_view pattern) {
    if (auto fault = faultOfVideoPattern(pattern))
        return fault;
    for (std::size_t open = pattern.find('{'); open != std::string_view::npos;
         open = pattern.find('{', open + 1))
        if (plainPlaceholder(pattern.substr(open + 1, pattern.find('}', open) - open - 1)) == "any")
            return std::string(translated("{any} does not say what is to stand there."));
    return std::nullopt;
}

std::vector<PlannedName> planNames(std::span<const ListedFilm> films, std::string_view pattern,
                                   std::span<const std::string> taken) {
    std::multiset<std::string> names;
    for (const std::string& name : taken)
        names.insert(folded(name));
    std::vector<PlannedName> planned;
    for (const ListedFilm& film : films) {
        const std::string from = film.path.filename().string();
        NamedFilm named = namedBy(pattern, film);
        // Its own name is no hindrance: a film that is named right already stays.
        const auto own = names.find(folded(from));
        if (own != names.end())
            names.erase(own);
        std::string to = freeName(named.stem, film.path.extension().string(), names);
        names.insert(folded(from)); // nobody else gets it, also where it becomes free
        if (named.fault.empty() && to.size() > LongestFilmName)
            named.fault = say("the name would be too long");
        if (!named.fault.empty())
            to = from;
        if (to != from)
            names.insert(folded(to));
        planned.push_back({from, std::move(to), std::move(named.fault)});
    }
    return planned;
}

} // namespace kavela
