#pragma once

#include "vision/slit_file.h"

#include <QElapsedTimer>
#include <QObject>

#include <cstddef>
#include <functional>
#include <optional>
#include <vector>

namespace kavela::desktop {

class SlitKeeping;
class SlitRace;

/// Takes back what was done in a slit picture in the order in which it was done: the lines with
/// what was refused on them, which are kept beside the film, and the marks, whose steps are those
/// of the race.
class SlitSteps : public QObject {
    Q_OBJECT

public:
    /// Both must outlive it.
    SlitSteps(SlitKeeping& keeping, SlitRace& race);

    [[nodiscard]] bool canUndo() const;
    [[nodiscard]] bool canRedo() const;
    /// Nothing happens where nothing was done.
    void undo();
    void redo();

    /// While `edit` runs, what is edited is a nudge of that line. Nudges of one line without a
    /// pause between them, as of a key that is held, are taken back at once.
    void nudging(std::size_t line, const std::function<void()>& edit);

private:
    /// The lines as they were, and how many steps of the race were taken then.
    struct LineStep {
        slitfile002 file;
        int raceSteps = 0;
        std::optional<std::size_t> nudged = {}; ///< the line that was nudged; null for another edit
    };

    [[nodiscard]] int raceSteps() const;
    void remember(const slitfile002& before);
    void forget();
    void followSteps(int raceSteps);
    void followRace();
    [[nodiscard]] bool goesOnNudging() const;
    void exchange(std::vector<LineStep>& from, std::vector<LineStep>& to);

    SlitKeeping& m_keeping;
    SlitRace& m_race;
    std::optional<std::size_t> m_nudging;
    QElapsedTimer m_nudgedLast;     ///< not valid after a step back
    std::vector<LineStep> m_done;   ///< the latest last
    std::vector<LineStep> m_undone; ///< the one to be done again first last
};

} // namespace kavela::desktop
