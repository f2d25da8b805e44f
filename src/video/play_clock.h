#pragma once

#include <chrono>

namespace kavela {

/// The rate one step slower or faster in the same direction: ⅛, ¼, ½, 1, 2, 4 and 8. A rate in
/// between goes to the next of them; the last stays.
[[nodiscard]] double slowerRate(double rate);
[[nodiscard]] double fasterRate(double rate);

/// Where a film stands while it plays, in seconds, kept between a start and an end. A value: it
/// knows the time only from the moments handed in, which must not go back.
class PlayClock {
public:
    using Moment = std::chrono::steady_clock::time_point;

    [[nodiscard]] double position(Moment now) const;
    [[nodiscard]] bool isPlaying() const { return m_isPlaying; }
    /// Film seconds in a second; negative backwards.
    [[nodiscard]] double rate() const { return m_rate; }
    [[nodiscard]] double start() const { return m_start; }
    [[nodiscard]] double end() const { return m_end; }
    /// Whether playing on at this rate would lead out of the film.
    [[nodiscard]] bool isAtLimit(Moment now) const;

    /// `start` at most `end`; the position is brought between them.
    void setRange(double start, double end, Moment now);
    /// Plays on; from the other end when the film is at its limit.
    void play(Moment now);
    void pause(Moment now);
    void seek(double position, Moment now);
    /// The magnitude is brought between ⅛ and 8; playing or not stays. 0 pauses.
    void setRate(double rate, Moment now);

private:
    [[nodiscard]] double clamped(double position) const;

    double m_start = 0;
    double m_end = 0;
    double m_rate = 1;
    bool m_isPlaying = false;
    double m_anchor = 0; ///< position at m_since
    Moment m_since;
};

/// The keys of an editing desk: backwards, stop, forwards.
enum class ShuttleKey { J, K, L };

/// What pressing such a key asks for.
struct ShuttleStep {
    bool isPlaying = false;
    double rate = 1;
    int frames = 0; ///< to step by, −1 or 1, while standing

    friend bool operator==(const ShuttleStep&, const ShuttleStep&) = default;
};

/// J and L play backwards and forwards at normal speed, a step faster each time they are pressed
/// again; with K held they step by a frame. K stops and brings back the normal speed.
[[nodiscard]] ShuttleStep shuttle(const PlayClock& clock, ShuttleKey key, bool isStopHeld);

} // namespace kavela
