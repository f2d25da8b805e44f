#pragma once

#include "analysis/table_figures.h"
#include "page/athlete_page.h"
#include "performance/loss_reference.h"
#include "performance/losses.h"
#include "splitdata/section_strokes.h"

#include <cstddef>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace kavela::page {

/// Strokes of a section, or of a run; nothing where they are not known.
struct PageStrokes {
    std::optional<std::size_t> count;
    std::optional<double> perMinute;
};

/// One race of the athlete with all that its part of the page is written from. The table is the
/// analyzer's own, so that colours and digits are; losses are those of the facts of the file.
class RaceOnPage {
public:
    /// `number` is its place among the races of the call, which films name it by.
    RaceOnPage(RaceFile file, std::size_t number, const PageChoice& choice);
    RaceOnPage(const RaceOnPage&) = delete;
    RaceOnPage& operator=(const RaceOnPage&) = delete;
    RaceOnPage(RaceOnPage&&) = default;
    RaceOnPage& operator=(RaceOnPage&&) = default;

    [[nodiscard]] const FactStore& facts() const { return m_facts; }
    [[nodiscard]] const FileRow& file() const { return m_facts.files().front(); }
    [[nodiscard]] const RaceSet& set() const { return m_set; }
    [[nodiscard]] const SplitTable& table() const { return m_table; }
    [[nodiscard]] const TableFigures& figures() const { return *m_figures; }
    [[nodiscard]] const LossRivals& rivals() const { return *m_rivals; }
    [[nodiscard]] const TableSettings& settings() const { return m_settings; }
    [[nodiscard]] std::size_t number() const { return m_number; }

    /// The athlete's runs, by their rows of the table.
    [[nodiscard]] const std::vector<std::size_t>& own() const { return m_own; }
    /// The number in the file, and so in the facts, of a row of the table.
    [[nodiscard]] std::size_t runOf(std::size_t row) const {
        return static_cast<std::size_t>(m_set.alldata[row].athleteInt);
    }
    [[nodiscard]] const RunRow& factsOf(std::size_t row) const {
        return m_facts.runs()[runOf(row)];
    }
    /// The row of a run; none for one that the choice leaves out.
    [[nodiscard]] std::optional<std::size_t> rowOf(std::size_t run) const;
    /// Against the winner of its group, by the place in own().
    [[nodiscard]] const RunLosses& lossesOf(std::size_t own) const { return m_losses[own]; }
    /// By section, then the whole run, by the place in own(). Those marked on the film, else those
    /// of an attached recording.
    [[nodiscard]] const std::vector<PageStrokes>& strokesOf(std::size_t own) const {
        return m_strokes[own];
    }

    /// "Riverside Cup"; the file's name where the race has none.
    [[nodiscard]] std::string title() const;
    /// What the sections are called, as the columns of the table are.
    [[nodiscard]] std::string sectionTitle(std::size_t section) const;
    [[nodiscard]] std::size_t sections() const { return m_table.columns.size() - ClosingColumns; }
    static constexpr std::size_t ClosingColumns = 3; ///< total, sprint, real

private:
    std::size_t m_number;
    TableSettings m_settings;
    FactStore m_facts;
    RaceSet m_set;
    SplitTable m_table; ///< its rows point into the set, whose runs stay where they are when moved
    std::optional<TableFigures> m_figures;
    std::optional<LossRivals> m_rivals;
    std::vector<std::size_t> m_own;
    std::vector<RunLosses> m_losses;
    std::vector<std::vector<PageStrokes>> m_strokes;
};

/// "Final", "Run 3": what a run is called within its race.
[[nodiscard]] std::string runTitle(const RaceOnPage& race, std::size_t own);

} // namespace kavela::page
