#pragma once

#include <charconv>
#include <cstdint>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

/// Lists that people, devices and spreadsheets write: a line for each entry, its fields apart by a
/// separator, titles in the first line.
namespace kavela {

/// How a field is given.
enum class FieldForm {
    Bare,     ///< without blanks around it and without the quotes that spreadsheets put around it
    AsWritten ///< as it stands; quotes then hide no separator
};

/// Takes the next line off a text that is not empty, without its line end.
[[nodiscard]] std::string_view takeLine(std::string_view& text);

[[nodiscard]] bool isBlankLine(std::string_view line);

/// What separates the titles of a list: a semicolon or a tab where there is one, otherwise a comma.
[[nodiscard]] char separatorOf(std::string_view titles);

/// The fields of a line; those beyond the first 256 are left out. A separator within quotes, which
/// begin a field, separates nothing.
void splitFields(std::string_view line, char separator, std::vector<std::string_view>& fields,
                 FieldForm form = FieldForm::Bare);

/// A bare field in which doubled quotes stand for one.
[[nodiscard]] std::string withSingleQuotes(std::string_view field);

/// A field of a list with semicolons, in quotes where it needs them.
[[nodiscard]] std::string csvField(const std::string& text);

/// Goes through the lines of a list that have something on them.
class DelimitedReader {
public:
    /// The separator is the one of the first line.
    explicit DelimitedReader(std::string_view text) : DelimitedReader(text, separatorOf(text)) {}
    DelimitedReader(std::string_view text, char separator, FieldForm form = FieldForm::Bare)
        : m_text(text), m_separator(separator), m_form(form) {}

    /// Goes to the next line; false when there is none.
    [[nodiscard]] bool next();
    /// The line's number, counted from 1 with the blank ones.
    [[nodiscard]] std::int64_t number() const { return m_number; }
    [[nodiscard]] const std::vector<std::string_view>& fields() const { return m_fields; }
    /// A field of the line; an empty one where the line is too short.
    [[nodiscard]] std::string_view field(std::size_t column) const;
    /// What is wrong when a line has too few fields, such as "2 fields where six are needed"; empty
    /// when it has enough.
    [[nodiscard]] std::string lack(std::size_t needed, std::string_view neededInWords) const;

private:
    std::string_view m_text;
    char m_separator;
    FieldForm m_form;
    std::int64_t m_number = 0;
    std::vector<std::string_view> m_fields;
};

/// The same for fields that were kept.
[[nodiscard]] std::string lackOfFields(std::size_t count, std::size_t needed,
                                       std::string_view neededInWords);

/// Reads a whole field as a number in plain form with a point; false when it is none.
template <class Number>
[[nodiscard]] bool parseField(std::string_view field, Number& number) {
    if (field.starts_with('+') && !field.starts_with("+-"))
        field.remove_prefix(1);
    const char* const end = field.data() + field.size();
    const auto [rest, fault] = std::from_chars(field.data(), end, number);
    return fault == std::errc() && rest == end;
}

} // namespace kavela
