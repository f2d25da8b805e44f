#include "desktop/selection/runs_to_enter.h"

#include "desktop/shell/qt_text.h"
#include "desktop/shell/shown_number.h"
#include "results/name_likeness.h"
#include "splitdata/athlete_keys.h"

#include <QCoreApplication>

#include <algorithm>
#include <map>

namespace kavela::desktop {

namespace {

QString tr(const char* text) {
    return QCoreApplication::translate("RunsToEnter", text);
}

QString resultText(double time, std::int64_t penalty) {
    const QString seconds = shownHundredths(time);
    return penalty > 0 ? QString("%1 (%2)").arg(seconds).arg(penalty) : seconds;
}

/// What tells whose runs they are before anybody chose.
std::pair<std::string, std::string> keyOf(const FoundRun& run) {
    return {categoryKey(run.category), crewKey(run.name)};
}

std::map<AthletePlace, std::int64_t> ranksOf(const selectionracesStruct_v3& document,
                                             BonusKind bonus) {
    std::map<AthletePlace, std::int64_t> ranks;
    for (std::size_t c = 0; c < document.categories.size(); ++c)
        for (const Standing& standing :
             standings(document.categories[c], document.races.size(), bonus))
            ranks[{c, standing.athlete}] = standing.rank;
    return ranks;
}

} // namespace

/// The selection as it would be, and the places in it.
struct RunsToEnter::Outcome {
    selectionracesStruct_v3 after;
    EnteredRuns entered;
    std::map<AthletePlace, std::int64_t> ranksBefore;
    std::map<AthletePlace, std::int64_t> ranks;

    [[nodiscard]] std::optional<AthletePlace> athleteOf(const FoundRun& run) const {
        return run.athlete ? run.athlete : kavela::athleteOf(after, run.category, run.name);
    }

    [[nodiscard]] QString rankText(const AthletePlace& athlete) const {
        const std::int64_t now = ranks.at(athlete);
        const auto before = ranksBefore.find(athlete);
        if (before == ranksBefore.end() || before->second == now)
            return tr("place %1").arg(now);
        return tr("place %1, was %2").arg(now).arg(before->second);
    }
};

RunsToEnter::RunsToEnter(const selectionracesStruct_v3& document, std::size_t race, FoundRuns found,
                         BonusKind bonus)
    : m_document(document),
      m_race(race),
      m_found(std::move(found)),
      m_bonus(bonus),
      m_isTicked(m_found.runs.size(), true) {
    for (std::size_t c = 0; c < document.categories.size(); ++c)
        for (std::size_t a = 0; a < document.categories[c].athletes.size(); ++a)
            m_people.push_back({c, a});
    for (const bool isKnown : {true, false})
        for (std::size_t run = 0; run < m_found.runs.size(); ++run)
            if (m_found.runs[run].athlete.has_value() == isKnown)
                m_order.push_back(run);
    m_known = static_cast<std::size_t>(std::ranges::count_if(
        m_found.runs, [](const FoundRun& run) { return run.athlete.has_value(); }));
    findLikelyNames();
}

/// Runs of nobody whose name is much like that of an athlete come first among them.
void RunsToEnter::findLikelyNames() {
    m_likely.resize(m_found.runs.size());
    for (std::size_t run = 0; run < m_found.runs.size(); ++run) {
        if (m_found.runs[run].athlete)
            continue;
        std::vector<std::string> names;
        const std::string label = categoryKey(m_found.runs[run].category);
        for (const srCategoryStruct_v3& category : m_document.categories)
            if (categoryKey(category.cat) == label)
                for (const srAthleteStruct_v3& athlete : category.athletes)
                    names.push_back(athlete.name);
        if (const auto likely = likelyName(m_found.runs[run].name, names))
            m_likely[run] = qtText(names[*likely]);
    }
    std::stable_partition(m_order.begin() + static_cast<std::ptrdiff_t>(m_known), m_order.end(),
                          [this](std::size_t run) { return !m_likely[run].isEmpty(); });
}

std::vector<KnownPerson> RunsToEnter::people() const {
    std::vector<KnownPerson> people;
    for (const AthletePlace& place : m_people) {
        const srCategoryStruct_v3& category = m_document.categories[place.category];
        people.push_back({category.athletes[place.athlete].name, qtText(category.cat)});
    }
    return people;
}

bool RunsToEnter::mayBe(int line, std::size_t person) const {
    const Place& place = m_places.at(static_cast<std::size_t>(line));
    if (place.kind != Place::Run)
        return false;
    const std::string label = categoryKey(m_found.runs[place.at].category);
    const auto isIt = [&](const srCategoryStruct_v3& category) {
        return categoryKey(category.cat) == label;
    };
    return std::ranges::none_of(m_document.categories, isIt) ||
           isIt(m_document.categories[m_people[person].category]);
}

FoundRuns RunsToEnter::chosen() const {
    FoundRuns chosen = m_found;
    std::set<AthletePlace> left;
    for (std::size_t run = 0; run < chosen.runs.size(); ++run) {
        FoundRun& entry = chosen.runs[run];
        if (m_isTicked[run])
            continue;
        if (entry.athlete)
            left.insert(*entry.athlete);
        entry.athlete.reset();
        entry.isOfNewAthlete = false;
    }
    // Whose runs are all left out by hand keeps what is there.
    chosen.kept.assign(m_kept.begin(), m_kept.end());
    chosen.kept.insert(chosen.kept.end(), left.begin(), left.end());
    return chosen;
}

RunsToEnter::Outcome RunsToEnter::outcome() const {
    Outcome outcome{m_document, {}, {}, {}};
    computePercentages(outcome.after);
    outcome.ranksBefore = ranksOf(outcome.after, m_bonus);
    outcome.entered = enterRuns(outcome.after, m_race, chosen());
    computePercentages(outcome.after);
    outcome.ranks = ranksOf(outcome.after, m_bonus);
    return outcome;
}

QString RunsToEnter::resultBefore(const AthletePlace& athlete) const {
    const auto& categories = m_document.categories;
    if (athlete.category >= categories.size() ||
        athlete.athlete >= categories[athlete.category].athletes.size())
        return {};
    const auto& results = categories[athlete.category].athletes[athlete.athlete].racedata;
    if (m_race >= results.size() || isMissing(results[m_race]))
        return {};
    return resultText(results[m_race].resultTime, results[m_race].pen);
}

/// The athlete in whose result a run ends up; none where it is left out or another one is better.
std::optional<AthletePlace> RunsToEnter::athleteWith(std::size_t run,
                                                     const Outcome& outcome) const {
    const FoundRun& found = m_found.runs[run];
    if (!m_isTicked[run] || !found.isTaken())
        return std::nullopt;
    const auto athlete = outcome.athleteOf(found);
    if (!athlete)
        return std::nullopt;
    const saRaceStruct& result =
        outcome.after.categories[athlete->category].athletes[athlete->athlete].racedata[m_race];
    const bool isIt = result.resultTime == found.time && result.pen == found.penalty;
    return isIt ? athlete : std::nullopt;
}

QString RunsToEnter::runRemark(std::size_t run, const Outcome& outcome) const {
    const FoundRun& found = m_found.runs[run];
    if (!found.fault.empty())
        return qtText(found.fault);
    if (!found.isTaken())
        return m_likely[run].isEmpty() ? QString() : tr("perhaps %1?").arg(m_likely[run]);
    const auto athlete = athleteWith(run, outcome);
    if (!athlete)
        return m_isTicked[run] ? tr("another run is better") : QString();
    QString remark = outcome.rankText(*athlete);
    const ResultPlace place{athlete->category, athlete->athlete, m_race};
    const auto& kept = outcome.entered.keptExpected;
    if (std::ranges::find(kept, place) != kept.end())
        remark += tr("; xTime %1 stays")
                      .arg(shownHundredths(outcome.after.categories[athlete->category]
                                               .athletes[athlete->athlete]
                                               .racedata[m_race]
                                               .xTime));
    return remark;
}

FoundLine RunsToEnter::runLine(std::size_t run, const Outcome& outcome) const {
    const FoundRun& found = m_found.runs[run];
    const bool isResult = found.fault.empty();
    FoundLine line;
    line.name = qtText(found.name);
    line.facts = {qtText(found.category),
                  found.line > 0 ? tr("line %1").arg(found.line) : qtText(found.phase)};
    line.isChosenByHand = isResult;
    if (found.athlete) {
        const auto person = std::ranges::find(m_people, *found.athlete) - m_people.begin();
        line.whose = Belonging::toPerson(static_cast<std::size_t>(person));
        line.was = resultBefore(*found.athlete);
    } else if (found.isOfNewAthlete) {
        line.whose = Belonging::toNewPerson();
    }
    if (found.isTaken()) {
        line.tick = m_isTicked[run];
        if (athleteWith(run, outcome))
            line.now = resultText(found.time, found.penalty);
        else if (!m_isTicked[run])
            line.now = line.was;
    }
    line.facts.append(isResult ? resultText(found.time, found.penalty) : QString());
    line.remark = runRemark(run, outcome);
    return line;
}

FoundLine RunsToEnter::athleteLine(const AthletePlace& athlete, const Outcome& outcome) const {
    FoundLine line;
    line.name = tr("(no run)");
    line.facts = {qtText(m_document.categories[athlete.category].cat), {}, {}};
    const auto person = std::ranges::find(m_people, athlete) - m_people.begin();
    line.whose = Belonging::toPerson(static_cast<std::size_t>(person));
    line.was = resultBefore(athlete);
    const bool isKept = m_kept.contains(athlete);
    if (line.was.isEmpty()) {
        line.remark = tr("has no result in this race");
        return line;
    }
    line.tick = !isKept;
    line.now = isKept ? line.was : tr("no result");
    line.remark = outcome.rankText(athlete);
    return line;
}

FoundLine RunsToEnter::refusalLine(const RefusedLine& refused) const {
    FoundLine line;
    line.name = tr("(line %1)").arg(refused.line);
    line.facts = {{}, tr("line %1").arg(refused.line), {}};
    line.remark = qtText(refused.reason);
    return line;
}

std::vector<FoundLine> RunsToEnter::lines() {
    const Outcome outcome = this->outcome();
    FoundRuns all = chosen();
    std::erase_if(all.kept, [this](const AthletePlace& place) { return m_kept.contains(place); });
    m_athletes = withoutRun(m_document, m_race, all);
    std::vector<FoundLine> lines;
    m_places.clear();
    const auto add = [&](Place::Kind kind, std::size_t at, FoundLine line) {
        m_places.push_back({kind, at});
        lines.push_back(std::move(line));
    };
    for (std::size_t i = 0; i < m_order.size(); ++i) {
        if (i == m_known)
            for (std::size_t a = 0; a < m_athletes.size(); ++a)
                add(Place::Athlete, a, athleteLine(m_athletes[a], outcome));
        add(Place::Run, m_order[i], runLine(m_order[i], outcome));
    }
    if (m_known == m_order.size())
        for (std::size_t a = 0; a < m_athletes.size(); ++a)
            add(Place::Athlete, a, athleteLine(m_athletes[a], outcome));
    for (std::size_t i = 0; i < m_found.refused.size(); ++i)
        add(Place::Refusal, i, refusalLine(m_found.refused[i]));
    m_counts = {outcome.entered.results.size(), outcome.ranks.size() - outcome.ranksBefore.size(),
                outcome.entered.missing.size(), m_found.refused.size()};
    for (std::size_t run = 0; run < m_found.runs.size(); ++run)
        if (!m_found.runs[run].isTaken() || !m_isTicked[run])
            ++m_counts.unused;
    return lines;
}

void RunsToEnter::tick(int line, bool isTaken) {
    const Place& place = m_places.at(static_cast<std::size_t>(line));
    if (place.kind == Place::Run)
        m_isTicked[place.at] = isTaken;
    else if (place.kind == Place::Athlete && isTaken)
        m_kept.erase(m_athletes[place.at]);
    else if (place.kind == Place::Athlete)
        m_kept.insert(m_athletes[place.at]);
}

void RunsToEnter::choose(int line, const Belonging& whose) {
    const Place& place = m_places.at(static_cast<std::size_t>(line));
    if (place.kind != Place::Run)
        return;
    const auto key = keyOf(m_found.runs[place.at]);
    for (std::size_t run = 0; run < m_found.runs.size(); ++run) {
        FoundRun& entry = m_found.runs[run];
        if (keyOf(entry) != key)
            continue;
        entry.athlete = whose.to == Belonging::To::Person ? std::optional(m_people.at(whose.person))
                                                          : std::nullopt;
        entry.isOfNewAthlete = whose.to == Belonging::To::NewPerson;
        m_isTicked[run] = true;
    }
}

} // namespace kavela::desktop
