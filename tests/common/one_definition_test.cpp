#include "common/text_file.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

/// Two classes of one name in one namespace are one class to the linker, which takes the functions
/// of either for both. No compiler tells, as each of its units sees but one of them.

namespace kavela::test {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;

bool isOfWord(char letter) {
    return std::isalnum(static_cast<unsigned char>(letter)) != 0 || letter == '_';
}

/// The words and signs of a source, without comments, texts, and lines for the preprocessor.
class SourceWords {
public:
    explicit SourceWords(std::string_view text) : m_text(text) {
        while (m_at < m_text.size())
            next();
    }

    [[nodiscard]] const std::vector<std::string>& words() const { return m_words; }

private:
    void next() {
        const char letter = m_text[m_at];
        const bool isAfterWord = m_at > 0 && isOfWord(m_text[m_at - 1]);
        if (startsWith("//"))
            skipTo("\n");
        else if (startsWith("/*"))
            skipTo("*/");
        else if (letter == '#')
            skipLines();
        else if (startsWith("R\"") && !isAfterWord)
            skipRaw();
        else if (letter == '"' || (letter == '\'' && !isAfterWord)) // or it parts digits
            skipQuoted(letter);
        else if (isOfWord(letter))
            takeWord();
        else
            takeSign();
    }

    [[nodiscard]] bool startsWith(std::string_view what) const {
        return m_text.substr(m_at).starts_with(what);
    }

    void skipTo(std::string_view end) {
        const std::size_t found = m_text.find(end, m_at + 1);
        m_at = found == std::string_view::npos ? m_text.size() : found + end.size();
    }

    void skipLines() {
        do {
            skipTo("\n");
        } while (m_at < m_text.size() && m_at > 1 && m_text[m_at - 2] == '\\');
    }

    void skipRaw() {
        const std::size_t open = m_text.find('(', m_at);
        skipTo(")" + std::string(m_text.substr(m_at + 2, open - m_at - 2)) + '"');
    }

    void skipQuoted(char quote) {
        for (++m_at; m_at < m_text.size() && m_text[m_at] != quote; ++m_at)
            if (m_text[m_at] == '\\')
                ++m_at;
        ++m_at;
    }

    void takeWord() {
        const std::size_t begin = m_at;
        while (m_at < m_text.size() && isOfWord(m_text[m_at]))
            ++m_at;
        m_words.emplace_back(m_text.substr(begin, m_at - begin));
    }

    void takeSign() {
        const std::size_t size = startsWith("::") ? 2 : 1;
        if (std::isspace(static_cast<unsigned char>(m_text[m_at])) == 0)
            m_words.emplace_back(m_text.substr(m_at, size));
        m_at += size;
    }

    std::string_view m_text;
    std::size_t m_at = 0;
    std::vector<std::string> m_words;
};

/// The types that a source defines in namespaces that have a name, or in none, with these. What is
/// declared alone, specialised, or stands within a class or function is none of them.
class DefinedTypes {
public:
    explicit DefinedTypes(std::string_view text) {
        const SourceWords source(text);
        for (const std::string& word : source.words())
            take(word);
    }

    [[nodiscard]] const std::set<std::string>& names() const { return m_names; }

private:
    /// What a brace has opened.
    struct Scope {
        bool isNamespace = false;
        std::string name;
    };

    void take(const std::string& word) {
        if (word == "{") {
            m_scopes.push_back(opened());
            m_statement.clear();
        } else if (word == "}") {
            if (!m_scopes.empty())
                m_scopes.pop_back();
            m_statement.clear();
        } else if (word == ";") {
            m_statement.clear();
        } else {
            m_statement.push_back(word);
        }
    }

    [[nodiscard]] Scope opened() {
        const auto space = std::ranges::find(m_statement, "namespace");
        if (space != m_statement.end() && space - m_statement.begin() < 2)
            return {true, joined(space + 1, m_statement.end())};
        if (std::ranges::all_of(m_scopes, &Scope::isNamespace))
            noteType();
        return {};
    }

    void noteType() {
        Place at = afterTemplate();
        const Place last = m_statement.cend();
        const auto isKeyword = [](const std::string& word) {
            return word == "struct" || word == "class" || word == "enum" || word == "union";
        };
        if (at == last || !isKeyword(*at))
            return;
        at = std::find_if_not(at, last, isKeyword); // "enum class"
        const Place end = std::find_if(
            at, last, [](const std::string& word) { return word == ":" || word == "final"; });
        const bool isName = std::all_of(at, end, [](const std::string& word) {
            return word == "::" || std::ranges::all_of(word, isOfWord);
        });
        const bool isHidden = std::ranges::any_of(m_scopes, &std::string::empty, &Scope::name);
        if (isName && !isHidden && isOneName(at, end))
            m_names.insert(spaces() + joined(at, end));
    }

    using Place = std::vector<std::string>::const_iterator;

    /// A name, maybe with the class that it stands in; not what a function gives and its own name.
    [[nodiscard]] static bool isOneName(Place at, Place end) {
        bool isWord = false;
        for (; at != end; ++at) {
            if (isWord != (*at == "::"))
                return false;
            isWord = !isWord;
        }
        return isWord;
    }

    [[nodiscard]] Place afterTemplate() const {
        auto at = m_statement.cbegin();
        if (at == m_statement.cend() || *at != "template")
            return at;
        int depth = 0;
        for (++at; at != m_statement.cend(); ++at) {
            depth += *at == "<" ? 1 : *at == ">" ? -1 : 0;
            if (depth == 0)
                return at + 1;
        }
        return at;
    }

    [[nodiscard]] std::string spaces() const {
        std::string all;
        for (const Scope& scope : m_scopes)
            all += scope.name + "::";
        return all;
    }

    static std::string joined(Place at, Place end) {
        std::string all;
        for (; at != end; ++at)
            all += *at;
        return all;
    }

    std::vector<Scope> m_scopes;
    std::vector<std::string> m_statement;
    std::set<std::string> m_names;
};

TEST(OneDefinition, FindsTypesWhereTheyAreDefined) {
    const DefinedTypes found(R"cpp(
#define BRACE {
namespace kavela::one { namespace {
struct Hidden { int a = 1'000; };
} // namespace }
class Declared;
template <class T> struct Large;
template <> struct Large<int> { int a; };
template <class T, class U = std::vector<T>> class Made final : public Other { class Within {}; };
enum class Kind { One, Two };
struct Outer::Inner { char brace = '{'; const char* text = "class Text {"; };
struct Result made() { struct Local {}; return {}; }
/* struct Away {}; */
}
struct Bare {};
)cpp");
    EXPECT_THAT(found.names(), ElementsAre("Bare", "kavela::one::Kind", "kavela::one::Made",
                                           "kavela::one::Outer::Inner"));
}

TEST(OneDefinition, EveryTypeOfANamespaceStandsInOneFile) {
    std::map<std::string, std::set<std::string>> files; ///< by type
    for (const auto& entry : fs::recursive_directory_iterator(KAVELA_SOURCES)) {
        const fs::path extension = entry.path().extension();
        if (extension != ".h" && extension != ".cpp")
            continue;
        const DefinedTypes types(readTextFile(entry.path()));
        for (const std::string& name : types.names())
            files[name].insert(fs::relative(entry.path(), KAVELA_SOURCES).string());
    }
    ASSERT_GT(files.size(), 1000U) << "they are read at all";
    for (const auto& [name, where] : files)
        EXPECT_EQ(where.size(), 1U) << name << " is defined in " << ::testing::PrintToString(where);
}

} // namespace
} // namespace kavela::test
