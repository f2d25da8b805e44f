#include "results/list_lines.h"

#include <algorithm>

namespace kavela {

namespace {

std::string_view takeUpTo(char mark, std::string_view& text) {
    const std::size_t end = std::min(text.find(mark), text.size());
    const std::string_view taken = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    return taken;
}

std::string_view withoutBlanks(std::string_view text) {
    constexpr std::string_view Blanks = " \t\r";
    text.remove_prefix(std::min(text.find_first_not_of(Blanks), text.size()));
    return text.substr(0, text.find_last_not_of(Blanks) + 1);
}

/// Takes a field in quotes, in which a doubled quote stands for one.
std::string takeQuoted(std::string_view& line) {
    std::string field;
    line.remove_prefix(1);
    while (!line.empty()) {
        field += takeUpTo('"', line);
        if (!line.starts_with('"'))
            break;
        field += '"';
        line.remove_prefix(1);
    }
    field += takeUpTo(';', line);
    return field;
}

std::vector<std::string> fieldsOf(std::string_view text) {
    const std::string ended = std::string(text) + ';'; // now a mark ends every field
    std::string_view line = ended;
    std::vector<std::string> fields;
    while (!line.empty()) {
        line = withoutBlanks(line);
        const std::string field =
            line.starts_with('"') ? takeQuoted(line) : std::string(takeUpTo(';', line));
        fields.emplace_back(withoutBlanks(field));
    }
    return fields;
}

} // namespace

std::vector<ListLine> linesBelowTitles(std::string_view text) {
    std::vector<ListLine> lines;
    for (std::int64_t number = 1; !text.empty(); ++number) {
        const std::string_view line = withoutBlanks(takeUpTo('\n', text));
        if (number > 1 && !line.empty())
            lines.push_back({number, fieldsOf(line)});
    }
    return lines;
}

} // namespace kavela
