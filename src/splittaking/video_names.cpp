#include "splittaking/video_names.h"

#include "common/folded_text.h"
#include "splittaking/film_words.h"
#include "splittaking/video_pattern.h"

#include <algorithm>
#include <array>

namespace kavela {

namespace {

using namespace std::string_view_literals;

constexpr std::array VideoExtensions = {
    "mov"sv,  "mp4"sv, "m4v"sv,  "avi"sv, "mts"sv, "m2ts"sv, "m2t"sv, "ts"sv,  "mkv"sv,
    "webm"sv, "mpg"sv, "mpeg"sv, "3gp"sv, "3g2"sv, "wmv"sv,  "mod"sv, "tod"sv, "dv"sv,
    "mxf"sv,  "qt"sv,  "insv"sv, "360"sv, "ogv"sv, "flv"sv,  "vob"sv, "hevc"sv};

/// Words with hyphens are taken apart where a part is a known word: "K1M-Lee-Heats", but not
/// "Anne-Marie".
std::vector<std::string> takenApart(const std::string& word) {
    std::string text = word;
    std::replace(text.begin(), text.end(), '-', ' ');
    const std::vector<std::string> parts = wordsOf(text);
    const bool isKnown = std::any_of(parts.begin(), parts.end(), [](const std::string& part) {
        return categoryFrom(part) || phaseFrom(part) || isCamera(part);
    });
    return isKnown && parts.size() > 1 ? parts : std::vector<std::string>{word};
}

std::vector<std::string> wordsToGuessFrom(std::string_view fileName) {
    std::vector<std::string> words;
    for (const std::string& word : wordsOf(plainFilmName(fileName)))
        for (std::string& part : takenApart(word))
            words.push_back(std::move(part));
    return words;
}

/// A copy's number, as systems put it behind the name of a file that exists already.
bool isCopyNumber(std::string_view word) {
    return word.size() > 2 && word.front() == '(' && word.back() == ')' &&
           smallNumber(word.substr(1, word.size() - 2));
}

void addWord(std::string& text, std::string_view word) {
    if (!text.empty())
        text += ' ';
    text += word;
}

/// Takes the words of a film's name one after another for what they most likely are.
class Guess {
public:
    explicit Guess(std::vector<std::string> words) : m_words(std::move(words)) {}

    FilmFacts facts() {
        while (m_at < m_words.size())
            if (!takeKnownWords() && !takeBib() && !takeCameraNumbering() && !takeNumber())
                takeRest();
        if (m_facts.phase.empty() && m_facts.number)
            m_facts.phase = std::to_string(*m_facts.number);
        m_facts.names = crewIn(m_rest);
        return m_facts;
    }

private:
    bool takeKnownWords() {
        constexpr std::size_t MostWords = 3; // "semi final 2", "K1 Men Junior"
        for (std::size_t count = std::min(MostWords, m_words.size() - m_at); count > 0; --count) {
            const std::string text = joinedWords(m_words, m_at, count);
            const auto category = categoryFrom(text);
            const auto phase = category ? std::nullopt : phaseFrom(text);
            if (!category && !phase && !isCamera(text))
                continue;
            if (category)
                m_facts.category = *category;
            if (phase)
                addWord(m_facts.phase, *phase);
            m_at += count;
            return true;
        }
        return false;
    }

    /// "bib 12", "#12".
    bool takeBib() {
        const std::string word = folded(m_words[m_at]);
        const bool isLabel = word == "bib" && m_at + 1 < m_words.size();
        const bool isSigned = word.starts_with('#');
        if (!isLabel && !isSigned)
            return false;
        const auto bib = smallNumber(isLabel ? m_words[m_at + 1] : word.substr(1));
        if (!bib)
            return false;
        m_facts.bib = bib;
        m_at += isLabel ? 2 : 1;
        return true;
    }

    /// Tells a camera's "VID 20240511" from Vid's film of 2024.
    bool takeCameraNumbering() {
        const std::string next = m_at + 1 < m_words.size() ? m_words[m_at + 1] : std::string();
        const bool isYear = next.size() == 4 && (next.starts_with("19") || next.starts_with("20"));
        const bool isNumber = next.find_first_not_of("0123456789") == std::string::npos;
        if (isCameraNumbering(m_words[m_at]))
            ++m_at;
        else if (!next.empty() && isNumber && !isYear && isCameraNumbering(m_words[m_at] + next))
            m_at += 2;
        else
            return false;
        return true;
    }

    /// A bare number is a bib in front of the name, and that of the run behind it.
    bool takeNumber() {
        const std::string& word = m_words[m_at];
        const auto number = smallNumber(word);
        if (!number && !isCopyNumber(word))
            return false;
        if (number && m_rest.empty() && !m_facts.bib)
            m_facts.bib = number;
        else if (number)
            m_facts.number = number;
        ++m_at;
        return true;
    }

    void takeRest() { addWord(m_rest, m_words[m_at++]); }

    std::vector<std::string> m_words;
    std::size_t m_at = 0;
    std::string m_rest;
    FilmFacts m_facts;
};

std::string_view nameWithoutBlanks(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    return text.substr(0, text.find_last_not_of(' ') + 1);
}

/// Where the next separator of a crew stands, and how long it is.
std::pair<std::size_t, std::size_t> nextSeparator(std::string_view text) {
    const std::size_t sign = text.find_first_of("/+&");
    const std::size_t hyphen = text.find(" - ");
    if (hyphen < sign)
        return {hyphen, 3};
    return {sign, 1};
}

} // namespace

std::span<const std::string_view> videoExtensions() {
    return VideoExtensions;
}

bool isVideoFile(std::string_view fileName) {
    const std::size_t dot = fileName.find_last_of('.');
    if (dot == std::string_view::npos || fileName.starts_with('.'))
        return false;
    const std::string extension = folded(fileName.substr(dot + 1));
    return std::find(VideoExtensions.begin(), VideoExtensions.end(), extension) !=
           VideoExtensions.end();
}

std::vector<std::string> crewIn(std::string_view text) {
    std::vector<std::string> names;
    // Hyphens at an end stand between words that are gone.
    const std::string padded = ' ' + std::string(text) + ' ';
    for (std::string_view rest = padded; !rest.empty();) {
        const auto [at, length] = nextSeparator(rest);
        const std::string_view name = nameWithoutBlanks(rest.substr(0, at));
        if (!name.empty())
            names.emplace_back(name);
        if (at == std::string_view::npos)
            break;
        // The blank behind a hyphen can stand in front of the next one.
        rest.remove_prefix(at + (length == 3 ? 2 : length));
    }
    return names;
}

std::optional<std::string> faultOfVideoPattern(std::string_view pattern) {
    return VideoPattern(pattern).fault();
}

FilmFacts filmFacts(std::string_view fileName, std::string_view pattern) {
    if (auto facts = VideoPattern(pattern).match(plainFilmName(fileName)))
        return *facts;
    return Guess(wordsToGuessFrom(fileName)).facts();
}

} // namespace kavela
