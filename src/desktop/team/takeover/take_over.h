#pragma once

#include "desktop/people/belonging.h"
#include "results/team_records.h"
#include "splitdata/document.h"
#include "splittaking/results_import.h"

#include <compare>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <vector>

/// Results of a race, taken over from a split file or an official list into the team: what was
/// found, what of it belongs to whom and would change what, and doing it.
namespace kavela::desktop {

/// What a file says of one boat: a run, or the final position where there is no run.
struct FoundResult {
    std::string crew;     ///< as the file writes it
    std::string category; ///< as the team writes it; as the file does where the team has none such
    std::optional<mtPhaseStruct> run;
    std::int64_t finalPos = 0;
    bool isSure = true; ///< whether a coach will want it without looking
    std::string fault;  ///< why it cannot be taken over; empty where it can
};

struct FoundRace {
    std::string event; ///< one of the team's; empty where the file names none of them
    std::string location;
    ReferenceDate date;
    std::vector<FoundResult> results;
};

/// What an official list does not say itself.
struct ListFacts {
    std::string category;
    std::string phase;
    ReferenceDate date;
    bool isFinalClassification = false;
};

/// The runs of a split file, with their percentages behind the fastest of their category and phase
/// split by split; and final positions, where the finals are in the file: everybody is classified
/// by the last phase they raced. Official time and penalty go before those taken from video.
[[nodiscard]] FoundRace foundInSplitFile(const splittakerdata031& file);

/// The lines of an official list as runs of one phase, which have no splits and so no percentages.
[[nodiscard]] FoundRace foundInList(const ResultsList& list, const ListFacts& facts);

/// Which race of a season it is.
struct RaceName {
    std::int64_t year = 0;
    std::string event;
    std::string location;
};

/// A crew of a file in a category of it, however its name is written there.
struct CrewOfFile {
    std::string category;
    std::string key;

    friend auto operator<=>(const CrewOfFile&, const CrewOfFile&) = default;
};

[[nodiscard]] CrewOfFile crewOf(const FoundResult& found);

/// Whose crews are, where it was chosen by hand.
using ChosenByHand = std::map<CrewOfFile, Belonging>;

/// A result of the file, and what would become of it.
struct PlannedResult {
    FoundResult found;
    Belonging whose; ///< an athlete of the team, one to be added to it, or nobody
    bool addsCategory = false;
    std::string before;   ///< what it would replace; empty for something new
    std::string reason;   ///< why it cannot be taken over; empty where it can
    std::string likely;   ///< of nobody's: the athlete who may be meant; empty where none is like
    std::size_t more = 0; ///< of nobody's: further results of the crew, which have no line
    bool isTicked = false;

    [[nodiscard]] bool canBeTaken() const { return reason.empty(); }
};

/// What of a race belongs to the team. Names are matched however they are written, and as chosen by
/// hand. Ticked is what a coach will want: not another boat than an athlete races in, which may be
/// a list of another. Results of athletes come first, in the order of the team; then those of
/// nobody, one for each crew.
[[nodiscard]] std::vector<PlannedResult> planTakeOver(const myTeamToSaveStruct& team,
                                                      const FoundRace& race, const RaceName& name,
                                                      const ChosenByHand& chosen = {});

/// A planned result as text: a run, or a final position.
[[nodiscard]] std::string resultText(const FoundResult& result);

/// Whose result was entered, and in which category.
struct TakenPlace {
    std::size_t athlete = 0;
    std::string category;
};

/// Enters the ticked ones. Athletes, seasons, races and phases are added where they are missing;
/// averages are computed again for the athletes concerned. Returns the first that was entered.
std::optional<TakenPlace> takeOver(myTeamToSaveStruct& team, std::span<const PlannedResult> planned,
                                   const RaceName& name);

} // namespace kavela::desktop
