#include "cli/season_text.h"

#include "cli/season_chart_text.h"
#include "common/display_text.h"
#include "common/number_text.h"
#include "common/text.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <set>

namespace kavela::cli {

namespace {

constexpr int SideBySideFrom = 80;
constexpr int FactWidth = 13;
constexpr std::size_t MostRivals = 3;
constexpr std::size_t MostPlacesInText = 16;

std::string seasonRange(const std::optional<Interval>& interval) {
    return interval ? say(" ({:+.1f} to {:+.1f})", interval->low, interval->high) : " (too few)";
}

std::string seasonFact(std::string_view what, const std::string& text) {
    return fitted(what, FactWidth) + text;
}

/// The text that a season is told in.
class SeasonSheet {
public:
    SeasonSheet(const Season& season, const Terminal& terminal)
        : m_season(season), m_terminal(terminal) {}

    [[nodiscard]] std::string text() {
        addHeading();
        for (std::size_t i = 0; i < m_season.athletes.size(); ++i)
            addAthlete(i);
        addBenchmarks();
        addPlaces();
        return std::move(m_text);
    }

private:
    static std::size_t fileCount(const SeasonData& data) {
        std::set<std::uint32_t> files;
        for (const RacePhase& phase : data.phases)
            if (phase.file)
                files.insert(*phase.file);
        return files.size();
    }

    void addLine(std::string line) {
        while (line.ends_with(' '))
            line.pop_back();
        m_text += line + '\n';
    }

    [[nodiscard]] std::string styled(std::string_view code, const std::string& text) const {
        return m_terminal.hasColours && !text.empty()
                   ? "\x1b[" + std::string(code) + "m" + text + "\x1b[0m"
                   : text;
    }
    [[nodiscard]] std::string bold(const std::string& text) const { return styled("1", text); }
    [[nodiscard]] std::string dim(const std::string& text) const { return styled("2", text); }

    void addHeading() {
        const SeasonSpread& spread = m_season.spread;
        addLine(
            bold(printable("Season " + m_season.data.category)) +
            say(" · {} · {} of races",
                counted(static_cast<std::int64_t>(m_season.athletes.size()), "athlete", "athletes"),
                counted(static_cast<std::int64_t>(fileCount(m_season.data)), "split file",
                        "split files")));
        if (m_season.data.starter)
            addLine(say("Only races in which {} starts.", printable(*m_season.data.starter)));
        if (!spread.cv) {
            addLine(say("Too few runs to tell how much they vary by chance."));
            return;
        }
        addLine(say("Runs vary by {:.1f} %{}, from {}; {:.2f} % is worth gaining.", *spread.cv,
                    seasonRange(spread.interval),
                    counted(static_cast<std::int64_t>(spread.runs), "run", "runs"),
                    *spread.worthwhile));
    }

    [[nodiscard]] std::string commonRange() const {
        const auto& interval = m_season.spread.interval;
        return interval ? fmt::format(": {:.1f}–{:.1f}", interval->low, interval->high)
                        : std::string();
    }

    void addAthlete(std::size_t index) {
        const SeasonMember& member = m_season.data.members[m_season.athletes[index].member];
        const ProgressionChart chart = usualProgression(m_season, index);
        const std::vector<std::string> lines = progressionLines(member, chart);
        const std::vector<std::string> facts = factsOf(m_season.athletes[index]);
        addLine("");
        if (lines.empty()) {
            for (const std::string& fact : facts)
                addLine(fact);
            addLine(dim(say("Neither winners nor fastest splits of these races are known.")));
            return;
        }
        if (m_terminal.width > 0 && m_terminal.width < SideBySideFrom)
            addBelow(chart, lines, facts);
        else
            addBeside(chart, lines, facts);
        if (chart.medalLine)
            addLine(dim(say("      ┄ third of the final, median")));
    }

    [[nodiscard]] static std::string chartHead(const ProgressionChart& chart) {
        return std::string(chart.of == TrendOf::Winner ? "% behind " : "% on splits ") +
               "● heat ▲ semi ■ final";
    }

    void addBelow(const ProgressionChart& chart, const std::vector<std::string>& lines,
                  const std::vector<std::string>& facts) {
        addLine(facts.front());
        addLine(dim(chartHead(chart)));
        for (const std::string& line : lines)
            addLine(line);
        for (std::size_t i = 1; i < facts.size(); ++i)
            addLine(facts[i]);
    }

    void addBeside(const ProgressionChart& chart, const std::vector<std::string>& lines,
                   const std::vector<std::string>& facts) {
        for (std::size_t i = 0; i < std::max(lines.size() + 1, facts.size()); ++i) {
            const std::string left = i == 0              ? chartHead(chart)
                                     : i <= lines.size() ? lines[i - 1]
                                                         : "";
            const std::string cell = fitted(left, SeasonChartWidth);
            addLine((i == 0 ? dim(cell) : cell) + (i < facts.size() ? facts[i] : ""));
        }
    }

    [[nodiscard]] std::vector<std::string> factsOf(const SeasonAthlete& athlete) const {
        const SeasonMember& member = m_season.data.members[athlete.member];
        std::vector<std::string> facts{bold(printable(member.name)) +
                                       (member.isRetired ? " (retired)" : "")};
        facts.push_back(seasonFact(say("within"), spreadText(athlete.spread)));
        facts.push_back(trendFact(say("trend"), athlete.toWinner));
        facts.push_back(trendFact(say("on splits"), athlete.toSplits));
        addRate(facts, "medals", athlete.medals);
        addRate(facts, "finals", athlete.finals);
        addRate(facts, "semifinals", athlete.semifinals);
        addPair(facts, "run 1 to 2", athlete.heats);
        addPair(facts, "semi→final", athlete.semifinalToFinal);
        addPair(facts, "heats→final", athlete.heatsToFinal);
        for (std::size_t i = 0; i < std::min(athlete.heads.size(), MostRivals); ++i)
            facts.push_back(headFact(athlete.heads[i]));
        const auto percent = medianPercent(member, "Final");
        const std::string sentence =
            percent ? medalSentence(m_season.benchmarks, *percent) : std::string();
        if (!sentence.empty())
            facts.push_back("median: " + sentence);
        return facts;
    }

    [[nodiscard]] std::string spreadText(const BoatSpread& spread) const {
        std::string text = "too few";
        if (spread.shrunk && spread.runs >= LeastValues)
            text =
                say("{:.1f} % (all {:.1f}{})", *spread.shrunk, *m_season.spread.cv, commonRange());
        if (spread.missed > 0)
            text += say(", {} missed", spread.missed);
        return text;
    }

    [[nodiscard]] std::string trendFact(std::string_view what, const SeasonTrend& trend) const {
        if (!trend.perYear)
            return seasonFact(what, "too few");
        const std::string word(verdictText(trend.verdict));
        return seasonFact(what,
                          say("{:+.1f} %/yr{} ", *trend.perYear, seasonRange(trend.interval))) +
               (trend.verdict == TrendVerdict::Unclear ? word : bold(word));
    }

    static void addRate(std::vector<std::string>& facts, std::string_view what,
                        const std::optional<RateOf>& rate) {
        if (rate)
            facts.push_back(
                seasonFact(what, say("{} of {} ({:.0f}–{:.0f} %)", rate->count, rate->of,
                                     100 * rate->interval.low, 100 * rate->interval.high)));
    }

    static void addPair(std::vector<std::string>& facts, std::string_view what,
                        const PairChange& pair) {
        if (pair.change.n > 0)
            facts.push_back(seasonFact(
                what,
                fmt::format("{:+.1f} %{}, {}", pair.change.mean, seasonRange(pair.change.interval),
                            counted(static_cast<std::int64_t>(pair.change.n), "race", "races"))));
    }

    [[nodiscard]] std::string headFact(const HeadToHead& head) const {
        constexpr int RivalWidth = 18;
        return fitted("on " + printable(m_season.data.boats[head.versus].name), RivalWidth) +
               say(" {} of {} ({:.0f}–{:.0f} %), {:+.1f} %", shortestText(head.won), head.met,
                   100 * head.interval.low, 100 * head.interval.high, head.gap.mean);
    }

    /// The first rank is nothing behind itself.
    void addBenchmarks() {
        constexpr int PhaseWidth = 14;
        constexpr int RankWidth = 11;
        if (m_season.benchmarks.empty())
            return;
        std::string head = fitted("What it took", PhaseWidth);
        for (const std::size_t rank : BenchmarkRanks)
            if (rank > 1)
                head += rightAligned(say("rank {}", rank), RankWidth);
        addLine("");
        addLine(bold(head));
        for (const Benchmark& benchmark : m_season.benchmarks) {
            if (benchmark.rank != 1)
                continue;
            std::string line = fitted(printable(benchmark.phase), PhaseWidth);
            std::string range = fitted(
                "  " + counted(static_cast<std::int64_t>(benchmark.values.size()), "race", "races"),
                PhaseWidth);
            for (const std::size_t rank : BenchmarkRanks) {
                if (rank == 1)
                    continue;
                const Benchmark* const at = benchmarkAt(m_season.benchmarks, benchmark.phase, rank);
                line += rightAligned(at ? fmt::format("{:.1f} %", at->median) : "–", RankWidth);
                range += rightAligned(quartilesText(at), RankWidth);
            }
            addLine(line);
            addLine(dim(range));
        }
    }

    /// One race has no quartiles worth telling.
    static std::string quartilesText(const Benchmark* benchmark) {
        if (!benchmark || benchmark->values.size() < LeastValues)
            return {};
        return fmt::format("{:.1f}–{:.1f}", benchmark->lowerQuartile, benchmark->upperQuartile);
    }

    void addPlaces() {
        const SeasonPlaces& places = m_season.places;
        if (!places.boats.empty()) {
            addLine("");
            addLine(bold(fitted("Expected place", 28) + rightAligned("of", 4) +
                         rightAligned("Place", 8) + rightAligned("Medal", 9) +
                         rightAligned("First", 9) + rightAligned("Missed", 9) +
                         rightAligned("Runs", 6)));
        }
        const std::size_t most = m_terminal.isTerminal ? MostPlacesInText : places.boats.size();
        for (std::size_t i = 0; i < std::min(most, places.boats.size()); ++i)
            addPlace(places.boats[i]);
        const std::size_t hidden = places.boats.size() - std::min(most, places.boats.size());
        if (hidden > 0)
            addLine(dim(say("… {} more; all of them with --json or in a pipe", hidden)));
        if (places.more > 0)
            addLine(dim(
                say("{} more boats come into question: name a field with --field", places.more)));
        for (const std::size_t boat : places.leftOut)
            addLine(dim(say("{} is left out: fewer than {} runs, or never met the others",
                            printable(m_season.data.boats[boat].name), LeastRunsForPlaces)));
    }

    void addPlace(const ExpectedPlace& place) {
        const SeasonBoat& boat = m_season.data.boats[place.boat];
        const std::string line =
            fitted(printable(boat.name), 28) +
            rightAligned(std::to_string(m_season.places.boats.size()), 4) +
            rightAligned(fmt::format("{:.1f}", place.chances.expected), 8) +
            rightAligned(fmt::format("{:.0f} %", 100 * place.chances.medal), 9) +
            rightAligned(fmt::format("{:.0f} %", 100 * place.chances.places.front()), 9) +
            rightAligned(fmt::format("{:.1f} %", 100 * place.fail), 9) +
            rightAligned(std::to_string(place.runs), 6);
        addLine(boat.member ? bold(line) : line);
    }

    const Season& m_season;
    Terminal m_terminal;
    std::string m_text;
};

} // namespace

std::string teamSeasonText(const Season& season, const Terminal& terminal) {
    return SeasonSheet(season, terminal).text();
}

} // namespace kavela::cli
