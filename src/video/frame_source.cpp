#include "video/frame_source.h"

#include "common/text.h"
#include "video/frame_run.h"
#include "video/video_error.h"

#include <algorithm>

namespace kavela {

namespace {

constexpr FrameNumber LongestStretch = 120;
/// A stretch may reach over a key frame unless it would be longer than this without.
constexpr FrameNumber ShortStretch = 15;
/// Frames decoded ahead in forward play, against a packet that takes longer than others.
constexpr FrameNumber FramesAhead = 8;
/// Frames kept below one that was jumped to: the next step is often one back.
constexpr FrameNumber FramesKeptBelow = 3;
/// From so many frames on, the way from the key frame can be seen as a wait.
constexpr FrameNumber LongWay = 30;

std::size_t estimatedBytes(const VideoFacts& facts) {
    const double pixels = double(facts.storedSize.width) * facts.storedSize.height;
    constexpr double BytesPerPixel = 1.7; // one of brightness, half of colour, and padding
    return static_cast<std::size_t>(pixels * BytesPerPixel * (facts.bitDepth > 8 ? 2 : 1)) + 1;
}

} // namespace

/// What became of the frames of a stretch.
struct FrameSource::Take {
    FrameNumber wanted = -1;
    const Preview* preview = nullptr; ///< may be null, and is used once
    FramePtr found = nullptr;
    std::set<FrameNumber> seen = {};
};

FrameSource::FrameSource(std::shared_ptr<const VideoIndex> index, std::shared_ptr<FrameCache> cache)
    : m_index(std::move(index)),
      m_cache(std::move(cache)),
      m_id(0),
      m_run(std::make_unique<FrameRun>(m_index)) {
    m_id = m_cache->addSource();
}

FrameSource::~FrameSource() {
    m_cache->removeSource(m_id);
}

void FrameSource::setIndex(std::shared_ptr<const VideoIndex> index) {
    m_index = std::move(index);
    m_run->setIndex(m_index);
    if (m_other)
        m_other->setIndex(m_index);
}

FrameSource::Result FrameSource::frame(FrameNumber number, const Interrupt& interrupt,
                                       const Preview& preview) {
    if (number < 0 || number >= m_index->frameCount() || m_damaged.contains(number))
        return {};
    Stretch stretch = stretchFor(number);
    m_lastAsked = number;
    if (FramePtr samples = m_cache->find(m_id, number))
        return {Outcome::Found, named(number, std::move(samples))};
    Take take{.wanted = number, .preview = preview ? &preview : nullptr};
    stretch = withoutSettled(stretch);
    takeNearerRun(stretch.first);
    if (!decode(stretch, take, interrupt))
        return {Outcome::Interrupted, {}};
    if (!take.found)
        return {};
    return {Outcome::Found, named(number, std::move(take.found))};
}

VideoFrame FrameSource::named(FrameNumber number, FramePtr samples) const {
    return {number, m_index->stampOf(number), std::move(samples)};
}

FrameNumber FrameSource::stretchLength() const {
    // The stretch in use, the one decoded for when it ends, the one just left, and the one around
    // the place that is gone to next.
    constexpr std::size_t Stretches = 4;
    const std::size_t frames = m_cache->fairShare() / Stretches / estimatedBytes(m_index->facts());
    return std::clamp(static_cast<FrameNumber>(frames), FrameNumber{1}, LongestStretch);
}

FrameNumber FrameSource::keyNumberFor(FrameNumber number) const {
    const auto key = m_index->packets().keyFor(m_index->frame(number).stamp, 0);
    if (!key)
        return 0;
    return m_index->frameWithStamp(m_index->packets().at(*key).stamp).value_or(0);
}

FrameSource::Stretch FrameSource::stretchBelow(FrameNumber number) const {
    const FrameNumber first = std::max<FrameNumber>(number - stretchLength() + 1, 0);
    const FrameNumber key = keyNumberFor(number);
    return {number - key >= ShortStretch ? std::max(first, key) : first, number};
}

FrameSource::Stretch FrameSource::stretchFor(FrameNumber number) {
    const FrameNumber way = number - m_lastAsked;
    if (0 < way && way <= FramesAhead)
        return {number, number};
    const bool isGoingBack = m_lastAsked >= 0 && way < 0 && -way <= stretchLength();
    if (m_stretch.contains(number) && way <= 0)
        return {m_stretch.first, number};
    if (isGoingBack)
        return m_stretch = stretchBelow(number);
    m_stretch = {};
    const FrameNumber kept = std::min(FramesKeptBelow, stretchLength() - 1);
    return {std::max(number - kept, std::min(keyNumberFor(number), number)), number};
}

bool FrameSource::isSettled(FrameNumber number) const {
    return m_damaged.contains(number) || m_cache->holds(m_id, number);
}

/// Of two decoders that can go on to a frame the nearer one does.
void FrameSource::takeNearerRun(FrameNumber first) {
    if (!m_other || !m_other->canGoOnTo(first))
        return;
    if (!m_run->canGoOnTo(first) || m_other->lastOut() > m_run->lastOut())
        std::swap(m_run, m_other);
}

FrameSource::Stretch FrameSource::withoutSettled(Stretch stretch) const {
    while (stretch.first < stretch.last && isSettled(stretch.first))
        ++stretch.first;
    return stretch;
}

bool FrameSource::decode(Stretch stretch, Take& take, const Interrupt& interrupt) {
    const auto keep = [&](FrameNumber number, FramePtr samples) {
        if (number == take.wanted)
            take.found = samples;
        if (number >= stretch.first) {
            take.seen.insert(number);
            m_cache->insert(m_id, number, std::move(samples));
        } else if (take.preview != nullptr && take.wanted - number > LongWay) {
            (*take.preview)(named(number, std::move(samples)));
            take.preview = nullptr;
        }
    };
    return m_run->run({stretch.first, stretch.last}, interrupt, keep) &&
           decodeAgain(stretch, take, interrupt);
}

/// Frames that did not come get a second chance from one key frame earlier, and count as damaged
/// after that.
bool FrameSource::decodeAgain(Stretch stretch, Take& take, const Interrupt& interrupt) {
    const auto isMissing = [&](FrameNumber number) {
        return !take.seen.contains(number) && !isSettled(number);
    };
    while (stretch.first <= stretch.last && !isMissing(stretch.first))
        ++stretch.first;
    while (stretch.first <= stretch.last && !isMissing(stretch.last))
        --stretch.last;
    if (stretch.first > stretch.last)
        return true;
    // Nothing comes out between the stretch and the first frame behind it either.
    FrameNumber behind = m_index->frameCount();
    const auto keep = [&](FrameNumber number, FramePtr samples) {
        if (number > stretch.last)
            behind = std::min(behind, number);
        if (!stretch.contains(number))
            return;
        if (number == take.wanted)
            take.found = samples;
        take.seen.insert(number);
        m_cache->insert(m_id, number, std::move(samples));
    };
    if (!m_run->run({stretch.first, stretch.last, true}, interrupt, keep))
        return false;
    if (m_run->endedBefore(stretch.last))
        throw VideoError(m_index->facts().path, say("the film could not be read any further"));
    for (FrameNumber number = stretch.first; number < behind; ++number)
        if (isMissing(number))
            m_damaged.insert(number);
    return true;
}

bool FrameSource::prefetch(FrameNumber number, Motion motion, const Interrupt& interrupt) {
    const FrameNumber length = stretchLength();
    if (length < 2)
        return true;
    if (motion != Motion::Backward) {
        const FrameNumber last =
            std::min(number + std::min(length, FramesAhead), m_index->frameCount() - 1);
        FrameNumber first = number + 1;
        while (first <= last && isSettled(first))
            ++first;
        if (first <= last)
            return prefetchStretch({first, last}, interrupt);
    }
    if (motion == Motion::Forward)
        return true;
    FrameNumber bottom = number;
    while (bottom > 0 && number - bottom < length && isSettled(bottom - 1))
        --bottom;
    if (bottom <= 0 || number - bottom >= length)
        return true;
    m_stretch = stretchBelow(bottom - 1);
    return prefetchStretch(m_stretch, interrupt);
}

bool FrameSource::prepare(FrameNumber number, const Interrupt& interrupt) {
    const FrameNumber half = stretchLength() / 2;
    if (half < 1)
        return true; // there is no room to keep anything for later
    Stretch around{std::max<FrameNumber>(number - half, 0),
                   std::min(number + half, m_index->frameCount() - 1)};
    while (around.first <= around.last && isSettled(around.first))
        ++around.first;
    while (around.first <= around.last && isSettled(around.last))
        --around.last;
    if (around.first > around.last)
        return true;
    if (!m_other)
        m_other = std::make_unique<FrameRun>(m_index);
    Take take;
    std::swap(m_run, m_other); // the one in use stays where somebody goes on from
    static_cast<void>(decode(around, take, interrupt));
    std::swap(m_run, m_other);
    return false;
}

bool FrameSource::prefetchStretch(Stretch stretch, const Interrupt& interrupt) {
    Take take;
    stretch = withoutSettled(stretch);
    takeNearerRun(stretch.first);
    static_cast<void>(decode(stretch, take, interrupt));
    return false;
}

} // namespace kavela
