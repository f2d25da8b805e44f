#pragma once

#include "common/reference_date.h"
#include "common/why.h"
#include "facts/fact_store.h"
#include "results/team_records.h"

#include <cstddef>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// What a season's figures are made from: the races of a team's athletes as the team has them, and
/// the runs of everybody who raced, from split files, and from the team what these lack. Totals are
/// seconds with penalties.
namespace kavela {

/// Which part of the seasons is asked for.
struct SeasonChoice {
    std::string category; ///< however it is written
    std::int64_t firstYear = std::numeric_limits<std::int64_t>::min();
    std::int64_t lastYear = std::numeric_limits<std::int64_t>::max();
    /// Only races in which this athlete starts at all, whoever else is asked about; empty for all.
    std::string starter = {};

    [[nodiscard]] bool has(std::int64_t year) const {
        return firstYear <= year && year <= lastYear;
    }

    friend bool operator==(const SeasonChoice&, const SeasonChoice&) = default;
};

/// Somebody who raced.
struct SeasonBoat {
    std::string key;                   ///< as crewKey() has it
    std::string name;                  ///< as first written
    std::optional<std::size_t> member; ///< of the team's athletes
    bool isRetired = false;
};

/// A phase of a race: those in it met on one course.
struct RacePhase {
    std::string phase; ///< the team's label, else as written
    std::string location;
    std::int64_t year = 0;
    ReferenceDate date;
    std::optional<std::uint32_t> file; ///< of the store; none for one that only the team has
};

/// A run with a total.
struct SeasonRun {
    std::size_t boat = 0;  ///< of SeasonData::boats
    std::size_t phase = 0; ///< of SeasonData::phases
    double total = 0;
    bool isMissed = false;          ///< with a missed gate
    std::optional<std::size_t> run; ///< of the store; none for one of the team
};

/// Where the time of a phase's winner is from.
enum class WinnerSource { None, File, Team };

/// "file" and "team"; empty for none.
[[nodiscard]] std::string_view sourceText(WinnerSource source);

/// A phase of a race of the team's athlete.
struct PhaseResult {
    std::string phase;
    ReferenceDate date;
    std::int64_t pos = 0;
    std::optional<double> total;
    bool isMissed = false;
    std::optional<double> winner; ///< the best total, by whoever it is
    WinnerSource source = WinnerSource::None;
    std::string winnerName;
    std::optional<std::size_t> winnerRun; ///< of the store
    std::optional<double> percent;        ///< behind the winner
    std::optional<double> behindSplits;   ///< percent behind the fastest of each split
    std::vector<double> splits;           ///< of the team's record
    std::vector<double> pers;
};

/// A race of the team's athlete.
struct RaceResult {
    std::int64_t year = 0;
    std::string event;
    std::string location;
    std::int64_t finalPos = 0; ///< 0 where it is not known
    std::vector<PhaseResult> phases;
};

/// An athlete of the team.
struct SeasonMember {
    std::size_t boat = 0; ///< of SeasonData::boats; two athletes of one name share it
    std::string name;
    bool isRetired = false;
    std::vector<RaceResult> races; ///< by their days, those without one by year in front
};

struct SeasonData {
    std::string category;          ///< the team's label where it has one, else as asked for
    std::vector<SeasonBoat> boats; ///< the team's first, in its order
    std::vector<RacePhase> phases;
    std::vector<SeasonRun> runs; ///< those of split files first
    std::vector<SeasonMember> members;
    std::vector<std::string> twins; ///< names that several athletes of the team have
    /// In whose races all this was, as first written; nothing for all races, and for somebody of
    /// whom no start is known: then there are none.
    std::optional<std::string> starter;

    /// The boat of a name however it is written.
    [[nodiscard]] std::optional<std::size_t> boatNamed(std::string_view name) const;
    /// The athlete of a name however it is written; the first of several.
    [[nodiscard]] std::optional<std::size_t> memberNamed(std::string_view name) const;
};

/// Whether a split file is of a race, and no training.
[[nodiscard]] bool isSeasonRace(const FactStore& facts, const FileRow& file);

/// Only races count: files whose session is one, of the category and the years. The team's phase
/// and a file's group are the same when phase and category are, place or title is the location, and
/// they are a day apart at most.
[[nodiscard]] SeasonData seasonData(const myTeamToSaveStruct& team, const FactStore& facts,
                                    const SeasonChoice& choice);

/// 100(T/W − 1) with penalties; nothing where the total or the winner is not known.
[[nodiscard]] std::optional<double>
percentBehindWinner(const FactStore& facts, const PhaseResult& result, Why* why = nullptr);

/// How far a whole run was behind the fastest times of its splits together, in percent and without
/// penalties; nothing where a split or its percentage is missing.
[[nodiscard]] std::optional<double> percentBehindSplits(const PhaseResult& result,
                                                        Why* why = nullptr);

/// Where a run of a split file stands.
[[nodiscard]] std::optional<Place> seasonPlace(const FactStore& facts,
                                               std::optional<std::size_t> run);

} // namespace kavela
