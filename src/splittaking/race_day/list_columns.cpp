#include "splittaking/race_day/list_columns.h"

#include "common/delimited_text.h"
#include "common/folded_text.h"

#include <algorithm>
#include <array>

namespace kavela {

namespace {

struct ColumnTitle {
    std::string_view title; ///< folded, without dots and colons
    ListColumn column;
};

/// The likeliest titles of a column first.
constexpr std::array KnownColumnTitles =
    std::to_array<ColumnTitle>({{"bib", ListColumn::Bib},
                                {"bib no", ListColumn::Bib},
                                {"bib number", ListColumn::Bib},
                                {"start no", ListColumn::Bib},
                                {"start number", ListColumn::Bib},
                                {"startnumber", ListColumn::Bib},
                                {"startnummer", ListColumn::Bib},
                                {"nr", ListColumn::Bib},
                                {"no", ListColumn::Bib},
                                {"number", ListColumn::Bib},
                                {"name", ListColumn::Name},
                                {"names", ListColumn::Name},
                                {"athlete", ListColumn::Name},
                                {"athletes", ListColumn::Name},
                                {"crew", ListColumn::Name},
                                {"competitor", ListColumn::Name},
                                {"first name", ListColumn::FirstName},
                                {"firstname", ListColumn::FirstName},
                                {"given name", ListColumn::FirstName},
                                {"vorname", ListColumn::FirstName},
                                {"last name", ListColumn::LastName},
                                {"lastname", ListColumn::LastName},
                                {"family name", ListColumn::LastName},
                                {"surname", ListColumn::LastName},
                                {"category", ListColumn::Category},
                                {"cat", ListColumn::Category},
                                {"class", ListColumn::Category},
                                {"event", ListColumn::Category},
                                {"boat class", ListColumn::Category},
                                {"phase", ListColumn::Phase},
                                {"round", ListColumn::Phase},
                                {"heat", ListColumn::Phase},
                                {"run", ListColumn::Run},
                                {"run no", ListColumn::Run},
                                {"start", ListColumn::Start},
                                {"time", ListColumn::Start},
                                {"start time", ListColumn::Start},
                                {"starttime", ListColumn::Start},
                                {"order", ListColumn::Order},
                                {"start order", ListColumn::Order},
                                {"startorder", ListColumn::Order}});

std::string plainTitle(std::string_view text) {
    std::string title = folded(text);
    std::erase_if(title, [](char c) { return c == '.' || c == ':'; });
    return title;
}

} // namespace

ListColumns ListColumns::byTitle(const std::vector<std::string_view>& titles) {
    std::vector<std::string> plain;
    for (const std::string_view title : titles)
        plain.push_back(plainTitle(title));
    ListColumns columns;
    for (const ColumnTitle& known : KnownColumnTitles)
        if (const auto found = std::ranges::find(plain, known.title); found != plain.end())
            columns.m_places.try_emplace(known.column,
                                         static_cast<std::size_t>(found - plain.begin()));
    return columns;
}

bool ListColumns::hasName() const {
    return has(ListColumn::Name) || has(ListColumn::FirstName) || has(ListColumn::LastName);
}

std::string ListColumns::text(const DelimitedReader& line, ListColumn column) const {
    const auto place = m_places.find(column);
    return place == m_places.end() ? std::string() : withSingleQuotes(line.field(place->second));
}

/// Where a first name has a column and the last one none, "name" is the last one.
std::string ListColumns::name(const DelimitedReader& line) const {
    const std::string first = text(line, ListColumn::FirstName);
    const std::string whole = text(line, ListColumn::Name);
    if (!whole.empty() &&
        (first.empty() || has(ListColumn::LastName) || whole.find(first) != std::string::npos))
        return whole;
    const std::string last = whole.empty() ? text(line, ListColumn::LastName) : whole;
    return first.empty() || last.empty() ? first + last : first + ' ' + last;
}

} // namespace kavela
