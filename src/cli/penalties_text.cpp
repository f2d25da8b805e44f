#include "cli/penalties_text.h"

#include "common/display_text.h"
#include "common/text.h"
#include "performance/penalty_words.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <utility>

namespace kavela::cli {

namespace {

constexpr std::string_view BoldCode = "\x1b[1m";
constexpr std::string_view DimCode = "\x1b[2m";
constexpr std::string_view PlainCode = "\x1b[0m";
constexpr int UnlimitedWidth = 100;
constexpr int WidestLabel = 34;
constexpr int NarrowestLabel = 14;
constexpr std::size_t MostRatesShown = 24;
constexpr std::size_t MostCostsShown = 12;

/// "3.6–14.3" for an interval of a rate.
std::string percentRange(const Interval& interval) {
    return fmt::format("{:.1f}–{:.1f}", 100 * interval.low, 100 * interval.high);
}

std::string withoutBlanksAtEnd(std::string line) {
    while (line.ends_with(' '))
        line.pop_back();
    return line;
}

class PenaltyPage {
public:
    PenaltyPage(const FactStore& facts, const PenaltyFindings& findings, const Terminal& terminal)
        : m_facts(facts), m_findings(findings), m_terminal(terminal), m_files(fileLabels(facts)) {}

    [[nodiscard]] std::string text() {
        addHeading();
        addRates();
        addCosts();
        addDetails();
        addTradeOff();
        return std::move(m_text);
    }

private:
    void addLine(const std::string& line) { m_text += withoutBlanksAtEnd(line) + '\n'; }

    void addStyled(std::string_view code, const std::string& line) {
        const std::string text = withoutBlanksAtEnd(line);
        m_text += m_terminal.hasColours ? std::string(code) + text + std::string(PlainCode) : text;
        m_text += '\n';
    }

    void addTitle(const std::string& title) {
        m_text += '\n';
        addStyled(BoldCode, title);
    }

    [[nodiscard]] int width() const {
        return m_terminal.width > 0 ? m_terminal.width : UnlimitedWidth;
    }

    [[nodiscard]] std::size_t shown(std::size_t count, std::size_t most) const {
        return m_terminal.isTerminal ? std::min(count, most) : count;
    }

    void addLeftOut(std::size_t count) {
        if (count > 0)
            addStyled(DimCode,
                      say("… {} more; all of them with --json, --csv or in a pipe", count));
    }

    /// Words one after the other in lines of the terminal's width, the later ones indented.
    void addWrapped(const std::string& head, const std::vector<std::string>& parts, int indent) {
        std::string line = head;
        bool isEmpty = true;
        for (std::size_t i = 0; i < parts.size(); ++i) {
            const std::string part = parts[i] + (i + 1 < parts.size() ? "," : "");
            if (!isEmpty && displayWidth(line) + 1 + displayWidth(part) > width()) {
                addLine(line);
                line = std::string(static_cast<std::size_t>(indent), ' ');
                isEmpty = true;
            }
            line += (isEmpty ? "" : " ") + part;
            isEmpty = false;
        }
        addLine(line);
    }

    void addHeading() {
        const PenaltyRates& rates = m_findings.rates;
        addStyled(BoldCode, say("Penalties by {} · {}, {}", nameOf(rates.by),
                                counted(whole(m_facts.files().size()), "file", "files"),
                                counted(whole(rates.runs), "run", "runs")));
        if (rates.clean)
            addLine(say("{} of {} whole runs without a penalty: {:.1f} % ({})", rates.clean->count,
                        rates.clean->of, 100 * rates.clean->rate,
                        percentRange(rates.clean->interval)));
        if (rates.leftOut > 0)
            addLine(sayCount(whole(rates.leftOut), "{} run left out: penalties not known by gate",
                             "{} runs left out: penalties not known by gate"));
    }

    [[nodiscard]] int labelWidth() const {
        constexpr int ColumnsAfterLabel = 57;
        int widest = NarrowestLabel;
        for (const RateRow& row : m_findings.rates.rows)
            widest = std::max(widest, displayWidth(labelOf(row)));
        const int room = std::max(width() - ColumnsAfterLabel, NarrowestLabel);
        return std::min({widest, room, WidestLabel});
    }

    static std::string labelOf(const RateRow& row) {
        return row.label.empty() ? say("(not given)") : printable(row.label);
    }

    void addRates() {
        const std::vector<RateRow>& rows = m_findings.rates.rows;
        if (rows.empty())
            return;
        const int label = labelWidth();
        addTitle(fitted("", label) + rightAligned(say("Touches"), 12) +
                 rightAligned(say("Rate %"), 7) + rightAligned("90 %", 11) +
                 rightAligned(say("Ranked"), 8) + rightAligned("90 %", 10) +
                 rightAligned(say("Missed"), 8));
        const std::size_t count = shown(rows.size(), MostRatesShown);
        for (std::size_t i = 0; i < count; ++i)
            addRate(rows[i], label);
        addLeftOut(rows.size() - count);
        const CommonRate& common = m_findings.rates.common;
        addStyled(DimCode, say("Ranked: drawn towards {:.1f} %, the more the fewer the passages;",
                               100 * common.mean));
        addStyled(DimCode, say("* touched more than that with 95 % certainty and more"));
    }

    void addRate(const RateRow& row, int label) {
        std::string line = fitted(labelOf(row), label);
        if (row.touches)
            line += rightAligned(say("{} of {}", row.touches->count, row.touches->of), 12) +
                    rightAligned(fmt::format("{:.1f}", 100 * row.touches->rate), 7) +
                    rightAligned(percentRange(row.touches->interval), 11);
        else
            line += rightAligned("–", 12) + rightAligned("–", 7) + rightAligned("–", 11);
        line += rightAligned(fmt::format("{:.1f}", 100 * row.shrunk.rate), 7) +
                (row.standsOut() ? '*' : ' ') +
                rightAligned(percentRange(row.shrunk.interval), 10) +
                rightAligned(row.missed ? std::to_string(row.missed->count) : "–", 8);
        if (row.standsOut())
            addStyled(BoldCode, line);
        else
            addLine(line);
    }

    /// Those that cost places, medals first.
    [[nodiscard]] std::vector<PenaltyCost> costliest() const {
        std::vector<PenaltyCost> costs = m_findings.costs;
        std::erase_if(costs, [](const PenaltyCost& cost) { return cost.places() == 0; });
        std::ranges::stable_sort(costs, [](const PenaltyCost& a, const PenaltyCost& b) {
            return std::pair(!a.isMedal(), -a.places()) < std::pair(!b.isMedal(), -b.places());
        });
        return costs;
    }

    void addCosts() {
        if (m_findings.costs.empty())
            return;
        const std::vector<PenaltyCost> costs = costliest();
        const std::size_t free = m_findings.costs.size() - costs.size();
        addTitle(say("What penalties cost"));
        const std::size_t count = shown(costs.size(), MostCostsShown);
        for (std::size_t i = 0; i < count; ++i)
            addCost(costs[i]);
        addLeftOut(costs.size() - count);
        if (free > 0)
            addLine(
                sayCount(whole(free), "{} penalty cost no place", "{} penalties cost no place"));
        if (std::ranges::any_of(costs, &PenaltyCost::isMissedGate))
            addStyled(DimCode,
                      say("A missed gate also saved paddling, which is not taken back here."));
    }

    void addCost(const PenaltyCost& cost) {
        constexpr int CrewWidth = 22;
        constexpr int PlaceWidth = 18;
        const RunRow& run = m_facts.runs()[cost.run];
        const std::string where =
            fmt::format("{} {}", m_facts.text(run.category), m_facts.text(run.phase));
        std::string line = fitted(printable(m_facts.text(run.crew)), CrewWidth) + ' ' +
                           fitted(printable(where), PlaceWidth) +
                           rightAligned(say("gate {}", cost.gate), 8) + ' ' +
                           fitted(cost.isMissedGate() ? say("missed") : say("touch"), 9) +
                           say("  {} of {}, without {}", ordinalText(cost.rank), cost.of,
                               ordinalText(cost.without));
        const std::string file = ' ' + printable(m_files[run.file]);
        if (m_files.size() > 1 &&
            (m_terminal.width == 0 || displayWidth(line) + displayWidth(file) <= m_terminal.width))
            line += file;
        if (cost.isMedal())
            addStyled(BoldCode, line);
        else
            addLine(line);
    }

    static std::string shareText(const DetailRow& row) {
        return say("{} {} of {} ({:.0f} %, {:.0f}–{:.0f})", detailText(row), row.share.count,
                   row.share.of, 100 * row.share.rate, 100 * row.share.interval.low,
                   100 * row.share.interval.high);
    }

    void addDetails() {
        constexpr int FieldWidth = 11;
        const DetailShares& details = m_findings.details;
        if (details.noted == 0)
            return;
        addTitle(say("Noted of {}", counted(whole(details.noted), "penalty", "penalties")));
        for (const DetailField& field : DetailFields) {
            std::vector<std::string> parts;
            for (const DetailRow& row : details.rows)
                if (row.field == field.name)
                    parts.push_back(shareText(row));
            if (!parts.empty())
                addWrapped(fitted(field.name, FieldWidth), parts, FieldWidth);
        }
    }

    void addTradeOff() {
        const TradeOff& tradeOff = m_findings.tradeOff;
        if (tradeOff.rows.empty())
            return;
        const std::array<std::string, 3> names{say("fastest third"), say("middle third"),
                                               say("slowest third")};
        addTitle(fitted(say("Risk and speed"), 16) + rightAligned(say("Runs"), 6) +
                 rightAligned(say("Touches/run"), 13) + rightAligned("90 %", 11) +
                 rightAligned(say("Missed/run"), 12) + rightAligned(say("Paddling"), 10) +
                 rightAligned(say("Total"), 9));
        for (const TradeOffRow& row : tradeOff.rows)
            addLine(fitted(names[static_cast<std::size_t>(row.third - 1)], 16) +
                    rightAligned(std::to_string(row.runs), 6) +
                    rightAligned(fmt::format("{:.2f}", row.touchesPerRun), 13) +
                    rightAligned(fmt::format("{:.2f}–{:.2f}", row.interval.low, row.interval.high),
                                 11) +
                    rightAligned(fmt::format("{:.2f}", row.missedPerRun), 12) +
                    rightAligned(fmt::format("{:.1f} %", row.paddling), 10) +
                    rightAligned(fmt::format("{:.1f} %", row.total), 9));
        if (tradeOff.breakEven)
            addLine(say("1 % of speed pays for {:.2f} touches a run; times in percent of "
                        "the group's median",
                        *tradeOff.breakEven));
    }

    const FactStore& m_facts;
    const PenaltyFindings& m_findings;
    Terminal m_terminal;
    std::vector<std::string> m_files;
    std::string m_text;
};

} // namespace

std::string penaltiesText(const FactStore& facts, const PenaltyFindings& findings,
                          const Terminal& terminal) {
    return PenaltyPage(facts, findings, terminal).text();
}

} // namespace kavela::cli
