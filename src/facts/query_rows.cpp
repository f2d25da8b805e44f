#include "facts/query_rows.h"

namespace kavela {

namespace {

constexpr std::int64_t LeastMissedGate = 50;

} // namespace

std::size_t sectionOfGate(const FactStore& facts, const FileRow& file, std::int64_t gate) {
    for (std::size_t i = 0; i < facts.definedSections(file); ++i) {
        const auto gates = facts.definedSection(file, i);
        if (std::ranges::find(gates, gate) != gates.end())
            return i + 1;
    }
    return 0;
}

RunPenalties::RunPenalties(const FactStore& facts, const FileRow& file, const RunRow& run)
    : m_facts(facts),
      m_run(run),
      m_pens(facts.pensOf(run)),
      m_isByGate(file.gates > 0 && std::cmp_equal(m_pens.size(), file.gates)) {}

std::int64_t RunPenalties::secondsOf(const PenaltyRow& row) const {
    const bool isOnCourse =
        m_isByGate && row.gate >= 1 && std::cmp_less_equal(row.gate, m_pens.size());
    const std::int64_t told = isOnCourse ? m_pens[static_cast<std::size_t>(row.gate - 1)] : 0;
    return told > 0 ? told : penaltySecondsOf(row.penkind).value_or(0);
}

bool RunPenalties::isDescribed(std::int32_t gate) const {
    const auto rows = m_facts.penaltiesOf(m_run);
    return std::ranges::find(rows, gate, &PenaltyRow::gate) != rows.end();
}

PenaltyRow RunPenalties::bare(std::int32_t gate, std::int64_t seconds) {
    PenaltyRow row;
    row.gate = gate;
    row.penkind = static_cast<std::int32_t>(
        seconds < LeastMissedGate ? PenaltyKindCode::Touch : PenaltyKindCode::MissedGate);
    return row;
}

RowCursor cursorOf(const FactStore& facts, std::size_t run) {
    RowCursor cursor;
    cursor.facts = &facts;
    cursor.run = &facts.runs()[run];
    cursor.file = &facts.fileOf(*cursor.run);
    cursor.runIndex = run;
    return cursor;
}

} // namespace kavela
