#include "desktop/barrier/slit_steps.h"

#include "desktop/barrier/slit_keeping.h"
#include "desktop/barrier/slit_race.h"

#include <QScopedValueRollback>
#include <QUndoStack>

#include <algorithm>
#include <utility>

namespace kavela::desktop {

namespace {

constexpr qint64 NudgePause = 1000; ///< milliseconds, after which a nudge is a step of its own

} // namespace

SlitSteps::SlitSteps(SlitKeeping& keeping, SlitRace& race) : m_keeping(keeping), m_race(race) {
    connect(&keeping, &SlitKeeping::edited, this, &SlitSteps::remember);
    connect(&keeping, &SlitKeeping::opened, this, &SlitSteps::forget);
    connect(&race, &SlitRace::stepped, this, &SlitSteps::followSteps);
    connect(&race, &SlitRace::replaced, this, &SlitSteps::followRace);
}

bool SlitSteps::canUndo() const {
    return !m_done.empty() || m_race.isThere();
}

bool SlitSteps::canRedo() const {
    return !m_undone.empty() || m_race.isThere();
}

void SlitSteps::undo() {
    if (m_done.empty() || m_done.back().raceSteps < raceSteps())
        m_race.undo();
    else
        exchange(m_done, m_undone);
}

void SlitSteps::redo() {
    if (m_undone.empty() || m_undone.back().raceSteps > raceSteps())
        m_race.redo();
    else
        exchange(m_undone, m_done);
}

int SlitSteps::raceSteps() const {
    return m_race.isThere() ? m_race.document()->undoStack().index() : 0;
}

void SlitSteps::nudging(std::size_t line, const std::function<void()>& edit) {
    const QScopedValueRollback<std::optional<std::size_t>> nudging(m_nudging, line);
    edit();
}

bool SlitSteps::goesOnNudging() const {
    return m_nudging && m_nudgedLast.isValid() && m_nudgedLast.elapsed() < NudgePause &&
           !m_done.empty() && m_done.back().nudged == m_nudging &&
           m_done.back().raceSteps == raceSteps();
}

void SlitSteps::remember(const slitfile002& before) {
    if (!goesOnNudging())
        m_done.push_back({before, raceSteps(), m_nudging});
    m_undone.clear();
    if (m_nudging)
        m_nudgedLast.start();
}

void SlitSteps::forget() {
    m_done.clear();
    m_undone.clear();
}

/// Split taking takes back marks too: what is marked anew after that is later than the lines, and
/// what was taken back before a new mark cannot be done again.
void SlitSteps::followSteps(int raceSteps) {
    for (LineStep& step : m_done)
        step.raceSteps = std::min(step.raceSteps, raceSteps);
    if (!m_undone.empty() && m_undone.back().raceSteps < raceSteps)
        m_undone.clear();
}

/// Lines that were drawn before another race was opened are taken back before its steps.
void SlitSteps::followRace() {
    for (LineStep& step : m_done)
        step.raceSteps = raceSteps();
    m_undone.clear();
}

void SlitSteps::exchange(std::vector<LineStep>& from, std::vector<LineStep>& to) {
    m_nudgedLast.invalidate(); // what is nudged now is nudged from here
    LineStep step = std::move(from.back());
    from.pop_back();
    to.push_back({m_keeping.file(), raceSteps(), step.nudged});
    m_keeping.putBack(std::move(step.file));
}

} // namespace kavela::desktop
