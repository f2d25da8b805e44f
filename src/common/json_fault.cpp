#include "common/json_fault.h"

#include "common/text.h"
#include "common/utf8.h"

#include <charconv>
#include <vector>

namespace kavela {

namespace {

/// Reads a document piece by piece. Objects and arrays that are open stand on a stack of their own:
/// a damaged file can open any number of them.
class FaultFinder {
public:
    explicit FaultFinder(std::string_view text) : m_text(text) {}

    std::optional<JsonFault> find() {
        do
            skipBlanks();
        while (!m_isDone && takePiece());
        return m_fault;
    }

private:
    enum class Due { Value, FirstValue, Key, FirstKey, Colon, End };

    [[nodiscard]] bool isAtEnd() const { return m_at == m_text.size(); }
    [[nodiscard]] char next() const { return isAtEnd() ? '\0' : m_text[m_at]; }

    bool take(char c) {
        const bool isNext = !isAtEnd() && next() == c;
        m_at += isNext ? 1 : 0;
        return isNext;
    }

    bool fail(std::string_view what) {
        m_fault = {m_at + 1, isAtEnd()
                                 ? KAVELA_TEXT("the text ends too early (the file may be cut off)")
                                 : what};
        return false;
    }

    void skipBlanks() {
        while (take(' ') || take('\n') || take('\r') || take('\t')) {
        }
    }

    bool takePiece() {
        switch (m_due) {
        case Due::FirstValue:
            return take(']') ? close() : takeValue();
        case Due::Value:
            return takeValue();
        case Due::FirstKey:
            return take('}') ? close() : takeKey();
        case Due::Key:
            return takeKey();
        case Due::Colon:
            m_due = Due::Value;
            return take(':') || fail(KAVELA_TEXT("a colon is due"));
        case Due::End:
            return takeEnd();
        }
        return false;
    }

    bool open(char end, Due due) {
        m_open.push_back(end);
        m_due = due;
        return true;
    }

    bool close() {
        m_open.pop_back();
        m_due = Due::End;
        return true;
    }

    bool takeKey() {
        m_due = Due::Colon;
        return take('"') ? takeText() : fail(KAVELA_TEXT("a key is due"));
    }

    bool takeValue() {
        m_due = Due::End;
        if (take('{'))
            return open('}', Due::FirstKey);
        if (take('['))
            return open(']', Due::FirstValue);
        if (take('"'))
            return takeText();
        if (next() == '-' || isDigit())
            return takeNumber();
        for (const std::string_view word : {"true", "false", "null"}) {
            if (m_text.substr(m_at).starts_with(word)) {
                m_at += word.size();
                return true;
            }
        }
        return fail(KAVELA_TEXT("a value is due"));
    }

    bool takeEnd() {
        if (m_open.empty()) {
            m_isDone = isAtEnd();
            return m_isDone || fail(KAVELA_TEXT("something stands behind the document"));
        }
        const bool isObject = m_open.back() == '}';
        if (take(m_open.back()))
            return close();
        m_due = isObject ? Due::Key : Due::Value;
        return take(',') || fail(isObject ? KAVELA_TEXT("a comma or } is due")
                                          : KAVELA_TEXT("a comma or ] is due"));
    }

    /// The rest of a text, behind its first quote.
    bool takeText() {
        while (!isAtEnd()) {
            if (take('"'))
                return true;
            if (static_cast<unsigned char>(next()) < ' ')
                return fail(KAVELA_TEXT("a text holds a control character"));
            if (next() == '\\' ? !takeEscape() : !takeLetter())
                return false;
        }
        return fail({});
    }

    bool takeLetter() {
        std::string_view rest = m_text.substr(m_at);
        if (!takeCharacter(rest))
            return fail(KAVELA_TEXT("a byte is no UTF-8 text"));
        m_at = m_text.size() - rest.size();
        return true;
    }

    bool takeEscape() {
        constexpr std::string_view Hexadecimal = "0123456789abcdefABCDEF";
        ++m_at;
        if (!isAtEnd() && std::string_view("\"\\/bfnrt").find(next()) != std::string_view::npos) {
            ++m_at;
            return true;
        }
        if (!take('u'))
            return fail(KAVELA_TEXT("a text holds a malformed escape"));
        for (int digit = 0; digit < 4; ++digit, ++m_at)
            if (isAtEnd() || Hexadecimal.find(next()) == std::string_view::npos)
                return fail(KAVELA_TEXT("a text holds a malformed escape"));
        return true;
    }

    [[nodiscard]] bool isDigit() const { return next() >= '0' && next() <= '9'; }

    bool takeDigits() {
        if (!isDigit())
            return fail(KAVELA_TEXT("a digit is due"));
        while (isDigit())
            ++m_at;
        return true;
    }

    bool takeNumber() {
        const std::size_t begin = m_at;
        take('-');
        // Nothing follows a zero in front.
        if (!take('0') && !takeDigits())
            return false;
        if (take('.') && !takeDigits())
            return false;
        bool isTiny = false;
        if (take('e') || take('E')) {
            isTiny = take('-');
            if (!isTiny)
                take('+');
            if (!takeDigits())
                return false;
        }
        double value = 0;
        const auto read = std::from_chars(m_text.data() + begin, m_text.data() + m_at, value);
        if (read.ec != std::errc::result_out_of_range || isTiny)
            return true;
        m_fault = {begin + 1, KAVELA_TEXT("a number is out of range")};
        return false;
    }

    std::string_view m_text;
    std::size_t m_at = 0;
    Due m_due = Due::Value;
    std::vector<char> m_open; ///< the signs that close what is open
    bool m_isDone = false;
    std::optional<JsonFault> m_fault;
};

} // namespace

std::optional<JsonFault> findJsonFault(std::string_view text) {
    return FaultFinder(text).find();
}

} // namespace kavela
