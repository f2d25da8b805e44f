#include "page/race_on_page.h"

#include "analysis/run_motion.h"
#include "common/text.h"
#include "splitdata/athlete_keys.h"
#include "splitdata/run_timing.h"

#include <algorithm>

namespace kavela::page {

namespace {

/// Of a run, or of the race where the run has none.
const std::string& categoryOfRun(const splittakerdata031& document, const athletedata031& run) {
    return run.cat.empty() ? document.info.category : run.cat;
}

bool isMeantText(std::string_view own, const std::string& wanted,
                 std::string (*key)(std::string_view)) {
    return wanted.empty() || key(own) == key(wanted);
}

std::string phaseTextKey(std::string_view phase) {
    const std::string label = teamPhase(phase);
    return bareKey(label.empty() ? phase : std::string_view(label));
}

bool isCompared(std::string_view category, std::string_view phase, const PageChoice& choice) {
    return isMeantText(category, choice.category, categoryKey) &&
           isMeantText(phase, choice.phase, phaseTextKey);
}

/// The whole run stands behind its sections; between few marks a rate of it would tell nothing.
std::vector<PageStrokes> markedStrokes(const athletedata031& run) {
    std::vector<PageStrokes> strokes;
    PageStrokes whole;
    std::size_t intervals = 0;
    double seconds = 0;
    for (const SectionStrokes& section : strokesBySection(run)) {
        strokes.emplace_back();
        if (section.total() == 0)
            continue;
        strokes.back() = {section.total(), section.perMinute};
        whole.count = whole.count.value_or(0) + section.total();
        intervals += section.perMinute ? section.total() - 1 : 0;
        seconds += section.perMinute ? section.seconds : 0;
    }
    if (intervals > 0)
        whole.perMinute = 60 * static_cast<double>(intervals) / seconds;
    strokes.push_back(whole);
    return strokes;
}

std::vector<PageStrokes> recordedStrokes(const analyzerdata& run) {
    if (run.bm.empty() && run.watch.empty())
        return {};
    const RunMotion motion = runMotion(run);
    std::vector<PageStrokes> strokes;
    for (const SectionMotion& section : motion.sections) {
        const bool isCounted = section.cover == MotionCover::Whole;
        strokes.push_back({isCounted ? section.strokes : std::nullopt, section.strokeRate});
    }
    strokes.push_back({motion.whole.strokes, motion.whole.strokeRate});
    return strokes;
}

} // namespace

bool isRunMeant(const splittakerdata031& document, const athletedata031& run,
                const PageChoice& choice) {
    return crewKey(run.names) == choice.crewKey &&
           isCompared(categoryOfRun(document, run), run.phase, choice);
}

bool hasRunsOf(const splittakerdata031& document, const PageChoice& choice) {
    return std::ranges::any_of(document.athletes, [&](const athletedata031& run) {
        return isRunMeant(document, run, choice);
    });
}

RaceOnPage::RaceOnPage(RaceFile file, std::size_t number, const PageChoice& choice)
    : m_number(number), m_settings(choice.settings) {
    m_facts.add(file.document, file.path);
    std::vector<std::vector<PageStrokes>> marked(file.document.athletes.size());
    for (std::size_t run = 0; run < marked.size(); ++run)
        if (!file.document.athletes[run].strokes.empty())
            marked[run] = markedStrokes(file.document.athletes[run]);
    const RaceSet whole = makeRaceSet(std::move(file.document), file.path);
    m_set = filteredRaceSet(whole, [&](const analyzerdata& run) {
        return isCompared(run.category, run.phase, choice);
    });
    m_table = makeSplitTable(m_set, m_settings);
    m_figures.emplace(m_table);
    m_rivals.emplace(m_facts);
    for (std::size_t row = 0; row < m_set.alldata.size(); ++row) {
        const RunRow& facts = factsOf(row);
        if (m_facts.text(facts.crewKey) != choice.crewKey)
            continue;
        m_own.push_back(row);
        m_losses.push_back(kavela::lossesOf(m_facts, *m_rivals, runOf(row), {}));
        std::vector<PageStrokes>& strokes = marked[runOf(row)];
        m_strokes.push_back(strokes.empty() ? recordedStrokes(m_set.alldata[row])
                                            : std::move(strokes));
    }
}

std::optional<std::size_t> RaceOnPage::rowOf(std::size_t run) const {
    const auto found =
        std::ranges::find(m_set.alldata, static_cast<std::int64_t>(run), &analyzerdata::athleteInt);
    return found == m_set.alldata.end()
               ? std::nullopt
               : std::optional(static_cast<std::size_t>(found - m_set.alldata.begin()));
}

std::string RaceOnPage::title() const {
    const std::string_view title = m_facts.text(file().title);
    return title.empty() ? m_facts.pathOf(m_facts.runs().front()).stem().string()
                         : std::string(title);
}

std::string RaceOnPage::sectionTitle(std::size_t section) const {
    return section < sections() ? m_table.columns[section].title
                                : "S" + std::to_string(section + 1);
}

std::string runTitle(const RaceOnPage& race, std::size_t own) {
    const RunRow& run = race.factsOf(race.own()[own]);
    const std::string phase(race.facts().text(run.phase));
    std::size_t alike = 0;
    std::size_t place = 0;
    for (std::size_t other = 0; other < race.own().size(); ++other) {
        const RunRow& row = race.factsOf(race.own()[other]);
        const bool isAlike = row.phaseKey == run.phaseKey && row.categoryKey == run.categoryKey;
        alike += isAlike;
        place += isAlike && other <= own;
    }
    if (phase.empty())
        return say("Run {}", own + 1);
    return alike > 1 ? say("{}, run {}", phase, place) : phase;
}

} // namespace kavela::page
