#pragma once

#include "performance/loss_notes.h"
#include "performance/losses.h"
#include "statistics/intervals.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// Where an athlete loses time over many runs, on one course or on many: in percent of the
/// reference's time, since a second means different things on different courses.
namespace kavela {

/// Whose season, against what. A reference of the kind `Run` means one file only.
struct SeasonLossQuery {
    std::string crewKey;     ///< of a crew
    std::string categoryKey; ///< empty for all categories
    LossReference reference;
};

enum class LossVerdict {
    Losing,  ///< the whole interval is above 0
    Gaining, ///< the whole interval is below 0
    Unclear  ///< neither, or too few runs for an interval
};

[[nodiscard]] std::string_view verdictText(LossVerdict verdict);

/// Where to see a loss: a stretch of a run.
struct LossClip {
    std::size_t run = 0;                     ///< of the store
    std::optional<std::size_t> referenceRun; ///< the same place of the run it is held against
    std::size_t first = 1;                   ///< sections, from 1; 0 for a gate that hangs in none
    std::size_t last = 1;
    std::optional<std::int32_t> gate; ///< where the loss is one of a gate
    double loss = 0;
};

/// One thing in which time is lost.
struct SeasonLossRow {
    std::string field;    ///< kind, third, upstream, direction or style
    std::string key;      ///< "mixed", "1", "all", or the id of a label
    std::string text;     ///< the key in words
    std::size_t runs = 0; ///< that have something of it
    double loss = 0;      ///< seconds, of all runs
    double reference = 0; ///< the reference's seconds there
    double percent = 0;
    std::optional<Interval> interval; ///< of the percent; none below three runs
    double perRun = 0;                ///< seconds
    std::optional<double> share;      ///< of the whole gap; none when that is 0
    LossVerdict verdict = LossVerdict::Unclear;
    std::vector<LossClip> clips; ///< the greatest losses, three at most
};

struct SeasonLosses {
    std::vector<std::size_t> runs; ///< whole ones with a gap, of the store
    MeanOf gap;
    MeanOf penalties;
    std::vector<SeasonLossRow> rows;
    std::vector<std::size_t> train; ///< of the rows: those that lose most in a run, three at most
    LossNotes notes;                ///< of all the athlete's runs, also those that are not whole
};

/// The numbers of a season.
enum class SeasonLossNumber { None, Runs, Loss, Percent, PerRun, Share, Gap, Penalties };

struct SeasonLossQuestion {
    SeasonLossNumber number = SeasonLossNumber::None;
    std::string_view field; ///< of a row
    std::string_view key;
};

/// All runs of the crew that the query names, of the store.
[[nodiscard]] std::vector<std::size_t> seasonRuns(const FactStore& facts,
                                                  const SeasonLossQuery& query);

[[nodiscard]] SeasonLosses seasonLosses(const FactStore& facts, const SeasonLossQuery& query,
                                        const SeasonLossQuestion& question = {},
                                        Why* why = nullptr);

} // namespace kavela
