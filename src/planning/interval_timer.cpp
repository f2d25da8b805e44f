#include "planning/interval_timer.h"

#include "common/text.h"

#include <algorithm>
#include <cmath>

namespace kavela {

namespace {

/// More than anybody trains, and few enough for the steps of all sets to be counted.
constexpr std::int64_t MostCount = 1'000'000'000;
constexpr double BackToStart = 2; ///< seconds

double real(std::int64_t count) {
    return static_cast<double>(count);
}

} // namespace

const char* phaseName(IntervalPhase phase) {
    switch (phase) {
    case IntervalPhase::Prepare:
        return KAVELA_TEXT("Get ready");
    case IntervalPhase::Work:
        return KAVELA_TEXT("Work");
    case IntervalPhase::Rest:
        return KAVELA_TEXT("Rest");
    case IntervalPhase::SetRest:
        return KAVELA_TEXT("Rest between sets");
    case IntervalPhase::End:
        break;
    }
    return KAVELA_TEXT("Finished");
}

std::string whyNotTimed(const favInvervalSessions_v2& session) {
    if (session.sets < 1 || session.reps < 1)
        return say("The session needs at least one set and one repetition.");
    if (session.sets > MostCount || session.reps > MostCount)
        return say("The session has more sets or repetitions than can be timed.");
    for (const double time : {session.worktime, session.workrest, session.setrest})
        if (!std::isfinite(time) || time < 0)
            return say("A time of the session is negative or no number.");
    if (session.worktime <= 0)
        return say("The session needs a work time.");
    const double set = real(session.reps) * (session.worktime + session.workrest);
    const double most = real(session.sets) * (set + session.setrest);
    if (!(most <= LongestIntervalSession))
        return say("The session takes longer than a day.");
    return {};
}

std::optional<IntervalPlan> IntervalPlan::of(const favInvervalSessions_v2& session,
                                             double preparation) {
    if (!whyNotTimed(session).empty())
        return std::nullopt;
    IntervalPlan plan;
    plan.m_preparation = std::isfinite(preparation) ? std::max(preparation, 0.0) : 0;
    plan.m_sets = session.sets;
    plan.m_repetitions = session.reps;
    plan.m_work = session.worktime;
    plan.m_rest = session.workrest;
    plan.m_setRest = session.setrest;
    return plan;
}

double IntervalPlan::setTime() const {
    return real(m_repetitions) * m_work + real(m_repetitions - 1) * m_rest;
}

double IntervalPlan::sessionTime() const {
    return real(m_sets) * setTime() + real(m_sets - 1) * m_setRest;
}

double IntervalPlan::workTime() const {
    return real(m_sets) * real(m_repetitions) * m_work;
}

std::int64_t IntervalPlan::stepsInSet() const {
    const std::int64_t rests = m_rest > 0 ? m_repetitions - 1 : 0;
    return m_repetitions + rests + (m_setRest > 0 ? 1 : 0);
}

std::int64_t IntervalPlan::stepCount() const {
    return 1 + m_sets * stepsInSet() - (m_setRest > 0 ? 1 : 0) + 1;
}

IntervalStep IntervalPlan::step(std::int64_t index) const {
    if (index <= 0)
        return {IntervalPhase::Prepare, 0, 0, 0, m_preparation};
    if (index >= stepCount() - 1)
        return {IntervalPhase::End, m_sets, m_repetitions, total(), 0};
    const std::int64_t set = (index - 1) / stepsInSet();
    const std::int64_t inSet = (index - 1) % stepsInSet();
    const double begin = m_preparation + real(set) * (setTime() + m_setRest);
    if (m_setRest > 0 && inSet == stepsInSet() - 1)
        return {IntervalPhase::SetRest, set + 1, m_repetitions, begin + setTime(), m_setRest};
    const std::int64_t each = m_rest > 0 ? 2 : 1;
    const std::int64_t repetition = inSet / each;
    const double work = begin + real(repetition) * (m_work + m_rest);
    if (inSet % each == 0)
        return {IntervalPhase::Work, set + 1, repetition + 1, work, m_work};
    return {IntervalPhase::Rest, set + 1, repetition + 1, work + m_work, m_rest};
}

/// By division, which rounding may put a step off.
std::int64_t IntervalPlan::guessAt(double seconds) const {
    const double into = seconds - m_preparation;
    if (into < 0)
        return 0;
    const double cycle = setTime() + m_setRest;
    const std::int64_t set =
        std::min(static_cast<std::int64_t>(std::floor(into / cycle)), m_sets - 1);
    const double inSet = into - real(set) * cycle;
    const std::int64_t first = 1 + set * stepsInSet();
    if (inSet >= setTime())
        return first + stepsInSet() - (m_setRest > 0 ? 1 : 0);
    const std::int64_t repetition = std::min(
        static_cast<std::int64_t>(std::floor(inSet / (m_work + m_rest))), m_repetitions - 1);
    const double inRepetition = inSet - real(repetition) * (m_work + m_rest);
    return first + repetition * (m_rest > 0 ? 2 : 1) + (inRepetition >= m_work && m_rest > 0);
}

std::int64_t IntervalPlan::stepAt(double seconds) const {
    const std::int64_t last = stepCount() - 1;
    if (!(seconds < total()))
        return last;
    std::int64_t index = std::clamp<std::int64_t>(guessAt(seconds), 0, last - 1);
    if (index > 0 && seconds < step(index).begin)
        --index;
    else if (index + 1 < last && seconds >= step(index + 1).begin)
        ++index;
    return index;
}

double IntervalRun::elapsed(double now) const {
    const double elapsed = m_startedAt ? m_before + (now - *m_startedAt) : m_before;
    return std::clamp(elapsed, 0.0, m_plan.total());
}

double IntervalRun::remaining(double now) const {
    const IntervalStep step = m_plan.step(stepAt(now));
    return std::max(step.begin + step.length - elapsed(now), 0.0);
}

void IntervalRun::start(double now) {
    if (elapsed(now) >= m_plan.total())
        m_before = 0;
    else
        m_before = elapsed(now);
    m_startedAt = now;
}

void IntervalRun::pause(double now) {
    m_before = elapsed(now);
    m_startedAt.reset();
}

void IntervalRun::goTo(double elapsed, double now) {
    m_before = elapsed;
    if (m_startedAt)
        m_startedAt = now;
}

void IntervalRun::skip(double now) {
    goTo(m_plan.step(stepAt(now) + 1).begin, now);
}

void IntervalRun::back(double now) {
    const std::int64_t index = stepAt(now);
    const double begin = m_plan.step(index).begin;
    const bool isAtStart = elapsed(now) - begin < BackToStart;
    goTo(isAtStart ? m_plan.step(index - 1).begin : begin, now);
}

} // namespace kavela
