#include "results/list_lines.h"

namespace kavela {

std::vector<ListLine> linesBelowTitles(std::string_view text) {
    std::vector<ListLine> lines;
    DelimitedReader reader(text, ';');
    while (reader.next()) {
        if (reader.number() == 1)
            continue;
        ListLine& line = lines.emplace_back(ListLine{reader.number(), {}});
        for (const std::string_view field : reader.fields())
            line.fields.push_back(withSingleQuotes(field));
    }
    return lines;
}

} // namespace kavela
