#pragma once

#include "video/play_clock.h"
#include "video/player.h"

#include <cstddef>
#include <limits>
#include <memory>
#include <optional>
#include <vector>

namespace kavela {

/// How a film lies beside the first one of its group: its moment `own` is the first film's moment
/// `common`.
struct CameraOffset {
    CMTime own{0, 1, ValidStamp, 0};
    CMTime common{0, 1, ValidStamp, 0};

    /// Seconds of this film at a number of seconds of the first film, and back.
    [[nodiscard]] double toOwn(double common) const;
    [[nodiscard]] double toCommon(double own) const;
};

/// The films of one run, taken by several cameras, on one clock that shows the first film's time.
/// Used from one thread; every call takes the present moment where the clock needs it.
class CameraGroup {
public:
    using Moment = PlayClock::Moment;

    /// At least one player; the first one leads. The clock goes as far as the first `ranging` of
    /// them have a film; further ones only follow.
    explicit CameraGroup(std::vector<std::shared_ptr<VideoPlayer>> players,
                         std::size_t ranging = std::numeric_limits<std::size_t>::max());

    [[nodiscard]] std::size_t size() const { return m_players.size(); }
    [[nodiscard]] VideoPlayer& player(std::size_t camera) { return *m_players.at(camera); }
    [[nodiscard]] const PlayClock& clock() const { return m_clock; }
    /// Seconds of the first film; also where a film that is still being read is to be shown.
    [[nodiscard]] double position(Moment now) const {
        return m_wanted.value_or(m_clock.position(now));
    }

    /// Asks each player for the frame due now; to be called at each refresh of the screen. Stops
    /// the clock at the end of the films.
    void tick(Moment now);

    void play(Moment now);
    /// Stops at the frame that is seen: the one of a stamp of the first film, otherwise the one
    /// that its player shows. What stands already stays.
    void pause(Moment now, const std::optional<CMTime>& seen = {});
    void setRate(double rate, Moment now);
    /// To a number of seconds of the first film.
    void seek(double seconds, Moment now);
    /// To a frame of the first film, exactly, such as a stored mark.
    void seek(const CMTime& stamp, Moment now);
    /// Where somebody is likely to go next, in seconds of the first film; nowhere without a value.
    void expect(std::optional<double> seconds);
    /// Stops and moves all by so many frames of the first film.
    void step(FrameNumber frames, Moment now);
    /// Stops and moves one film by so many of its frames; the others stay, until the clock moves.
    void stepAlone(std::size_t camera, FrameNumber frames, Moment now);

    [[nodiscard]] const CameraOffset& offset(std::size_t camera) const;
    /// Throws std::out_of_range for the first film, whose time is the common one, and for a stamp
    /// that is no moment std::invalid_argument.
    void setOffset(std::size_t camera, const CameraOffset& offset, Moment now);
    /// Shows only this stretch of a film, in seconds of its own, `from` at most `to`: before and
    /// behind it its first and last frames stand, and the clock goes no further for this film.
    void setStretch(std::size_t camera, double from, double to, Moment now);
    /// The frames shown now become one moment, those on their way included. False when not every
    /// film shows one yet.
    bool alignShown(Moment now);

private:
    /// Seconds of a film, all of it unless somebody said otherwise.
    struct Stretch {
        double from = -std::numeric_limits<double>::infinity();
        double to = std::numeric_limits<double>::infinity();
    };

    void updateRange(Moment now);
    void showAll(Moment now);

    std::vector<std::shared_ptr<VideoPlayer>> m_players;
    std::vector<CameraOffset> m_offsets;
    std::vector<Stretch> m_stretches;
    std::size_t m_ranging;
    PlayClock m_clock;
    bool m_isGrowing = true; ///< the end of the films is not known yet
    /// Where the clock goes as soon as the films are known to reach so far.
    std::optional<double> m_wanted;
};

} // namespace kavela
