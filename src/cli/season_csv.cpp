#include "cli/season_csv.h"

#include "common/number_text.h"
#include "facts/found_text.h"

#include <optional>

namespace kavela::cli {

namespace {

std::string numberField(const std::optional<double>& value) {
    return value ? plainText(*value) : std::string();
}

std::string phaseLine(const SeasonMember& member, const RaceResult& race,
                      const PhaseResult& phase) {
    std::string line = csvField(member.name) + ';' + std::to_string(race.year) + ';';
    for (const std::string& text : {race.event, race.location, phase.phase, dayText(phase.date)})
        line += csvField(text) + ';';
    line += (phase.pos > 0 ? std::to_string(phase.pos) : "") + ';' + numberField(phase.total) +
            ';' + numberField(phase.winner) + ';' + csvField(phase.winnerName) + ';' +
            std::string(sourceText(phase.source)) + ';' + numberField(phase.percent) + ';' +
            numberField(phase.behindSplits) + ';' + (phase.isMissed ? "1" : "0") + ';';
    return line + (race.finalPos > 0 ? std::to_string(race.finalPos) : "") + '\n';
}

} // namespace

std::string teamSeasonCsv(const Season& season) {
    std::string text = "Athlete;Year;Event;Location;Phase;Date;Position;Total s;Winner s;Winner;"
                       "Source;Percent;Percent behind splits;Missed gate;Final position\n";
    for (const SeasonMember& member : season.data.members)
        for (const RaceResult& race : member.races)
            for (const PhaseResult& phase : race.phases)
                text += phaseLine(member, race, phase);
    return text;
}

} // namespace kavela::cli
