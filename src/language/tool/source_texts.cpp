#include "language/tool/source_texts.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <fstream>
#include <iterator>
#include <optional>
#include <set>
#include <stdexcept>

namespace kavela::catalogue {

namespace {

/// Which arguments of a call are texts.
enum class Texts {
    First,       ///< every literal in it, as of "a ? one : other"
    FirstAlone,  ///< where nothing else is in the argument
    SecondAlone, ///< the same
    Counted,     ///< the third one
    CountedWord, ///< the same, said behind its number
    RuleTexts,   ///< the second, third and fourth of a rule
    Last,        ///< the last one, of options of the command line
};

struct Marker {
    std::string_view name;
    char opener;
    Texts texts;
};

constexpr std::array Markers{
    Marker{"say", '(', Texts::First},
    Marker{"said", '(', Texts::First},
    Marker{"translated", '(', Texts::First},
    Marker{"KAVELA_TEXT", '(', Texts::First},
    Marker{"sayCount", '(', Texts::Counted},
    Marker{"counted", '(', Texts::CountedWord},
    Marker{"countedText", '(', Texts::CountedWord},
    Marker{"seasonCounted", '(', Texts::CountedWord},
    Marker{"Rule", '{', Texts::RuleTexts},
    Marker{"Label", '{', Texts::SecondAlone},
    Marker{"input", '(', Texts::FirstAlone},
    Marker{"note", '(', Texts::FirstAlone},
    Marker{"uncertain", '(', Texts::SecondAlone},
    Marker{"logLine", '(', Texts::FirstAlone},
    Marker{"command", '(', Texts::Last},
    Marker{"option", '(', Texts::Last},
    Marker{"flag", '(', Texts::Last},
    Marker{"footer", '(', Texts::Last},
};

/// A literal that is an argument of a call or stands in one.
struct Literal {
    std::size_t argument = 0;
    std::string spelling;
};

/// A bracket that is open.
struct Bracket {
    const Marker* marker = nullptr;
    std::size_t argument = 0;
    std::vector<Literal> literals;
    std::set<std::size_t> mixed; ///< arguments in which more than literals stand
};

bool isWordSign(char sign) {
    return std::isalnum(static_cast<unsigned char>(sign)) || sign == '_';
}

class SourceReader {
public:
    SourceReader(std::string_view source, bool isCommandLine)
        : m_source(source), m_isCommandLine(isCommandLine) {}

    [[nodiscard]] std::vector<SourceText> texts() {
        m_open.emplace_back();
        while (m_at < m_source.size())
            readOne();
        return std::move(m_texts);
    }

private:
    void readOne() {
        const char sign = m_source[m_at];
        if (std::isspace(static_cast<unsigned char>(sign)))
            ++m_at;
        else if (startsWith("//"))
            m_at = std::min(m_source.find('\n', m_at), m_source.size());
        else if (startsWith("/*"))
            m_at = std::min(m_source.find("*/", m_at), m_source.size() - 2) + 2;
        else if (startsWith("R\""))
            readRaw();
        else if (sign == '"')
            readLiteral();
        else if (sign == '\'')
            (void)quoted('\'');
        else if (isWordSign(sign))
            readWord();
        else
            readSign(sign);
    }

    [[nodiscard]] bool startsWith(std::string_view text) const {
        return m_source.substr(m_at).starts_with(text);
    }

    /// What stands between two quotes, as it is spelled.
    std::string quoted(char quote) {
        const std::size_t start = ++m_at;
        while (m_at < m_source.size() && m_source[m_at] != quote)
            m_at += m_source[m_at] == '\\' ? 2 : 1;
        m_at = std::min(m_at, m_source.size());
        std::string text(m_source.substr(start, m_at - start));
        ++m_at;
        m_word = {};
        return text;
    }

    /// Patterns and tables, never a text.
    void readRaw() {
        const std::size_t open = m_source.find('(', m_at);
        if (open == std::string_view::npos) {
            m_at = m_source.size();
            return;
        }
        const std::string end = ')' + std::string(m_source.substr(m_at + 2, open - m_at - 2)) + '"';
        m_at = std::min(m_source.find(end, open), m_source.size() - 1) + end.size();
        mix();
    }

    void readLiteral() {
        const std::string text = quoted('"');
        Bracket& bracket = m_open.back();
        if (!bracket.marker)
            return;
        if (m_isBehindLiteral)
            bracket.literals.back().spelling += text;
        else
            bracket.literals.push_back({bracket.argument, text});
        m_isBehindLiteral = true;
    }

    void readWord() {
        const std::size_t start = m_at;
        // A quote in a number such as 1'000 is a part of it.
        const bool isNumber = std::isdigit(static_cast<unsigned char>(m_source[m_at])) != 0;
        while (m_at < m_source.size() &&
               (isWordSign(m_source[m_at]) || (isNumber && m_source[m_at] == '\'')))
            ++m_at;
        mix();
        m_word = m_source.substr(start, m_at - start);
    }

    void readSign(char sign) {
        ++m_at;
        m_isBehindLiteral = false;
        if (sign == '(' || sign == '{' || sign == '[')
            open(sign);
        else if (sign == ')' || sign == '}' || sign == ']')
            close();
        else if (sign == ',')
            ++m_open.back().argument;
        else
            mix();
        m_word = {};
    }

    void mix() {
        m_isBehindLiteral = false;
        if (m_open.back().marker)
            m_open.back().mixed.insert(m_open.back().argument);
    }

    void open(char sign) {
        const auto found = std::ranges::find_if(Markers, [&](const Marker& marker) {
            return marker.name == m_word && marker.opener == sign &&
                   (marker.texts != Texts::Last || m_isCommandLine);
        });
        mix();
        m_open.push_back({found == Markers.end() ? nullptr : &*found, 0, {}, {}});
    }

    void close() {
        const Bracket bracket = std::move(m_open.back());
        if (m_open.size() > 1)
            m_open.pop_back();
        for (const Literal& literal : bracket.literals)
            if (bracket.marker && isText(bracket, literal) && !literal.spelling.empty())
                m_texts.push_back(textOf(*bracket.marker, literal));
    }

    static SourceText textOf(const Marker& marker, const Literal& literal) {
        if (marker.texts == Texts::CountedWord)
            return {"{} " + literal.spelling, true};
        return {literal.spelling, marker.texts == Texts::Counted};
    }

    static bool isText(const Bracket& bracket, const Literal& literal) {
        const bool isAlone = !bracket.mixed.contains(literal.argument);
        switch (bracket.marker->texts) {
        case Texts::First:
            return literal.argument == 0;
        case Texts::FirstAlone:
            return literal.argument == 0 && isAlone;
        case Texts::SecondAlone:
            return literal.argument == 1 && isAlone;
        case Texts::Counted:
        case Texts::CountedWord:
            return literal.argument == 2;
        case Texts::RuleTexts:
            return literal.argument >= 1 && isAlone;
        case Texts::Last:
            return isAlone && literal.argument > 0 && literal.argument == bracket.argument;
        }
        return false;
    }

    std::string_view m_source;
    bool m_isCommandLine;
    std::size_t m_at = 0;
    std::string_view m_word; ///< right before what is read now
    bool m_isBehindLiteral = false;
    std::vector<Bracket> m_open;
    std::vector<SourceText> m_texts;
};

std::string contentOf(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    std::string content(std::istreambuf_iterator<char>(stream), {});
    if (!stream)
        throw std::runtime_error(file.string() + ": cannot be read");
    return content;
}

} // namespace

std::vector<SourceText> textsIn(std::string_view source, bool isCommandLine) {
    return SourceReader(source, isCommandLine).texts();
}

std::vector<SourceText> textsBelow(const std::filesystem::path& folder) {
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder))
        if (entry.path().extension() == ".cpp" || entry.path().extension() == ".h")
            files.push_back(entry.path());
    std::ranges::sort(files);
    std::vector<SourceText> texts;
    std::set<std::string> known;
    for (const std::filesystem::path& file : files) {
        const bool isCommandLine = file.parent_path().filename() == "cli";
        for (SourceText& text : textsIn(contentOf(file), isCommandLine))
            if (known.insert(text.spelling).second)
                texts.push_back(std::move(text));
    }
    return texts;
}

std::string markedTexts(const std::vector<SourceText>& texts) {
    std::string source;
    for (const SourceText& text : texts)
        source += std::string(text.isCounted ? "QT_TRANSLATE_N_NOOP" : "QT_TRANSLATE_NOOP") +
                  "(\"" + std::string(PlainContext) + "\", \"" + text.spelling + "\")\n";
    return source;
}

} // namespace kavela::catalogue
