#include "page/race_part.h"

#include "common/reference_date.h"
#include "common/text.h"
#include "page/cell_classes.h"
#include "page/html_text.h"
#include "page/run_part.h"
#include "performance/loss_counts.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <set>
#include <vector>

namespace kavela::page {

namespace {

/// More rows than any phase of a race has make no page for a telephone.
constexpr std::size_t MostTableRows = 120;

/// Rows that competed with one another, the first in rank in front.
struct RankedRow {
    std::size_t row = 0;
    std::optional<int> rank;
    bool isOwn = false;
};

/// The split table of one group of runs.
class GroupTable {
public:
    GroupTable(const RaceOnPage& race, const RivalGroup& group, bool isOfSeason) : m_race(race) {
        const auto ranks = ranksOf(race.facts(), {group});
        for (const std::size_t run : group) {
            const auto row = race.rowOf(run);
            if (!row)
                continue;
            const bool isOwn = std::ranges::find(race.own(), *row) != race.own().end();
            if (!isOfSeason || isOwn || ranks[run] == 1)
                m_rows.push_back({*row, ranks[run], isOwn});
        }
        std::ranges::stable_sort(m_rows, {}, [](const RankedRow& row) {
            return row.rank.value_or(std::numeric_limits<int>::max());
        });
        chooseColumns();
    }

    [[nodiscard]] std::string text() const {
        const RunRow& first = m_race.factsOf(m_rows.front().row);
        const FactStore& facts = m_race.facts();
        std::string title = escaped(facts.text(first.category));
        if (!facts.text(first.phase).empty() && facts.text(m_race.file().session) == "Race")
            title += (title.empty() ? "" : " · ") + escaped(facts.text(first.phase));
        if (title.empty())
            title = said("Runs");
        std::string made = "<div class=o role=region tabindex=0 aria-label=\"" +
                           say("Split table: {}", title) + "\"><table class=b><caption>" + title +
                           "</caption><thead><tr><th scope=col>" + said("Crew");
        for (const std::size_t column : m_columns)
            made += "<th scope=col>" + escaped(m_race.table().columns[column].title);
        made += "<th scope=col>" + said("Pen") + "</thead><tbody>";
        for (std::size_t i = 0; i < std::min(m_rows.size(), MostTableRows); ++i)
            made += rowText(m_rows[i]);
        made += "</table></div>";
        if (m_rows.size() > MostTableRows)
            made += "<p class=h>" +
                    sayCount(static_cast<std::int64_t>(m_rows.size() - MostTableRows),
                             "{} more run is left out.", "{} more runs are left out.") +
                    "</p>";
        return made;
    }

private:
    /// Sprint and real time only where some run has them.
    void chooseColumns() {
        const std::size_t closing = m_race.sections() + 1;
        for (std::size_t column = 0; column < m_race.table().columns.size(); ++column)
            if (column < closing || std::ranges::any_of(m_rows, [&](const RankedRow& row) {
                    return m_race.table().rows[row.row].cells[column].value != 0;
                }))
                m_columns.push_back(column);
    }

    [[nodiscard]] std::string rowText(const RankedRow& row) const {
        const TableRow& cells = m_race.table().rows[row.row];
        std::string made = std::string(row.isOwn ? "<tr class=me>" : "<tr>") + "<th scope=row>" +
                           (row.rank ? "<i>" + std::to_string(*row.rank) + "</i> " : "") +
                           isolated(cells.run->name);
        for (const std::size_t column : m_columns)
            made += tableCell(cells.cells[column]);
        const std::int64_t pen = cells.run->sectioninfo.totalpen;
        return made + "<td>" + (pen == 0 ? "" : std::to_string(pen));
    }

    const RaceOnPage& m_race;
    std::vector<RankedRow> m_rows;
    std::vector<std::size_t> m_columns;
};

std::string groupTables(const RaceOnPage& race, bool isOfSeason) {
    std::set<RivalGroup> known;
    std::string made;
    for (const std::size_t row : race.own()) {
        const RivalGroup& group = race.rivals().groupOf(race.runOf(row));
        if (known.insert(group).second)
            made += GroupTable(race, group, isOfSeason).text();
    }
    return made;
}

std::string legendOf(const RaceOnPage& race) {
    const std::string star = said("* the best of its column.");
    if (!race.settings().isTinted())
        return "<p class=h>" + star + "</p>";
    const std::string bands = "<span class=g><span class=k1>" + said("fastest") +
                              "</span><span class=k4>" + said("faster") + "</span><span class=k6>" +
                              said("middle") + "</span><span class=k9>" + said("slower") +
                              "</span><span class=k12>" + said("slowest") + "</span></span>";
    return "<p class=h>" + say("{} of the runs compared, column by column.", bands) + ' ' + star +
           "</p>";
}

std::string settingsLine(const RaceOnPage& race) {
    std::string made;
    if (race.settings().kind == ValueKind::Accumulated)
        made += said("Times from the start to each split.");
    if (race.settings().penaltiesIncluded && race.settings().kind != ValueKind::Accumulated)
        made += said("Penalty seconds are in the times.");
    return made.empty() ? made : "<p class=h>" + made + "</p>";
}

} // namespace

std::string raceLine(const RaceOnPage& race) {
    const FactStore& facts = race.facts();
    const FileRow& file = race.file();
    std::string made = escaped(dayText({file.date}));
    for (const TextId part : {file.place, file.event})
        if (!facts.text(part).empty())
            made += " · " + isolated(facts.text(part));
    if (file.gates > 0)
        made += " · " + say("{}, {} upstream", sayCount(file.gates, "{} gate", "{} gates"),
                            facts.upGatesOf(file).size());
    return made;
}

std::string racePart(const RaceOnPage& race, bool isOfSeason, const std::vector<PageFilm>& films) {
    std::string made = "<section id=f" + std::to_string(race.number()) + "><h2>" +
                       isolated(race.title()) + "</h2><p class=h>" + raceLine(race) + "</p>\n" +
                       settingsLine(race);
    made += "<div class=a>";
    for (std::size_t own = 0; own < race.own().size(); ++own)
        made += runPart(race, own, films);
    made += "</div><h3>" + (isOfSeason ? said("Beside the winner") : said("Among the others")) +
            "</h3>" + groupTables(race, isOfSeason) + legendOf(race);
    return made + "</section>\n";
}

} // namespace kavela::page
