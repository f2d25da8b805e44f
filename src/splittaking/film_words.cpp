#include "splittaking/film_words.h"

#include "common/folded_text.h"
#include "splittaking/video_names.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace kavela {

namespace {

using namespace std::string_view_literals;

constexpr std::string_view Digits = "0123456789";

struct Word {
    std::string_view spelling;
    std::string_view meaning;
};

constexpr std::array Genders = std::to_array<Word>({{"", ""},
                                                    {"m", "M"},
                                                    {"men", "M"},
                                                    {"man", "M"},
                                                    {"w", "W"},
                                                    {"women", "W"},
                                                    {"woman", "W"},
                                                    {"ladies", "W"},
                                                    {"x", "X"},
                                                    {"mix", "X"},
                                                    {"mixed", "X"}});

constexpr std::array Ages = std::to_array<Word>({{"", ""},
                                                 {"j", "J"},
                                                 {"jun", "J"},
                                                 {"junior", "J"},
                                                 {"juniors", "J"},
                                                 {"u14", "U14"},
                                                 {"u16", "U16"},
                                                 {"u18", "U18"},
                                                 {"u21", "U21"},
                                                 {"u23", "U23"}});

/// Phases without their number; several words are written as one.
constexpr std::array Phases = std::to_array<Word>({{"heat", "Heat"},
                                                   {"heats", "Heats"},
                                                   {"qualification", "Qualification"},
                                                   {"qualifications", "Qualification"},
                                                   {"qualifying", "Qualification"},
                                                   {"quali", "Qualification"},
                                                   {"qual", "Qualification"},
                                                   {"quarterfinal", "Quarterfinal"},
                                                   {"quarterfinals", "Quarterfinal"},
                                                   {"semifinal", "Semifinal"},
                                                   {"semifinals", "Semifinal"},
                                                   {"semi", "Semifinal"},
                                                   {"semis", "Semifinal"},
                                                   {"sf", "Semifinal"},
                                                   {"final", "Final"},
                                                   {"finals", "Final"},
                                                   {"finala", "Final A"},
                                                   {"finalb", "Final B"},
                                                   {"run", "Run"},
                                                   {"lap", "Lap"},
                                                   {"round", "Round"},
                                                   {"training", "Training"},
                                                   {"practice", "Training"},
                                                   {"timetrial", "Time trial"},
                                                   {"tt", "Time trial"}});

constexpr std::array CameraWords = {"cam"sv, "camera"sv, "gopro"sv, "angle"sv};
constexpr std::array CameraPrefixes = {"img"sv,  "dsc"sv,   "dscn"sv, "dscf"sv, "mvi"sv, "vid"sv,
                                       "pxl"sv,  "gopr"sv,  "gp"sv,   "gh"sv,   "gx"sv,  "mov"sv,
                                       "clip"sv, "video"sv, "c"sv,    "p"sv,    "dji"sv, "mah"sv};

template <class List>
const Word* find(const List& list, std::string_view spelling) {
    const auto found = std::find_if(list.begin(), list.end(),
                                    [&](const Word& word) { return word.spelling == spelling; });
    return found == list.end() ? nullptr : &*found;
}

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

bool allDigits(std::string_view text) {
    return !text.empty() && std::all_of(text.begin(), text.end(), isDigit);
}

/// The text folded, without blanks and hyphens.
std::string compact(std::string_view text) {
    std::string result = folded(text);
    std::erase_if(result, [](char c) { return c == ' ' || c == '-'; });
    return result;
}

std::string capitals(std::string_view text) {
    std::string result(text);
    for (char& c : result)
        if (c >= 'a' && c <= 'z')
            c = static_cast<char>(c - 'a' + 'A');
    return result;
}

/// Gender and age behind a boat: "menu23" is "MU23".
std::optional<std::string> genderAndAge(std::string_view text) {
    for (const Word& gender : Genders)
        if (text.starts_with(gender.spelling))
            if (const Word* age = find(Ages, text.substr(gender.spelling.size())))
                return std::string(gender.meaning) + std::string(age->meaning);
    return std::nullopt;
}

/// A category with its gender in front: "wc1".
std::optional<std::string> genderFirst(std::string_view text) {
    if (text.size() < 3 || !find(Genders, text.substr(0, 1)))
        return std::nullopt;
    const std::string_view boat = text.substr(1, 2);
    const Word* age = find(Ages, text.substr(3));
    if (!age || (boat != "k1" && boat != "c1" && boat != "c2"))
        return std::nullopt;
    return capitals(boat) + capitals(text.substr(0, 1)) + std::string(age->meaning);
}

/// A phase's words with its number.
struct PhaseParts {
    std::string_view words;
    std::string_view number;
};

/// The number stands behind, as in "run2", or in front with its ending, as in "2ndrun".
PhaseParts partsOf(std::string_view text) {
    const std::size_t letters = std::min(text.find_first_not_of(Digits), text.size());
    if (letters > 0)
        for (const std::string_view ending : {"st"sv, "nd"sv, "rd"sv, "th"sv})
            if (text.substr(letters).starts_with(ending))
                return {text.substr(letters + ending.size()), text.substr(0, letters)};
    const std::size_t end = text.find_last_not_of(Digits) + 1;
    return {text.substr(0, end), text.substr(end)};
}

/// "Run 1 2" must not become run 12.
bool hasSeveralNumbers(std::string_view text) {
    const std::size_t first = text.find_first_of(Digits);
    const std::size_t behind = text.find_first_not_of(Digits, std::min(first, text.size()));
    return behind < text.size() && text.find_first_of(Digits, behind) != std::string_view::npos;
}

bool isDate(std::string_view word) {
    const auto hyphens = std::count(word.begin(), word.end(), '-');
    std::string digits(word);
    std::erase(digits, '-');
    return hyphens == 2 && digits.size() >= 5 && allDigits(digits);
}

} // namespace

std::string plainFilmName(std::string_view fileName) {
    fileName.remove_prefix(fileName.find_last_of('/') + 1);
    if (isVideoFile(fileName))
        fileName = fileName.substr(0, fileName.find_last_of('.'));
    std::string text(fileName);
    std::replace_if(
        text.begin(), text.end(), [](char c) { return c == '_' || c == '.' || c == '\t'; }, ' ');
    const std::vector<std::string> words = wordsOf(text);
    return joinedWords(words, 0, words.size());
}

std::vector<std::string> wordsOf(std::string_view text) {
    std::vector<std::string> words;
    while (text.find_first_not_of(' ') != std::string_view::npos) {
        text.remove_prefix(text.find_first_not_of(' '));
        words.emplace_back(text.substr(0, text.find(' ')));
        text.remove_prefix(words.back().size());
    }
    return words;
}

std::string joinedWords(const std::vector<std::string>& words, std::size_t begin,
                        std::size_t count) {
    std::string text;
    for (std::size_t i = begin; i < begin + count; ++i)
        text += (i == begin ? "" : " ") + words[i];
    return text;
}

std::optional<std::string> categoryFrom(std::string_view text) {
    const std::string plain = compact(text);
    for (const std::string_view boat : {"ck1"sv, "kx1"sv, "k1"sv, "c1"sv, "c2"sv, "x1"sv, "kx"sv}) {
        if (!plain.starts_with(boat))
            continue;
        const auto rest = genderAndAge(std::string_view(plain).substr(boat.size()));
        if (rest && (!rest->empty() || boat != "kx"))
            return capitals(boat) + *rest;
    }
    return genderFirst(plain);
}

std::optional<std::string> phaseFrom(std::string_view text) {
    const std::string plain = compact(text);
    const PhaseParts parts = partsOf(plain);
    const bool hasNumber = smallNumber(parts.number).has_value();
    if (hasNumber != !parts.number.empty() || hasSeveralNumbers(text))
        return std::nullopt;
    if (hasNumber && parts.words == "h")
        return "Heat " + std::string(parts.number);
    if (hasNumber && parts.words == "r")
        return "Run " + std::string(parts.number);
    const Word* const phase = find(Phases, parts.words);
    if (!phase)
        return std::nullopt;
    const bool isHeat = phase->meaning.starts_with("Heat");
    if (!hasNumber)
        return std::string(isHeat ? "Heats" : phase->meaning);
    return std::string(isHeat ? "Heat" : phase->meaning) + ' ' + std::string(parts.number);
}

bool isCamera(std::string_view text) {
    std::string plain = compact(text);
    plain.erase(plain.find_last_not_of(Digits) + 1);
    return std::find(CameraWords.begin(), CameraWords.end(), plain) != CameraWords.end();
}

bool isCameraNumbering(std::string_view text) {
    constexpr std::size_t FewestDigits = 4;
    if (isDate(text))
        return true;
    const std::string plain = compact(text);
    const std::size_t letters = plain.find_last_not_of(Digits) + 1;
    if (plain.size() - letters < FewestDigits)
        return false;
    const std::string_view prefix = std::string_view(plain).substr(0, letters);
    return prefix.empty() ||
           std::find(CameraPrefixes.begin(), CameraPrefixes.end(), prefix) != CameraPrefixes.end();
}

std::optional<int> smallNumber(std::string_view text) {
    int number = 0;
    if (!allDigits(text) || text.size() > 3)
        return std::nullopt;
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}

} // namespace kavela
