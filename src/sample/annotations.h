#pragma once

#include "sample/run.h"

/// What a coach notes on a run after timing it. Every function adds one kind of note.
namespace kavela::sample {

/// What was filmed, for whoever looks at the film again.
struct Footage {
    const Course& course;
    const Passage& passage;
    const Filming& filming;
};

/// One record for all penalties of the run; none for a clean run.
void notePenalties(athletedata031& run, Dice& dice);

/// Entrance, pole line and exit of each upstream gate.
void noteUpstreams(athletedata031& run, const Footage& footage, Dice& dice);

/// A mark at each gate in the middle of a section.
void noteMicrosplits(athletedata031& run, const Footage& footage);

/// The strokes of the first seconds of the run.
void noteStrokes(athletedata031& run, const Footage& footage, double seconds, Dice& dice);

/// The session's tags on the first camera's film, and on a fixed camera's where there is one; and
/// the scores that coach and athlete give the run.
void noteTags(athletedata031& run, const Footage& footage, const std::vector<std::string>& tags,
              Dice& dice);

/// How the first upstream gate was done, and what the other way had cost.
void noteStrategy(athletedata031& run, const Footage& footage, Dice& dice);

/// A camera on the bank that filmed the run too.
void attachFixedCamera(athletedata031& run, const std::string& film, ReferenceDate mark);

/// The section in which a run lost most on another one, if it lost anything after the first.
void noteTimeLoss(athletedata031& run, const athletedata031& versus, const Course& course,
                  Dice& dice);

} // namespace kavela::sample
