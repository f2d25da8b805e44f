#pragma once

#include "common/why.h"
#include "results/selection_records.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

/// The ranking of a selection. In every race an athlete stands so many percent behind the best of
/// the category; the worst race is dropped, with a bonus the second worst too, and what remains is
/// summed and divided by three, however many races there were. The lower score is the better one.
namespace kavela {

inline constexpr double MissingTime = 999.9;        ///< stands for a result that is missing
inline constexpr double MissingPercentage = 999.99; ///< what such a result is behind the best
inline constexpr double BestOfNobody = 999.0;       ///< the best where nobody has a result
inline constexpr double NoBonus = -1.0;             ///< a bonus of this or less does not count

/// The kind of bonus that counts, from 0; nothing while the bonus is switched off.
using BonusKind = std::optional<std::size_t>;

/// Which times a view compares: the official ones, which make the score of the file, or the
/// expected ones.
enum class SelectionTimes { Official, Expected };

/// A race without a result.
[[nodiscard]] saRaceStruct missingResult();

/// Whether a race has no result: a missing one, or a time of 0, which counts as the formula says
/// and puts its athlete far in front. Windows warn of such and offer to make them missing.
[[nodiscard]] bool isMissing(const saRaceStruct& result);
[[nodiscard]] bool isZero(const saRaceStruct& result);

/// What became of one of the results that make up a score.
enum class ResultFate {
    Counted,
    Worst,       ///< dropped: the worst of all
    SecondWorst, ///< dropped too, because a bonus stands among the results
};

struct ScorePart {
    double percentage = 0;
    ResultFate fate = ResultFate::Counted;

    friend bool operator==(const ScorePart&, const ScorePart&) = default;
};

/// How a score came about.
struct Score {
    std::vector<ScorePart> races;   ///< by race
    std::optional<ScorePart> bonus; ///< nothing when none counts
    double sum = 0;                 ///< of the counted parts
    double score = 0;               ///< sum / 3
};

/// Names a race, counted from 0, and tells what its percentage was made of.
using TellRace = std::function<std::string(std::size_t race, Why& part)>;

/// The score of an athlete's percentages. Of equal ones the later race is dropped first. Told with
/// one input and one part for each race, the bonus behind them, and the sum as the last part.
[[nodiscard]] Score scoreOf(std::span<const double> percentages, std::optional<double> bonus,
                            const TellRace& tell = {}, Why* why = nullptr);

/// The same for an athlete of a document with so many races.
[[nodiscard]] Score scoreOf(const srAthleteStruct_v3& athlete, std::size_t races, BonusKind bonus,
                            SelectionTimes times = SelectionTimes::Official);

/// The same for an athlete by his places in a document whose percentages are computed; both have to
/// be there.
[[nodiscard]] Score scoreOf(const selectionracesStruct_v3& document, std::size_t category,
                            std::size_t athlete, BonusKind bonus, SelectionTimes times,
                            Why* why = nullptr);

/// What a result is behind the best of its race and category, by the official or the expected
/// times: MissingPercentage for a missing one.
[[nodiscard]] double racePercentage(const saRaceStruct& result, double best, SelectionTimes times,
                                    Why* why = nullptr);

/// Why the score of an athlete of a category is what it is, by the function that makes it:
/// "score/ATHLETE", the athlete by name, "score/ATHLETE/RACE" for the percentage of a race, counted
/// from 0. Nothing where there is none.
[[nodiscard]] std::optional<Reason> explainScore(const selectionracesStruct_v3& document,
                                                 std::size_t category, BonusKind bonus,
                                                 SelectionTimes times, std::string_view id);

/// Gives every race its best times and every athlete the percentages; athletes with fewer results
/// than races get missing ones. The order of athletes stays.
void computePercentages(selectionracesStruct_v3& document);

/// Percentages and scores; the order of athletes stays.
void computeScores(selectionracesStruct_v3& document, BonusKind bonus);

/// The whole recomputation: percentages, scores, and the athletes of each category by score, those
/// of equal scores in the order they had.
void recomputeSelection(selectionracesStruct_v3& document, BonusKind bonus);

/// An athlete's place in a ranking.
struct Standing {
    std::size_t athlete = 0; ///< index in the category
    std::int64_t rank = 0;   ///< from 1; the same for equal scores
    Score score;
};

/// The ranking of a category whose percentages are computed, the best first.
[[nodiscard]] std::vector<Standing> standings(const srCategoryStruct_v3& category,
                                              std::size_t races, BonusKind bonus,
                                              SelectionTimes times = SelectionTimes::Official);

/// Sets `pos` of every athlete in a race: the rank by total within the category, the same for equal
/// totals, 0 without a result.
void rankRace(selectionracesStruct_v3& document, std::size_t race);

/// How many kinds of bonus any athlete of the document has.
[[nodiscard]] std::size_t bonusKinds(const selectionracesStruct_v3& document);

/// How many preselection groups any athlete of the document has a flag for.
[[nodiscard]] std::size_t preselectionGroups(const selectionracesStruct_v3& document);

} // namespace kavela
