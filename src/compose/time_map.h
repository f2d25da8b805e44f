#pragma once

#include <cstddef>
#include <optional>
#include <vector>

/// How several films run side by side. Common time is counted in seconds of the first film's run as
/// long as nothing waits or is stretched.
namespace kavela {

/// Where a run passes the start (entry 0) and its splits (entry k) on its film, in seconds of the
/// film; nothing for what is not marked.
using FilmMarks = std::vector<std::optional<double>>;

enum class Synchronise {
    Start,    ///< together at the start, then each on its own: the gap is seen as on the river
    Split,    ///< the same, together at one split
    Waiting,  ///< together at every split: who is there first waits for the others
    Stretched ///< together at every split: a section lasts as the slowest one's
};

/// A stretch on which a film runs at one speed, up to the next one.
struct TimePiece {
    double common = 0; ///< seconds of common time at which it begins
    double film = 0;   ///< seconds of the film that are shown then
    double rate = 1;   ///< seconds of the film in a second of common time; 0: the film waits
    double waits = 0;  ///< seconds that it waits in all, where it does

    friend bool operator==(const TimePiece&, const TimePiece&) = default;
};

/// Which moment of each film is shown when: exact where films are held together, linear between,
/// at their own speed before the first such place and behind the last.
class TimeMap {
public:
    /// `split` counts for Synchronise::Split alone; 0 is the start. Throws DecodeError, naming
    /// `films[i]`, for a film that is not marked where it is to be held.
    TimeMap(const std::vector<FilmMarks>& films, Synchronise how, std::size_t split = 0);

    [[nodiscard]] std::size_t films() const { return m_pieces.size(); }
    /// Seconds of a film, which may lie outside it.
    [[nodiscard]] double filmSeconds(std::size_t film, double common) const;
    /// The piece that is running.
    [[nodiscard]] const TimePiece& pieceAt(std::size_t film, double common) const;
    [[nodiscard]] const std::vector<TimePiece>& pieces(std::size_t film) const {
        return m_pieces[film];
    }
    /// When a moment of a film is first shown.
    [[nodiscard]] double commonAt(std::size_t film, double filmSeconds) const;

private:
    void holdAt(const std::vector<FilmMarks>& films, std::size_t mark);
    void holdAtEvery(const std::vector<FilmMarks>& films, bool isWaiting);

    std::vector<std::vector<TimePiece>> m_pieces; ///< of each film, by common time
};

} // namespace kavela
