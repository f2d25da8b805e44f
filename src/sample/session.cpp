#include "sample/session.h"

namespace kavela::sample {

FilmedRun filmRun(const Course& course, const Boat& boat, const std::string& phase,
                  const Conditions& conditions, const Filming& filming, Dice& dice) {
    Passage passage = paddle(course, boat, conditions, dice);
    if (filming.shows == FilmShows::NotTheFirstSection)
        switchOnLate(course, passage);
    athletedata031 record = timeRun(course, boat, phase, passage, filming);
    return {boat, std::move(passage), filming, std::move(record)};
}

infodata031 sessionInfo(const Course& course, const std::string& title, const std::string& kind,
                        std::chrono::year_month_day day) {
    constexpr double HalfPastNine = 9.5 * 3600;
    constexpr double InTheEvening = 19.25 * 3600;
    infodata031 info;
    info.date = referenceDate(day, HalfPastNine);
    info.place = course.place;
    info.title = title;
    info.session = kind;
    info.techniquetype = "Full course";
    info.gates = course.gates();
    info.upGates = course.upGates;
    info.definedsections = course.sections();
    info.splitTitles = course.titles();
    info.totalsplits = static_cast<std::int64_t>(course.sectionEnds.size());
    info.watertype = course.water;
    info.tags = {"Good line", "Late", "Too wide"};
    info.lastSavedDate = referenceDate(day, InTheEvening);
    return info;
}

} // namespace kavela::sample
