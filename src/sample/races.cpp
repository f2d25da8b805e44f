#include "sample/races.h"

#include "common/number_text.h"
#include "sample/annotations.h"
#include "sample/session.h"

#include <algorithm>
#include <map>

namespace kavela::sample {

namespace {

using namespace std::chrono_literals;

bool isLast(const RacePlan& plan, const Phase& phase) {
    return phase.name == plan.phases.back().name;
}

double officialTotal(const FilmedRun& run) {
    const sectiondata030& timing = run.record.sectioninfo;
    return timing.realtime + static_cast<double>(timing.realpen);
}

/// Gives the runs of one category and phase their places, and orders them by these; boats that did
/// not finish have place 0 and come last.
void rankRuns(std::vector<FilmedRun>& runs) {
    const auto didNotFinish = std::stable_partition(
        runs.begin(), runs.end(), [](const FilmedRun& run) { return run.passage.isFinished(); });
    std::sort(runs.begin(), didNotFinish, [](const FilmedRun& a, const FilmedRun& b) {
        return std::pair(officialTotal(a), a.boat.bib) < std::pair(officialTotal(b), b.boat.bib);
    });
    std::int64_t place = 0;
    for (auto run = runs.begin(); run != didNotFinish; ++run)
        run->record.pos = ++place;
}

/// A few boats give up, and a few films miss the start or the finish.
FilmedRun raceRun(const RacePlan& plan, const Phase& phase, const Boat& boat, Dice& dice) {
    Conditions conditions{.effort = phase.effort};
    if (dice.chance(0.03))
        conditions.givesUpAfter = gateToGiveUpAfter(plan.course, dice);
    Filming filming{.clock = {plan.timescale}, .prefix = plan.prefix};
    filming.hasSecondCamera = isLast(plan, phase);
    if (conditions.givesUpAfter == 0 && dice.chance(0.03))
        filming.shows = dice.chance(0.5) ? FilmShows::NotTheFinish : FilmShows::NotTheFirstSection;
    return filmRun(plan.course, boat, phase.name, conditions, filming, dice);
}

Footage footageOf(const RacePlan& plan, const FilmedRun& run) {
    return {plan.course, run.passage, run.filming};
}

/// What is noted on every run.
void annotate(std::vector<FilmedRun>& runs, const RacePlan& plan, Dice& dice) {
    for (FilmedRun& run : runs) {
        notePenalties(run.record, dice);
        noteUpstreams(run.record, footageOf(plan, run), dice);
    }
}

/// What is noted on the runs of the last phase, which stand by place.
void analyse(std::vector<FilmedRun>& runs, const RacePlan& plan, const infodata031& info,
             Dice& dice) {
    const FilmedRun& winner = runs.front();
    for (FilmedRun& run : runs) {
        const Footage footage = footageOf(plan, run);
        attachFixedCamera(run.record, plan.prefix + " bank " + run.boat.category + ".MOV",
                          {info.date.seconds + static_cast<double>(60 * run.boat.bib)});
        noteMicrosplits(run.record, footage);
        noteTags(run.record, footage, info.tags, dice);
        noteStrategy(run.record, footage, dice);
        if (&run == &winner)
            noteStrokes(run.record, footage, 20, dice);
        else
            noteTimeLoss(run.record, winner.record, plan.course, dice);
    }
}

void appendOfficial(std::vector<allresultsdata030>& list, const std::vector<FilmedRun>& ranked) {
    for (const FilmedRun& run : ranked) {
        if (!run.passage.isFinished())
            continue;
        const sectiondata030& timing = run.record.sectioninfo;
        list.push_back({run.record.pos, run.boat.bib, run.boat.crew(), run.boat.nationality,
                        timing.realtime, timing.realpen, roundedToHundredths(officialTotal(run))});
    }
}

/// The times to beat: of the winner and of the third.
void noteInterest(infodata031& info, const std::vector<FilmedRun>& ranked) {
    for (const std::size_t place : {0U, 2U})
        if (place < ranked.size() && ranked[place].passage.isFinished())
            info.resultsofinterest.push_back(roundedToHundredths(officialTotal(ranked[place])));
}

/// Runs one phase of one category, and leaves its boats in `starters`, the best one first.
void holdPhase(const RacePlan& plan, const Phase& phase, std::vector<Boat>& starters,
               splittakerdata031& race) {
    starters.resize(std::min(starters.size(), phase.boats));
    Dice dice(plan.title + starters.front().category + phase.name);
    std::vector<FilmedRun> runs;
    runs.reserve(starters.size());
    for (const Boat& boat : starters)
        runs.push_back(raceRun(plan, phase, boat, dice));
    rankRuns(runs);
    annotate(runs, plan, dice);
    if (phase.name == plan.phases.front().name)
        appendOfficial(race.info.resultsCSVdata, runs);
    if (isLast(plan, phase)) {
        analyse(runs, plan, race.info, dice);
        noteInterest(race.info, runs);
    }
    for (std::size_t i = 0; i < runs.size(); ++i)
        starters[i] = runs[i].boat;
    for (FilmedRun& run : runs)
        race.athletes.push_back(std::move(run.record));
}

} // namespace

splittakerdata031 holdRace(const RacePlan& plan) {
    splittakerdata031 race;
    race.info = sessionInfo(plan.course, plan.title, "Race", plan.day);
    race.info.event = plan.event;
    race.info.category = plan.categories.size() == 1 ? plan.categories.front() : "All";
    std::map<std::string, std::vector<Boat>> starters;
    for (const std::string& category : plan.categories)
        starters[category] = sampleBoats(category);
    for (const Phase& phase : plan.phases)
        for (const std::string& category : plan.categories)
            holdPhase(plan, phase, starters[category], race);
    const std::string list = officialList(race.info.resultsCSVdata);
    race.info.officialresults.bytes = std::vector<unsigned char>(list.begin(), list.end());
    return race;
}

std::string officialList(std::span<const allresultsdata030> results) {
    std::string list = "pos;bib;name;nationality;time;pen\n";
    for (const allresultsdata030& line : results)
        list += std::to_string(line.pos) + ';' + std::to_string(line.bib) + ';' + line.name + ';' +
                line.nationality + ';' + plainText(line.time) + ';' + std::to_string(line.pen) +
                '\n';
    return list;
}

std::string startList(const splittakerdata031& race, int firstStart) {
    constexpr int Minute = 60;
    std::vector<allresultsdata030> boats = race.info.resultsCSVdata;
    std::ranges::sort(boats, {}, &allresultsdata030::bib);
    std::string list = "bib,name,category,start time\n";
    int start = firstStart;
    for (const allresultsdata030& boat : boats) {
        const auto run = std::ranges::find_if(race.athletes, [&](const athletedata031& each) {
            std::string crew;
            for (const std::string& name : each.names)
                crew += (crew.empty() ? "" : " - ") + name;
            return crew == boat.name;
        });
        const int minutes = start / Minute;
        const auto digits = [](int number) {
            return (number < 10 ? "0" : "") + std::to_string(number);
        };
        list += std::to_string(boat.bib) + ',' + boat.name + ',' +
                (run == race.athletes.end() ? std::string() : run->cat) + ',' +
                digits(minutes / Minute) + ':' + digits(minutes % Minute) + ':' +
                digits(start % Minute) + '\n';
        start += Minute;
    }
    return list;
}

RacePlan springOpener() {
    return {.title = "Spring Opener",
            .event = "National Cup",
            .prefix = "opener",
            .course = oldMill(),
            .day = 2026y / 4 / 11,
            .categories = {"K1M", "C1M", "K1W", "C1W", "C2X"},
            .phases = {{"Heats", 12, 1.01}, {"Final", 5, 1}}};
}

RacePlan riversideCup() {
    return {.title = "Riverside Cup",
            .event = "International",
            .prefix = "riverside",
            .course = riverside(),
            .day = 2026y / 5 / 16,
            .categories = {"K1M"},
            .phases = {{"Heats", 28, 1.012}, {"Semifinal", 20, 1.005}, {"Final", 10, 1}}};
}

RacePlan highlandOpen() {
    return {.title = "Highland Open",
            .event = "ICF",
            .prefix = "highland",
            .course = highland(),
            .day = 2026y / 6 / 13,
            .categories = {"K1W", "C1W"},
            .phases = {{"Heats", 12, 1.01}, {"Final", 6, 1}},
            .timescale = 60000};
}

RacePlan harbourNight() {
    return {.title = "Nuit du Vieux-Port",
            .event = "National Cup",
            .prefix = "harbour",
            .course = harbour(),
            .day = 2026y / 7 / 4,
            .categories = {"C1M", "C2X"},
            .phases = {{"Heats", 9, 1.01}, {"Final", 4, 1}},
            .timescale = 60000};
}

} // namespace kavela::sample
