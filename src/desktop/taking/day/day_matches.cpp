#include "desktop/taking/day/day_matches.h"

#include "desktop/splitfile/taking_document.h"
#include "desktop/taking/day/day_films.h"
#include "desktop/taking/day/day_runs.h"
#include "splitdata/run_timing.h"
#include "splittaking/video_names.h"

#include <algorithm>
#include <string>
#include <utility>

namespace kavela::desktop {

DayMatches::DayMatches(const TakingDocument& document, const DayFilms& films, QObject* parent)
    : QObject(parent), m_document(document), m_films(films) {}

void DayMatches::follow() {
    if (m_path != m_document.path()) {
        m_path = m_document.path();
        m_matching = {}; // of another race, whose starts may have the same ids
    }
    if (m_day == m_document.value().day)
        return;
    m_day = m_document.value().day;
    m_work.cancel(); // it matches what is not there any more
    m_work.run([day = m_day, films = m_films.seen()] { return matchFilms(*day, films); },
               [this](DayMatching matching) { take(std::move(matching)); });
}

void DayMatches::forget() {
    m_work.cancel();
    m_day.reset();
}

/// Matches of an older state would move other films than those that were meant.
void DayMatches::settle() {
    if (!isMatching())
        return;
    m_work.cancel();
    take(matchFilms(*m_day, m_films.seen()));
}

void DayMatches::take(DayMatching matching) {
    m_matching = std::move(matching);
    emit matched();
}

std::vector<std::int64_t> DayMatches::boatsOn(const std::string& from) const {
    if (const DayFilm* const film = findFilmFrom(m_document.day(), from))
        return film->starts;
    std::vector<std::int64_t> boats;
    for (const DayMatch& match : m_matching.matches)
        if (match.from == from)
            boats.push_back(match.start);
    return boats;
}

std::optional<int> DayMatches::runOfStart(std::int64_t start) const {
    const auto match = std::ranges::find(m_matching.matches, start, &DayMatch::start);
    if (match == m_matching.matches.end())
        return std::nullopt;
    const std::vector<std::int64_t> boats = boatsOn(match->from);
    const auto boat = static_cast<std::size_t>(std::ranges::find(boats, start) - boats.begin());
    const std::vector<std::size_t> runs =
        runsOfFilm(m_document.value(), presentName(m_document.day(), match->from));
    return boat < boats.size() && boat < runs.size() ? std::optional(static_cast<int>(runs[boat]))
                                                     : std::nullopt;
}

std::set<std::int64_t> DayMatches::timed() const {
    std::set<std::int64_t> timed;
    for (const DayMatch& match : m_matching.matches)
        if (const auto run = runOfStart(match.start);
            run && m_document.run(*run).sectioninfo.isfullrun)
            timed.insert(match.start);
    // Runs that were timed before there was a list have no start of it.
    std::set<std::pair<std::string, std::string>> crews;
    for (int run = 0; run < m_document.runCount(); ++run)
        if (const athletedata031& record = m_document.run(run); record.sectioninfo.isfullrun)
            crews.insert({crewText(record.names), record.phase});
    for (const DayStart& start : m_document.day().starts)
        if (std::ranges::find(m_matching.matches, start.id, &DayMatch::start) ==
                m_matching.matches.end() &&
            crews.contains({crewText(crewIn(start.name)), start.phase}))
            timed.insert(start.id);
    return timed;
}

} // namespace kavela::desktop
