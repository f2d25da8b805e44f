#pragma once

#include "desktop/film/time_line.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace kavela::desktop {

/// What the keys of marking mean on a film stage: one of the ways to mark what is seen there. The
/// stage hands every key to the mode in front. A mode may leave some to the first mode of the
/// stage, whose marks stand on the time line.
class FilmMode {
public:
    virtual ~FilmMode() = default;

    /// Whether the keys of marking are the mode's own; otherwise they stay the first mode's.
    [[nodiscard]] virtual bool takesMarks() const { return true; }
    /// Whether the mode has the mark that is selected, which keys then act on in whatever mode.
    [[nodiscard]] virtual bool hasSelection() const = 0;

    virtual void markHere() = 0;            ///< marks the frame that is meant
    virtual void moveMarkHere() = 0;        ///< moves the selected mark there
    virtual void nudgeMark(int frames) = 0; ///< the frame on the screen stays
    virtual void deleteMark() = 0;          ///< the selected one
    /// To the mark before or after where the film stands. False where the mode has none to go to.
    virtual bool stepMark(int step) = 0;
    /// To the gate before, or the next one. False where the mode has no gates of its own.
    virtual bool stepGate(int /*step*/) { return false; }

    // Of the first mode.

    /// The marks on the time line. Those without a label stand as ticks below it.
    [[nodiscard]] virtual std::vector<LineMark> marks() const { return {}; }
    /// The mark that keys act on, by its number; none without a value.
    [[nodiscard]] virtual std::optional<std::size_t> selectedMark() const { return std::nullopt; }
    /// Selects a mark and shows its frame.
    virtual void goToMark(std::size_t /*number*/) {}
    /// Moves a mark to the frame at a number of seconds of the film.
    virtual void dropMark(std::size_t /*number*/, double /*seconds*/) {}
    virtual void pressNumber(int number) { goToMark(static_cast<std::size_t>(number)); }

protected:
    FilmMode() = default;
    FilmMode(const FilmMode&) = default;
    FilmMode& operator=(const FilmMode&) = default;
};

} // namespace kavela::desktop
