#include "facts/query_part.h"

#include "facts/query_rows.h"

#include <cmath>

namespace kavela {

QueryPart::QueryPart(const RowSearch& search)
    : m_search(search), m_matcher(search.facts, search.query), m_rows(search.sorted) {
    if (!search.query.by.empty())
        m_groups.emplace(search.query.by, search.measured);
}

void QueryPart::collect(std::span<const FileRow> files) {
    for (const FileRow& file : files)
        for (std::uint32_t i = 0; i < file.runs.count; ++i) {
            RowCursor cursor = cursorOf(m_search.facts, file.runs.first + i);
            if (i == 0 && !m_matcher.matches(cursor, ColumnLevel::File))
                break;
            if (!m_search.ranks.empty())
                cursor.rank = m_search.ranks[cursor.runIndex];
            if (m_matcher.matches(cursor, ColumnLevel::Run))
                collectRun(cursor);
        }
}

void QueryPart::collectRun(RowCursor& cursor) {
    if (m_groups)
        m_groups->startRun();
    const QueryColumn* const best = m_search.query.best;
    const QueryColumn* const needed = best ? best : m_search.needed;
    forEachRow(m_search.query.what, cursor, [&](const RowCursor& row, std::uint32_t entry) {
        if (!m_matcher.matches(row, ColumnLevel::Row))
            return;
        const double value = needed ? needed->number(row) : 0;
        if (std::isnan(value))
            return;
        if (m_search.only && groupKeyOf(m_search.by, row) != *m_search.only)
            return;
        const FoundRow found{static_cast<std::uint32_t>(row.runIndex), entry, 0};
        if (m_groups)
            m_groups->add(row, found);
        else if (!best || isAmongBest(value))
            m_rows.add(row, found);
    });
}

/// Whether no row before had a lower value; those with a higher one are forgotten.
bool QueryPart::isAmongBest(double value) {
    if (!m_rows.empty() && value > m_least)
        return false;
    if (value < m_least || m_rows.empty()) {
        m_least = value;
        m_rows.clear();
    }
    return true;
}

} // namespace kavela
