#include "common/delimited_text.h"

#include "common/text.h"

#include <algorithm>

namespace kavela {

namespace {

constexpr std::size_t MostFields = 256;
constexpr std::string_view FieldBlanks = " \t\r";

std::string_view withoutBlanksAround(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(FieldBlanks), text.size()));
    return text.substr(0, text.find_last_not_of(FieldBlanks) + 1);
}

/// Behind the quote that closes the one at the front, or behind the line where none does.
std::size_t endOfQuotes(std::string_view line) {
    for (std::size_t i = 1; i < line.size(); ++i) {
        if (line[i] != '"')
            continue;
        if (i + 1 == line.size() || line[i + 1] != '"')
            return i + 1;
        ++i; // a doubled quote stands for one
    }
    return line.size();
}

/// Where the field at the front of a line ends.
std::size_t endOfField(std::string_view line, char separator, FieldForm form) {
    // A tab that separates is no blank.
    const std::size_t first = line.find_first_not_of(separator == '\t' ? " \r" : " \t\r");
    const bool isQuoted =
        form == FieldForm::Bare && first != std::string_view::npos && line[first] == '"';
    const std::size_t from = isQuoted ? first + endOfQuotes(line.substr(first)) : 0;
    return std::min(line.find(separator, from), line.size());
}

std::string_view bare(std::string_view field) {
    field = withoutBlanksAround(field);
    const bool isQuoted = field.size() >= 2 && field.front() == '"' && field.back() == '"';
    return isQuoted ? field.substr(1, field.size() - 2) : field;
}

} // namespace

std::string_view takeLine(std::string_view& text) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    std::string_view line = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    if (line.ends_with('\r'))
        line.remove_suffix(1);
    return line;
}

bool isBlankLine(std::string_view line) {
    return line.find_first_not_of(FieldBlanks) == std::string_view::npos;
}

char separatorOf(std::string_view titles) {
    titles = takeLine(titles);
    for (const char separator : {';', '\t'})
        if (titles.find(separator) != std::string_view::npos)
            return separator;
    return ',';
}

void splitFields(std::string_view line, char separator, std::vector<std::string_view>& fields,
                 FieldForm form) {
    fields.clear();
    while (fields.size() < MostFields) {
        const std::size_t end = endOfField(line, separator, form);
        const std::string_view field = line.substr(0, end);
        fields.push_back(form == FieldForm::Bare ? bare(field) : field);
        if (end == line.size())
            return;
        line.remove_prefix(end + 1);
    }
}

std::string csvField(std::string_view text, char separator) {
    const bool isPlain =
        text.find_first_of("\"\n\r") == text.npos && text.find(separator) == text.npos;
    if (isPlain)
        return std::string(text);
    std::string quoted = "\"";
    for (const char c : text)
        quoted += c == '"' ? std::string(2, c) : std::string(1, c);
    return quoted + '"';
}

std::string withSingleQuotes(std::string_view field) {
    std::string single;
    for (std::size_t i = 0; i < field.size(); ++i) {
        single += field[i];
        i += field.substr(i).starts_with("\"\"") ? 1 : 0;
    }
    return single;
}

bool DelimitedReader::next() {
    while (!m_text.empty()) {
        const std::string_view line = takeLine(m_text);
        ++m_number;
        if (isBlankLine(line))
            continue;
        splitFields(line, m_separator, m_fields, m_form);
        return true;
    }
    return false;
}

std::string_view DelimitedReader::field(std::size_t column) const {
    return column < m_fields.size() ? m_fields[column] : std::string_view();
}

std::string DelimitedReader::lack(std::size_t needed, std::string_view neededInWords) const {
    return lackOfFields(m_fields.size(), needed, neededInWords);
}

std::string lackOfFields(std::size_t count, std::size_t needed, std::string_view neededInWords) {
    if (count >= needed)
        return {};
    return say("{} where {} are needed",
               sayCount(static_cast<std::int64_t>(count), "{} field", "{} fields"),
               translated(neededInWords));
}

} // namespace kavela
