#pragma once

#include "common/number_text.h"
#include "facts/query_columns.h"
#include "splitdata/run_totals.h"

#include <algorithm>
#include <span>
#include <utility>

/// Going through the rows that a query is about, run by run.
namespace kavela {

/// The section, from 1, whose defined gates hold a gate; 0 where none does.
[[nodiscard]] std::size_t sectionOfGate(const FactStore& facts, const FileRow& file,
                                        std::int64_t gate);

/// The penalties of a run: those that were described, and behind them those of which the run's
/// seconds alone tell.
class RunPenalties {
public:
    RunPenalties(const FactStore& facts, const FileRow& file, const RunRow& run);

    template <class Visit>
    void forEach(const Visit& visit) const {
        for (const PenaltyRow& row : m_facts.penaltiesOf(m_run))
            visit(row, secondsOf(row), std::size_t{0});
        if (m_isByGate)
            for (std::size_t i = 0; i < m_pens.size(); ++i) {
                const auto gate = static_cast<std::int32_t>(i + 1);
                if (m_pens[i] > 0 && !isDescribed(gate))
                    visit(bare(gate, m_pens[i]), m_pens[i], std::size_t{0});
            }
        else if (m_facts.penaltiesOf(m_run).empty())
            for (std::size_t i = 0; i < m_facts.sectionsOf(m_run).size(); ++i)
                if (const std::int64_t seconds = m_facts.sectionsOf(m_run)[i].pen; seconds > 0)
                    visit(bare(PenaltyRow::NoCode, seconds), seconds, i + 1);
    }

private:
    [[nodiscard]] std::int64_t secondsOf(const PenaltyRow& row) const;
    [[nodiscard]] bool isDescribed(std::int32_t gate) const;
    [[nodiscard]] static PenaltyRow bare(std::int32_t gate, std::int64_t seconds);

    const FactStore& m_facts;
    const RunRow& m_run;
    std::span<const std::int64_t> m_pens;
    bool m_isByGate = false;
};

/// Calls `visit(cursor, entry)` for every row of a run; the cursor holds what the run's rows share.
template <class Visit>
void forEachRow(What what, RowCursor& cursor, const Visit& visit) {
    std::uint32_t entry = 0;
    const auto each = [&](const auto& rows, auto RowCursor::*member) {
        for (const auto& row : rows) {
            cursor.*member = &row;
            visit(cursor, entry++);
        }
    };
    const FactStore& facts = *cursor.facts;
    switch (what) {
    case What::Runs:
        visit(cursor, entry);
        return;
    case What::Sections:
    case What::Strokes:
        for (const SectionRow& row : facts.sectionsOf(*cursor.run)) {
            cursor.sectionRow = &row;
            cursor.section = ++entry;
            const bool isWanted = what == What::Sections ? isTakenTime(row.time)
                                                         : row.left + row.right + row.other > 0;
            if (isWanted)
                visit(cursor, entry - 1);
        }
        return;
    case What::Gates:
        each(facts.gatesOf(*cursor.run), &RowCursor::gate);
        return;
    case What::Losses:
        each(facts.lossesOf(*cursor.run), &RowCursor::loss);
        return;
    case What::Tags:
        each(facts.tagsOf(*cursor.run), &RowCursor::tag);
        return;
    case What::Penalties:
        RunPenalties(facts, *cursor.file, *cursor.run)
            .forEach([&](const PenaltyRow& row, std::int64_t seconds, std::size_t section) {
                cursor.penalty = &row;
                cursor.seconds = seconds;
                cursor.section = section;
                visit(cursor, entry++);
            });
        return;
    }
}

/// Calls `use(cursor)` at one of the rows of a run, by its entry there.
template <class Use>
void atRow(What what, RowCursor cursor, std::uint32_t entry, const Use& use) {
    const FactStore& facts = *cursor.facts;
    switch (what) {
    case What::Runs:
        break;
    case What::Sections:
    case What::Strokes:
        cursor.sectionRow = &facts.sectionsOf(*cursor.run)[entry];
        cursor.section = entry + 1;
        break;
    case What::Gates:
        cursor.gate = &facts.gatesOf(*cursor.run)[entry];
        break;
    case What::Losses:
        cursor.loss = &facts.lossesOf(*cursor.run)[entry];
        break;
    case What::Tags:
        cursor.tag = &facts.tagsOf(*cursor.run)[entry];
        break;
    case What::Penalties: // some of which stand in no table
        forEachRow(what, cursor, [&](const RowCursor& row, std::uint32_t at) {
            if (at == entry)
                use(row);
        });
        return;
    }
    use(std::as_const(cursor));
}

/// The cursor of a run, at none of its rows yet.
[[nodiscard]] RowCursor cursorOf(const FactStore& facts, std::size_t run);

} // namespace kavela
