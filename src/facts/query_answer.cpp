#include "facts/query.h"

#include "common/number_text.h"
#include "facts/query_rows.h"

#include <fmt/format.h>

#include <array>
#include <chrono>
#include <cmath>

namespace kavela {

namespace {

std::string queryDayText(double day) {
    const std::chrono::year_month_day date{
        std::chrono::sys_days(std::chrono::days(static_cast<int>(day)))};
    return fmt::format("{:04}-{:02}-{:02}", static_cast<int>(date.year()),
                       static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()));
}

double beginOfSection(const RowCursor& row, std::size_t section) {
    const auto sections = row.facts->sectionsOf(*row.run);
    if (section <= 1 || section > sections.size())
        return row.run->start;
    return sections[section - 2].end;
}

std::optional<std::size_t> gateOf(const RowCursor& row) {
    const std::int64_t gate = row.gate ? row.gate->gate : row.penalty ? row.penalty->gate : 0;
    return gate > 0 ? std::optional(static_cast<std::size_t>(gate)) : std::nullopt;
}

/// Of a penalty that was described, a loss or a tag: its place in the list of its run.
std::optional<std::size_t> entryOf(const RowCursor& row) {
    const auto placeIn = [](const auto rows, const auto* of) -> std::optional<std::size_t> {
        for (std::size_t i = 0; i < rows.size(); ++i)
            if (&rows[i] == of)
                return i;
        return std::nullopt;
    };
    return row.loss      ? placeIn(row.facts->lossesOf(*row.run), row.loss)
           : row.tag     ? placeIn(row.facts->tagsOf(*row.run), row.tag)
           : row.penalty ? placeIn(row.facts->penaltiesOf(*row.run), row.penalty)
                         : std::nullopt;
}

FoundPlace placeOf(What what, const RowCursor& row) {
    FoundPlace place;
    place.run = row.runIndex;
    place.gate = gateOf(row);
    place.entry = entryOf(row);
    std::size_t section = row.section;
    if (row.gate)
        section = sectionOfGate(*row.facts, *row.file, row.gate->gate);
    else if (row.penalty && section == 0)
        section = sectionOfGate(*row.facts, *row.file, row.penalty->gate);
    if (section > 0)
        place.section = section;
    place.at = beginOfSection(row, section);
    if (row.gate && !std::isnan(row.gate->at))
        place.at = row.gate->at;
    if (what == What::Losses)
        place.at = row.loss->at;
    if (what == What::Tags) {
        place.at = row.tag->at;
        place.film = row.tag->film > 0 ? static_cast<std::size_t>(row.tag->film) : 0;
    }
    return place;
}

} // namespace

FoundValue foundValue(const QueryColumn& column, const RowCursor& row) {
    FoundValue value;
    if (column.isText())
        value.text = column.text(row);
    else
        value.number = column.number(row);
    return value;
}

FoundValue QueryAnswer::value(std::size_t row, std::size_t column) const {
    const FoundRow& found = m_rows[row];
    const FoundColumn& asked = m_columns[column];
    if (!m_query.by.empty()) {
        const FoundGroup& group = m_groups[found.group];
        const std::array figures{group.count, group.best, group.mean, group.median};
        return asked.isFigure ? FoundValue{figures[column - group.keys.size()], 0}
                              : group.keys[column];
    }
    RowCursor cursor = cursorOf(*m_facts, found.run);
    if (!m_ranks.empty())
        cursor.rank = m_ranks[found.run];
    FoundValue value;
    if (asked.column->level != ColumnLevel::Row)
        return foundValue(*asked.column, cursor);
    atRow(m_query.what, cursor, found.entry,
          [&](const RowCursor& at) { value = foundValue(*asked.column, at); });
    return value;
}

std::string QueryAnswer::text(std::size_t row, std::size_t column) const {
    const FoundValue found = value(row, column);
    const QueryColumn* const asked = m_columns[column].column;
    const bool isFigure = m_columns[column].isFigure;
    if (asked && asked->isText() && !isFigure)
        return std::string(m_facts->text(found.text));
    if (std::isnan(found.number))
        return {};
    if (!asked)
        return plainText(found.number);
    if (isFigure || asked->kind == ColumnKind::Measure)
        return hundredthsText(found.number);
    if (asked->kind == ColumnKind::Day)
        return queryDayText(found.number);
    if (asked->kind == ColumnKind::Number)
        return plainText(found.number);
    return valueWord(*asked, found.number);
}

FoundPlace QueryAnswer::place(std::size_t row) const {
    FoundPlace place;
    atRow(m_query.what, cursorOf(*m_facts, m_rows[row].run), m_rows[row].entry,
          [&](const RowCursor& at) { place = placeOf(m_query.what, at); });
    return place;
}

} // namespace kavela
