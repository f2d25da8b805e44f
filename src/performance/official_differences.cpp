#include "performance/official_differences.h"

#include "common/number_text.h"
#include "common/text.h"
#include "splitdata/athlete_keys.h"
#include "splitdata/run_timing.h"
#include "splitdata/run_totals.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace kavela {

namespace {

/// What the film says of a run, without anything official.
std::optional<RunTotal> filmedTotal(const splittakerdata031& document, const athletedata031& run) {
    infodata031 course;
    course.totalsplits = document.info.totalsplits;
    athletedata031 filmed;
    filmed.sectioninfo.times = run.sectioninfo.times;
    filmed.sectioninfo.totalpen = run.sectioninfo.totalpen;
    return totalOf(course, filmed);
}

std::string saidSeconds(double seconds) {
    return saidNumber(hundredthsText(seconds));
}

/// Matches lines and runs and tells where they differ.
class OfficialMatching {
public:
    OfficialMatching(const splittakerdata031& document, std::span<const OfficialLine> lines,
                     const OfficialScope& scope)
        : m_document(document), m_lines(lines), m_scope(scope) {
        for (std::size_t run = 0; run < document.athletes.size(); ++run)
            if (isMeant(run)) {
                m_runs.push_back(run);
                m_filmed.push_back(filmedTotal(document, document.athletes[run]));
                m_lineOf.emplace_back();
                m_keys.push_back({crewKey(document.athletes[run].names),
                                  categoryKey(categoryOf(document.athletes[run]))});
            }
        for (const OfficialLine& line : lines)
            m_lineKeys.push_back({crewKey(line.crew), categoryKey(line.category)});
        m_isUsed.resize(lines.size());
        match();
    }

    [[nodiscard]] std::vector<OfficialDifference> differences() {
        findSwaps();
        for (std::size_t i = 0; i < m_runs.size(); ++i)
            tellRun(i);
        for (std::size_t line = 0; line < m_lines.size(); ++line)
            if (!m_isUsed[line] && isMeantLine(m_lines[line]))
                tellNotFilmed(line);
        return std::move(m_differences);
    }

private:
    /// By what runs and lines are matched.
    struct Keys {
        std::string crew;
        std::string category;
    };

    [[nodiscard]] std::string categoryOf(const athletedata031& run) const {
        return run.cat.empty() ? m_document.info.category : run.cat;
    }

    [[nodiscard]] bool isMeant(std::size_t index) const {
        const athletedata031& run = m_document.athletes[index];
        const bool hasCategory = m_scope.category.empty() ||
                                 categoryKey(categoryOf(run)) == categoryKey(m_scope.category);
        return hasCategory &&
               (m_scope.phase.empty() || bareKey(run.phase) == bareKey(m_scope.phase));
    }

    [[nodiscard]] bool isMeantLine(const OfficialLine& line) const {
        return m_scope.category.empty() || line.category.empty() ||
               categoryKey(line.category) == categoryKey(m_scope.category);
    }

    [[nodiscard]] bool fits(std::size_t i, std::size_t line) const {
        const Keys& run = m_keys[i];
        const Keys& official = m_lineKeys[line];
        const bool hasCategory = m_lines[line].category.empty() || run.category.empty() ||
                                 official.category == run.category;
        return !run.crew.empty() && hasCategory && official.crew == run.crew;
    }

    /// How far apart a run and a line are; runs without a time go to lines without one.
    [[nodiscard]] double distance(std::size_t i, std::size_t line) const {
        constexpr double OneWithoutTime = 1e6;
        const bool hasBoth = m_filmed[i] && m_lines[line].time;
        if (hasBoth)
            return std::abs(m_filmed[i]->paddling - *m_lines[line].time);
        return m_filmed[i].has_value() == m_lines[line].time.has_value() ? 0 : OneWithoutTime;
    }

    /// The nearest pair first, so that two lines of a crew do not take each other's run.
    void match() {
        struct Pair {
            double distance = 0;
            std::size_t run = 0;
            std::size_t line = 0;
        };
        std::vector<Pair> pairs;
        for (std::size_t line = 0; line < m_lines.size(); ++line)
            for (std::size_t i = 0; isMeantLine(m_lines[line]) && i < m_runs.size(); ++i)
                if (fits(i, line))
                    pairs.push_back({distance(i, line), i, line});
        std::ranges::stable_sort(pairs, {}, &Pair::distance);
        for (const Pair& pair : pairs)
            if (!m_lineOf[pair.run] && !m_isUsed[pair.line]) {
                m_lineOf[pair.run] = pair.line;
                m_isUsed[pair.line] = true;
            }
    }

    [[nodiscard]] const OfficialLine& lineOf(std::size_t i) const { return m_lines[*m_lineOf[i]]; }

    [[nodiscard]] bool isNear(std::size_t i, const OfficialLine& line) const {
        // Hundredths that are not exact in binary must not decide.
        constexpr double Rounding = 1e-9;
        return m_filmed[i] && line.time &&
               std::abs(m_filmed[i]->paddling - *line.time) <= m_scope.uncertainty + Rounding;
    }

    [[nodiscard]] bool isTakenOver(std::size_t i) const {
        const athletedata031& run = m_document.athletes[m_runs[i]];
        const OfficialLine& line = lineOf(i);
        return line.time && run.sectioninfo.realtime == *line.time &&
               run.sectioninfo.realpen == line.penalty;
    }

    [[nodiscard]] bool mayBeSwapped(std::size_t i) const {
        return m_lineOf[i] && m_filmed[i] && lineOf(i).time && !isNear(i, lineOf(i)) &&
               !isTakenOver(i);
    }

    /// Two runs whose times are right for each other's line.
    void findSwaps() {
        m_swappedWith.resize(m_runs.size());
        for (std::size_t a = 0; a < m_runs.size(); ++a)
            for (std::size_t b = a + 1; mayBeSwapped(a) && b < m_runs.size(); ++b) {
                const bool isSwap = !m_swappedWith[a] && !m_swappedWith[b] && mayBeSwapped(b) &&
                                    isNear(a, lineOf(b)) && isNear(b, lineOf(a)) &&
                                    isOfOneStart(a, b);
                if (isSwap) {
                    m_swappedWith[a] = b;
                    m_swappedWith[b] = a;
                }
            }
    }

    [[nodiscard]] bool isOfOneStart(std::size_t a, std::size_t b) const {
        const athletedata031& first = m_document.athletes[m_runs[a]];
        const athletedata031& second = m_document.athletes[m_runs[b]];
        return categoryKey(categoryOf(first)) == categoryKey(categoryOf(second)) &&
               bareKey(first.phase) == bareKey(second.phase);
    }

    [[nodiscard]] std::string crewOf(std::size_t i) const {
        return crewText(m_document.athletes[m_runs[i]].names);
    }

    OfficialDifference& add(OfficialDifferenceKind kind, std::size_t i, std::string text) {
        OfficialDifference& made = m_differences.emplace_back();
        made.kind = kind;
        made.run = m_runs[i];
        made.isOpen = kind != OfficialDifferenceKind::NotInList;
        made.crew = crewOf(i);
        made.text = std::move(text);
        if (m_lineOf[i]) {
            made.line = *m_lineOf[i];
            made.status = lineOf(i).status;
            made.time = lineOf(i).time.value_or(0);
            made.penalty = lineOf(i).penalty;
        }
        return made;
    }

    void tellRun(std::size_t i) {
        if (!m_lineOf[i]) {
            add(OfficialDifferenceKind::NotInList, i, say("{}: is not in the list.", crewOf(i)));
            return;
        }
        if (isTakenOver(i))
            return;
        const OfficialLine& line = lineOf(i);
        if (!line.time)
            tellNoResult(i, line);
        else if (!m_filmed[i])
            add(OfficialDifferenceKind::Unfinished, i,
                say("{}: the list has {}, the film no time to the end. Take the official time "
                    "over?",
                    crewOf(i), saidSeconds(*line.time)));
        else if (m_swappedWith[i])
            tellSwap(i, *m_swappedWith[i]);
        else
            tellTimes(i, line);
    }

    void tellNoResult(std::size_t i, const OfficialLine& line) {
        const athletedata031& run = m_document.athletes[m_runs[i]];
        const double real = run.sectioninfo.realtime;
        const double ours = m_filmed[i] ? m_filmed[i]->paddling : real;
        if (line.status.empty() || !isTakenTime(ours))
            return;
        const bool isOpen = isTakenTime(real) || !isRefused(m_document.info, run);
        add(OfficialDifferenceKind::NoResult, i,
            isOpen ? say("{0}: the list says {1}, ours is {2}. Take {1} over?", crewOf(i),
                         line.status, saidSeconds(ours))
                   : say("{}: the list says {}, ours is {}.", crewOf(i), line.status,
                         saidSeconds(ours)))
            .isOpen = isOpen;
    }

    void tellSwap(std::size_t i, std::size_t other) {
        if (other < i)
            return; // told with the first of the two
        const std::string crew = crewOf(other);
        const std::int64_t bib = lineOf(i).bib;
        const std::int64_t otherBib = lineOf(other).bib;
        add(OfficialDifferenceKind::SwappedBib, i,
            bib > 0 && otherBib > 0
                ? say("{0}: has the time of {1} (bibs {2} and {3}), and {1} has this one's. "
                      "Exchange the two crews?",
                      crewOf(i), crew, bib, otherBib)
                : say("{0}: has the time of {1}, and {1} has this one's. Exchange the two crews?",
                      crewOf(i), crew))
            .other = m_runs[other];
    }

    void tellTimes(std::size_t i, const OfficialLine& line) {
        const std::int64_t ours = m_filmed[i]->penalty;
        if (line.penalty != ours)
            add(line.penalty > ours ? OfficialDifferenceKind::MissingPenalty
                                    : OfficialDifferenceKind::ExcessPenalty,
                i,
                say("{}: the list has {} s of penalties, ours has {} s. Take the official result "
                    "over?",
                    crewOf(i), line.penalty, ours));
        if (!isNear(i, line))
            add(OfficialDifferenceKind::TimeOff, i,
                say("{}: the list has {}, the film {}, {} s apart. Take the official time over?",
                    crewOf(i), saidSeconds(*line.time), saidSeconds(m_filmed[i]->paddling),
                    saidSeconds(std::abs(m_filmed[i]->paddling - *line.time))));
    }

    void tellNotFilmed(std::size_t line) {
        OfficialDifference& made = m_differences.emplace_back();
        made.kind = OfficialDifferenceKind::NotFilmed;
        made.line = line;
        made.crew = m_lines[line].crew;
        made.status = m_lines[line].status;
        made.time = m_lines[line].time.value_or(0);
        made.penalty = m_lines[line].penalty;
        made.text =
            say("Line {}, {}: there is no run of this crew.", m_lines[line].line, made.crew);
    }

    const splittakerdata031& m_document;
    std::span<const OfficialLine> m_lines;
    const OfficialScope& m_scope;
    /// Of the runs that are meant, alike in length.
    std::vector<std::size_t> m_runs;
    std::vector<std::optional<RunTotal>> m_filmed;
    std::vector<Keys> m_keys;
    std::vector<std::optional<std::size_t>> m_lineOf;
    std::vector<std::optional<std::size_t>> m_swappedWith; ///< places in m_runs
    std::vector<Keys> m_lineKeys;                          ///< by line
    std::vector<bool> m_isUsed;                            ///< by line
    std::vector<OfficialDifference> m_differences;
};

/// The crew of the difference still has the run.
athletedata031* runMeant(splittakerdata031& document, const OfficialDifference& difference) {
    if (!difference.run || *difference.run >= document.athletes.size())
        return nullptr;
    athletedata031& run = document.athletes[*difference.run];
    return crewText(run.names) == difference.crew ? &run : nullptr;
}

bool exchangeCrews(splittakerdata031& document, const OfficialDifference& difference,
                   athletedata031& run) {
    if (!difference.other || *difference.other >= document.athletes.size())
        return false;
    athletedata031& other = document.athletes[*difference.other];
    std::swap(run.names, other.names);
    std::swap(run.hand, other.hand);
    std::swap(run.pos, other.pos);
    // What was taken over belongs to the name, not to the film.
    std::swap(run.sectioninfo.realtime, other.sectioninfo.realtime);
    std::swap(run.sectioninfo.realpen, other.sectioninfo.realpen);
    return true;
}

void takeNoResult(splittakerdata031& document, const OfficialDifference& difference,
                  athletedata031& run) {
    run.sectioninfo.realtime = 0;
    run.sectioninfo.realpen = 0;
    if (isRefused(document.info, run))
        return;
    allresultsdata030 line;
    line.name = difference.crew + ' ' + difference.status;
    document.info.resultsCSVdata.push_back(std::move(line));
}

} // namespace

std::vector<OfficialDifference> officialDifferences(const splittakerdata031& document,
                                                    std::span<const OfficialLine> lines,
                                                    const OfficialScope& scope) {
    return OfficialMatching(document, lines, scope).differences();
}

bool takeOver(splittakerdata031& document, const OfficialDifference& difference) {
    athletedata031* const run = runMeant(document, difference);
    if (!run || !difference.isOpen)
        return false;
    if (difference.kind == OfficialDifferenceKind::SwappedBib)
        return exchangeCrews(document, difference, *run);
    if (difference.kind == OfficialDifferenceKind::NoResult) {
        takeNoResult(document, difference, *run);
        return true;
    }
    run->sectioninfo.realtime = difference.time;
    run->sectioninfo.realpen = difference.penalty;
    return true;
}

} // namespace kavela
