#pragma once

#include "vision/slit_file.h"

#include <QObject>

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

private:
    /// The lines as they were, and how many steps of the race were taken then.
    struct LineStep {
        slitfile002 file;
        int raceSteps = 0;
    };

    [[nodiscard]] int raceSteps() const;
    void remember(const slitfile002& before);
    void forget();
    void followSteps(int raceSteps);
    void followRace();
    void exchange(std::vector<LineStep>& from, std::vector<LineStep>& to);

    SlitKeeping& m_keeping;
    SlitRace& m_race;
    std::vector<LineStep> m_done;   ///< the latest last
    std::vector<LineStep> m_undone; ///< the one to be done again first last
};

} // namespace kavela::desktop
