#include "sample/older_releases.h"

#include "common/json_encode.h"
#include "sample/cross.h"
#include "sample/races.h"
#include "sample/recording.h"
#include "splitdata/history/documents.h"

// The changes of shape, backwards: the counterparts of what stands beside the history's records.
namespace kavela {

template <class To>
static void convertRenamed(athletedata031& from, To& to) {
    if constexpr (requires { to.name; })
        to.name = from.names.front();
    if constexpr (requires { to.peninfo; })
        if (!from.sectioninfo.pendetails.empty())
            convertValue(std::move(from.sectioninfo.pendetails.front()), to.peninfo);
}

static void convertRenamed(boatmotionrawdata_v5& from, boatmotionrawdata& to) {
    to.date.seconds = from.timestamp;
}

static void convertRenamed(watchmotiondata_v5& from, watchmotiondata& to) {
    to.date.seconds = from.timestamp;
}

static void convertRenamed(bmrawdata_v5& from, bmrawdata_v4& to) {
    convertValue(std::move(from.athleteinfo), to.info);
}

/// The stamps of the first camera only.
static void convertValue(std::vector<std::vector<CMTime>>&& from, std::vector<CMTime>& to) {
    for (const std::vector<CMTime>& stamps : from)
        to.push_back(stamps.empty() ? CMTime{} : stamps.front());
}

static void convertValue(generaldata030&& from, history::generaldata028& to) {
    to = {from.time, std::to_string(from.gate), from.gatenum, std::move(from.order)};
}

} // namespace kavela

namespace kavela::sample {

namespace {

using namespace std::chrono_literals;

template <class Document>
std::string olderText(splittakerdata031 document) {
    return encode(converted<Document>(std::move(document)));
}

splittakerdata031 formerRace(std::string title, Course course, std::string category,
                             std::chrono::year_month_day day) {
    return holdRace({.title = std::move(title),
                     .event = "National Cup",
                     .prefix = std::to_string(static_cast<int>(day.year())),
                     .course = std::move(course),
                     .day = day,
                     .categories = {std::move(category)},
                     .phases = {{"Heats", 8, 1.02}, {"Final", 4, 1.01}}});
}

/// In 0.28 a race had doubles, a cross race and the motion of a boat; the samples were dated.
splittakerdata031 raceOf028() {
    splittakerdata031 race = formerRace("Autumn Doubles", harbour(), "C2X", 2024y / 9 / 14);
    const double start = race.info.date.seconds + 600;
    Recording recording =
        record({.label = "0.28", .seconds = 3, .start = {start}, .clockStart = start});
    race.athletes.front().bm = std::move(recording.boat);
    race.athletes.front().gps = std::move(recording.gps);
    race.athletes.front().hr = std::move(recording.heart);
    race.crossracedata = crossRace().crossracedata;
    return race;
}

} // namespace

bmrawdata_v4 asVersion4(bmrawdata_v5 session) {
    return converted<bmrawdata_v4>(std::move(session));
}

std::vector<OldFile> filesOfOldReleases() {
    using namespace history;
    return {
        {"0.28", olderText<splittakerdata028>(raceOf028())},
        {"0.22", olderText<splittakerdata022>(
                     formerRace("Midsummer Race", highland(), "K1W", 2022y / 6 / 25))},
        {"0.14",
         olderText<splittakerdata014>(formerRace("Mill Days", oldMill(), "C1M", 2019y / 5 / 18))},
        {"0.11",
         olderText<splittakerdata011>(formerRace("River Open", riverside(), "K1M", 2018y / 7 / 7))},
        {"0.2", olderText<splittakerdataOLD>(
                    formerRace("Mill Days 2015", oldMill(), "K1M", 2015y / 5 / 23))},
    };
}

} // namespace kavela::sample
