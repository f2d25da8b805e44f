#include "splittaking/video_pattern.h"

#include "common/text.h"
#include "splittaking/film_words.h"

#include <algorithm>

namespace kavela {

namespace {

std::string smallAscii(std::string_view text) {
    std::string small(text);
    for (char& c : small)
        if (c >= 'A' && c <= 'Z')
            c = static_cast<char>(c - 'A' + 'a');
    return small;
}

std::string_view withoutBlanks(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    return text.substr(0, text.find_last_not_of(' ') + 1);
}

bool hasDigit(std::string_view text) {
    return text.find_first_of("0123456789") != std::string_view::npos;
}

/// Whether a text can be a name: none of its words is known for something else.
bool isPlainName(std::string_view text) {
    const std::vector<std::string> words = wordsOf(text);
    return std::none_of(words.begin(), words.end(), [](const std::string& word) {
        return hasDigit(word) || categoryFrom(word) || phaseFrom(word) || isCamera(word);
    });
}

} // namespace

/// One attempt to match a film's name. A part takes as little as it can; what failed once from a
/// place is not tried from there again, so that no pattern takes long.
class VideoPattern::Attempt {
public:
    Attempt(const std::vector<Part>& parts, std::string_view film, bool isStrict)
        : m_parts(parts),
          m_film(film),
          m_small(smallAscii(film)),
          m_isStrict(isStrict),
          m_failed(parts.size() * (film.size() + 1), false) {}

    std::optional<FilmFacts> match() {
        if (!matchFrom(0, 0))
            return std::nullopt;
        return m_facts;
    }

private:
    bool matchFrom(std::size_t part, std::size_t at) {
        if (part == m_parts.size())
            return at == m_film.size();
        const std::size_t place = part * (m_film.size() + 1) + at;
        if (m_failed[place])
            return false;
        const bool isMatch = m_parts[part].kind == Kind::Literal ? matchLiteral(part, at)
                                                                 : matchPlaceholder(part, at);
        m_failed[place] = !isMatch;
        return isMatch;
    }

    bool matchLiteral(std::size_t part, std::size_t at) {
        const std::string& text = m_parts[part].text;
        return m_small.compare(at, text.size(), text) == 0 && matchFrom(part + 1, at + text.size());
    }

    bool matchPlaceholder(std::size_t part, std::size_t at) {
        for (std::size_t end = at + 1; end <= m_film.size(); ++end) {
            const std::string_view piece = withoutBlanks(m_film.substr(at, end - at));
            if (fits(m_parts[part], piece) && matchFrom(part + 1, end)) {
                take(m_parts[part].kind, piece);
                return true;
            }
        }
        return false;
    }

    [[nodiscard]] bool fits(const Part& part, std::string_view piece) const {
        if (piece.empty())
            return false;
        if (part.kind == Kind::Bib || part.kind == Kind::Number)
            return smallNumber(piece).has_value();
        if (part.kind == Kind::Any || (!m_isStrict && part.isSetApart))
            return true;
        if (part.kind == Kind::Category)
            return categoryFrom(piece).has_value();
        if (part.kind == Kind::Phase)
            return phaseFrom(piece) || smallNumber(piece);
        return isPlainName(piece);
    }

    void take(Kind kind, std::string_view piece) {
        if (kind == Kind::Name)
            m_facts.names = crewIn(piece);
        else if (kind == Kind::Category)
            m_facts.category = categoryFrom(piece).value_or(std::string(piece));
        else if (kind == Kind::Phase)
            takePhase(piece);
        else if (kind == Kind::Bib)
            m_facts.bib = smallNumber(piece);
        else if (kind == Kind::Number)
            m_facts.number = smallNumber(piece);
    }

    void takePhase(std::string_view piece) {
        const auto number = smallNumber(piece);
        m_facts.phase =
            number ? std::to_string(*number) : phaseFrom(piece).value_or(std::string(piece));
        if (number && !m_facts.number)
            m_facts.number = number;
    }

    const std::vector<Part>& m_parts;
    std::string_view m_film;
    std::string m_small;
    bool m_isStrict;
    std::vector<bool> m_failed; ///< by part and place
    FilmFacts m_facts;
};

VideoPattern::VideoPattern(std::string_view pattern) {
    // Blanks, underscores, dots and the extension stand in the pattern as they do in names.
    const std::string plain = plainFilmName(pattern);
    std::string_view rest = plain;
    while (!rest.empty() && !m_fault) {
        const std::size_t open = rest.find('{');
        addLiteral(rest.substr(0, open));
        if (open == std::string_view::npos)
            break;
        const std::size_t close = rest.find('}', open);
        if (close == std::string_view::npos) {
            m_fault = std::string(translated("A bracket { is not closed."));
            break;
        }
        addPlaceholder(rest.substr(open + 1, close - open - 1));
        rest.remove_prefix(close + 1);
    }
    findFaults();
    findSetApart();
}

std::optional<VideoPattern::Kind> VideoPattern::kindOf(std::string_view placeholder) {
    const std::string name = smallAscii(withoutBlanks(placeholder));
    if (name == "name")
        return Kind::Name;
    if (name == "category")
        return Kind::Category;
    if (name == "phase")
        return Kind::Phase;
    if (name == "bib")
        return Kind::Bib;
    if (name == "number")
        return Kind::Number;
    return name == "any" ? std::optional(Kind::Any) : std::nullopt;
}

void VideoPattern::addPlaceholder(std::string_view placeholder) {
    const auto kind = kindOf(placeholder);
    if (!kind)
        m_fault = say("{{{}}} is not known. There are {{name}}, {{category}}, {{phase}}, {{bib}}, "
                      "{{number}} and {{any}}.",
                      placeholder);
    else
        m_parts.push_back({*kind, {}, false});
}

void VideoPattern::addLiteral(std::string_view text) {
    if (!text.empty())
        m_parts.push_back({Kind::Literal, smallAscii(text), false});
}

void VideoPattern::findFaults() {
    bool hasPlaceholder = false;
    for (std::size_t i = 0; i < m_parts.size() && !m_fault; ++i) {
        const Kind kind = m_parts[i].kind;
        if (kind == Kind::Literal)
            continue;
        hasPlaceholder = true;
        if (i > 0 && m_parts[i - 1].kind != Kind::Literal)
            m_fault = say("Two brackets stand side by side: nothing tells where one ends.");
        const auto isSame = [kind](const Part& part) { return part.kind == kind; };
        if (kind != Kind::Any && std::count_if(m_parts.begin(), m_parts.end(), isSame) > 1)
            m_fault = say("The same bracket stands twice.");
    }
    if (!m_fault && !hasPlaceholder)
        m_fault = std::string(translated("The pattern holds no bracket such as {name}."));
}

void VideoPattern::findSetApart() {
    const auto sets = [&](std::size_t neighbour) {
        return neighbour >= m_parts.size() ||
               m_parts[neighbour].text.find_first_not_of(' ') != std::string::npos;
    };
    for (std::size_t i = 0; i < m_parts.size(); ++i)
        m_parts[i].isSetApart = sets(i + 1) && sets(i - 1); // before the first: beyond the last
}

std::optional<FilmFacts> VideoPattern::match(std::string_view film) const {
    constexpr std::size_t LongestName = 1000; // no disk takes longer ones
    if (m_fault || film.size() > LongestName)
        return std::nullopt;
    if (auto facts = Attempt(m_parts, film, true).match())
        return facts;
    return Attempt(m_parts, film, false).match();
}

} // namespace kavela
