#pragma once

#include "video/frame_cache.h"
#include "video/index.h"

#include <functional>
#include <memory>
#include <set>

namespace kavela {

class FrameRun;

/// Which way somebody moves through a film.
enum class Motion { Backward = -1, None = 0, Forward = 1 };

/// Gives the frames of a film by their numbers, exactly. Used from one thread at a time; frames
/// that it gave stay valid without it.
///
/// Decoding starts at the last key frame that is shown at or before the frame: one that merely
/// stands before it in the file can be shown after it. Frames on the way that nothing builds on
/// are passed over. Going back decodes a stretch at a time, since every stretch costs the way from
/// its key frame.
class FrameSource {
public:
    /// Asked between packets: true ends the work at once.
    using Interrupt = std::function<bool()>;
    /// Gets the first picture on a long way to the frame that is wanted.
    using Preview = std::function<void(const VideoFrame&)>;

    enum class Outcome {
        Found,
        Damaged,    ///< this frame cannot be decoded
        Interrupted ///< asking for it again goes on where this ended
    };
    struct Result {
        Outcome outcome = Outcome::Damaged;
        VideoFrame frame; ///< empty unless found
    };

    /// Throws VideoError when the film cannot be opened.
    FrameSource(std::shared_ptr<const VideoIndex> index, std::shared_ptr<FrameCache> cache);
    ~FrameSource();
    FrameSource(const FrameSource&) = delete;
    FrameSource& operator=(const FrameSource&) = delete;

    /// A longer index of the same film takes the place of the first.
    void setIndex(std::shared_ptr<const VideoIndex> index);
    [[nodiscard]] const VideoIndex& index() const { return *m_index; }

    /// The frame of a number; Damaged for one outside the film. Throws VideoError when the file
    /// cannot be read any more; it is to be opened anew then.
    [[nodiscard]] Result frame(FrameNumber number, const Interrupt& interrupt = {},
                               const Preview& preview = {});

    /// Decodes ahead of somebody who looks at `number` and moves on, in both directions for one who
    /// rests. Returns whether there was
    /// nothing left to do; an interrupted call is taken up again by the next.
    bool prefetch(FrameNumber number, Motion motion, const Interrupt& interrupt = {});

    /// Decodes around a frame that somebody is likely to go to later, with a decoder of its own, so
    /// that going on from where he is stays as quick as before. Returns as prefetch() does.
    bool prepare(FrameNumber number, const Interrupt& interrupt = {});

private:
    struct Stretch {
        FrameNumber first = 0;
        FrameNumber last = -1;
        [[nodiscard]] bool contains(FrameNumber number) const {
            return first <= number && number <= last;
        }
    };
    struct Take;

    [[nodiscard]] FrameNumber stretchLength() const;
    [[nodiscard]] Stretch stretchFor(FrameNumber number);
    [[nodiscard]] Stretch stretchBelow(FrameNumber number) const;
    [[nodiscard]] FrameNumber keyNumberFor(FrameNumber number) const;
    [[nodiscard]] bool isSettled(FrameNumber number) const;
    [[nodiscard]] Stretch withoutSettled(Stretch stretch) const;
    void takeNearerRun(FrameNumber first);
    [[nodiscard]] bool decode(Stretch stretch, Take& take, const Interrupt& interrupt);
    [[nodiscard]] bool decodeAgain(Stretch stretch, Take& take, const Interrupt& interrupt);
    [[nodiscard]] bool prefetchStretch(Stretch stretch, const Interrupt& interrupt);
    [[nodiscard]] VideoFrame named(FrameNumber number, FramePtr samples) const;

    std::shared_ptr<const VideoIndex> m_index;
    std::shared_ptr<FrameCache> m_cache;
    FrameCache::SourceId m_id;
    std::unique_ptr<FrameRun> m_run;
    std::unique_ptr<FrameRun> m_other; ///< stands elsewhere; none until it is first wanted
    std::set<FrameNumber> m_damaged;
    FrameNumber m_lastAsked = -1;
    Stretch m_stretch; ///< the last one decoded for going back
};

} // namespace kavela
