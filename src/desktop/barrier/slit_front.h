#pragma once

#include "desktop/barrier/slit_marking.h"

#include <optional>

namespace kavela::desktop {

class SlitPanel;
class SlitStage;

/// The run in front of a slit picture, and the way from run to run and from proposal to proposal
/// with the hair line.
class SlitFront {
public:
    /// All must outlive it.
    SlitFront(const SlitMarking& marking, SlitStage& stage, SlitPanel& panel)
        : m_marking(marking), m_stage(stage), m_panel(panel) {}

    [[nodiscard]] int run() const { return m_run; } ///< of the race; below 0 for none
    /// None is in front, up to when runs are shown: then the first.
    void leave() { m_run = -1; }
    /// Shows the runs and proposals of the line.
    void show();
    /// Takes over what is chosen in the list: the first run of a line comes without anything else,
    /// another one with its place.
    void follow();
    /// The hair line goes to where the run is marked, or may have crossed; else it stays.
    void goToRun();
    void stepRun(int step);
    /// Goes on to the next run behind it without a mark; it stays where none is. The one that was
    /// marked flashes over the film.
    void goOn(bool isMarked);
    /// False where no proposal is that way.
    [[nodiscard]] bool stepProposal(int step);
    /// To a moment of the film; a run that it is held for comes to the front, so that Enter marks
    /// that one. Below 0 for none.
    void goToProposal(double seconds, int run);

private:
    /// Its place in the list; nothing for one that is not there.
    [[nodiscard]] std::optional<int> placeOf(int run) const;
    void showMarks();
    void setHair(double seconds);

    const SlitMarking& m_marking;
    SlitStage& m_stage;
    SlitPanel& m_panel;
    int m_run = -1;
};

} // namespace kavela::desktop
