#include "tables/list_source.h"

#include "common/error.h"
#include "common/folded_text.h"
#include "common/text.h"
#include "common/text_file.h"
#include "tables/list_reader.h"
#include "tables/sheet_reader.h"
#include "tables/table_error.h"

#include <algorithm>
#include <utility>

namespace kavela {

namespace {

ListText textOfList(std::string bytes) {
    try {
        return listTextOf(std::move(bytes));
    } catch (const DecodeError&) {
        throw TableError(say("This is neither text nor a spreadsheet (.xlsx, .ods)."));
    }
}

} // namespace

std::vector<ListGrid> readLists(std::string bytes) {
    const ListFormat format = listFormatOf(bytes);
    if (format == ListFormat::Pdf)
        throw TableError(say("This is a PDF, which has no columns to read; open it in a viewer."));
    std::vector<ListGrid> lists;
    if (format == ListFormat::Text) {
        const ListText text = textOfList(std::move(bytes));
        lists.push_back(readList(text.text));
        if (text.isLatin1)
            lists.back().notes.push_back(
                say("The text is no UTF-8 and was read as Latin-1; look at "
                    "the letters with accents."));
    } else {
        lists = readSheets(bytes);
    }
    std::erase_if(lists,
                  [](const ListGrid& list) { return list.lines.empty() && list.refused.empty(); });
    if (lists.empty())
        throw TableError(say("There is nothing in it."));
    return lists;
}

ListGrid chosenList(std::vector<ListGrid> lists, std::string_view name) {
    if (lists.size() == 1 && name.empty())
        return std::move(lists.front());
    if (lists.size() == 1 && lists.front().isText())
        throw TableError(say("A text has no sheet \"{}\".", name));
    const std::string wanted = folded(name);
    std::string names;
    for (ListGrid& list : lists) {
        if (!name.empty() && folded(list.name) == wanted)
            return std::move(list);
        names += (names.empty() ? "\"" : ", \"") + list.name + '"';
    }
    throw TableError(name.empty() ? say("There are several sheets; choose one of {}.", names)
                                  : say("There is no sheet \"{}\"; there is {}.", name, names));
}

} // namespace kavela
