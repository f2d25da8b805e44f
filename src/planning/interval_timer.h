#pragma once

#include "planning/planning_records.h"

#include <optional>
#include <string>

/// The course of an interval session on the clock. Everything is computed from a few numbers, never
/// listed: a file may ask for any number of repetitions.
namespace kavela {

enum class IntervalPhase { Prepare, Work, Rest, SetRest, End };

/// "Work", "Rest between sets"
[[nodiscard]] const char* phaseName(IntervalPhase phase);

/// One stretch of a session. Times are seconds, from the start of the preparation.
struct IntervalStep {
    IntervalPhase phase = IntervalPhase::Prepare;
    std::int64_t set = 0;        ///< from 1; 0 before the first
    std::int64_t repetition = 0; ///< from 1, within the set; 0 before the first
    double begin = 0;
    double length = 0; ///< 0 for the end
};

/// Seconds to get ready before the first repetition.
inline constexpr double PreparationTime = 10;

/// The longest session that is timed, in seconds.
inline constexpr double LongestIntervalSession = 86400;

/// Why a session cannot be timed; empty where it can. It needs at least a set, a repetition and
/// some time to work, no time may be negative, and the whole must end within a day.
[[nodiscard]] std::string whyNotTimed(const favInvervalSessions_v2& session);

/// A session from the preparation to its end: work and rest of every repetition, without a rest
/// behind the last one of a set; then the rest between sets. Rests of no length are left out.
class IntervalPlan {
public:
    /// Nothing for a session that cannot be timed.
    [[nodiscard]] static std::optional<IntervalPlan> of(const favInvervalSessions_v2& session,
                                                        double preparation = PreparationTime);

    [[nodiscard]] double total() const { return m_preparation + sessionTime(); }
    [[nodiscard]] double sessionTime() const; ///< without the preparation
    [[nodiscard]] double workTime() const;
    [[nodiscard]] std::int64_t sets() const { return m_sets; }
    [[nodiscard]] std::int64_t repetitions() const { return m_repetitions; } ///< of a set

    /// The preparation, all stretches and the end.
    [[nodiscard]] std::int64_t stepCount() const;
    /// Step `index` from 0; the first or the last one for an index beyond them.
    [[nodiscard]] IntervalStep step(std::int64_t index) const;
    /// Which step a moment is in; a moment where two meet is in the later one.
    [[nodiscard]] std::int64_t stepAt(double seconds) const;

private:
    [[nodiscard]] double setTime() const;
    [[nodiscard]] std::int64_t stepsInSet() const; ///< with the rest behind it
    [[nodiscard]] std::int64_t guessAt(double seconds) const;

    double m_preparation = 0;
    std::int64_t m_sets = 0;
    std::int64_t m_repetitions = 0;
    double m_work = 0;
    double m_rest = 0;
    double m_setRest = 0;
};

/// A session that is being timed. `now` is the moment in seconds of a clock that runs evenly and
/// never back.
class IntervalRun {
public:
    explicit IntervalRun(IntervalPlan plan) : m_plan(plan) {}

    [[nodiscard]] const IntervalPlan& plan() const { return m_plan; }
    [[nodiscard]] bool isRunning() const { return m_startedAt.has_value(); }
    /// Seconds since the start of the preparation, at most the whole session.
    [[nodiscard]] double elapsed(double now) const;
    [[nodiscard]] std::int64_t stepAt(double now) const { return m_plan.stepAt(elapsed(now)); }
    /// Seconds left of the present step.
    [[nodiscard]] double remaining(double now) const;

    /// Starts or goes on; starts afresh at the end.
    void start(double now);
    void pause(double now);
    /// To the start of the next step.
    void skip(double now);
    /// To the start of the present step, or of the one before it within the first two seconds.
    void back(double now);

private:
    void goTo(double elapsed, double now);

    IntervalPlan m_plan;
    double m_before = 0; ///< elapsed when it was last started or stopped
    std::optional<double> m_startedAt;
};

} // namespace kavela
