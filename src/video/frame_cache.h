#pragma once

#include "video/video_frame.h"

#include <cstddef>
#include <list>
#include <map>
#include <mutex>
#include <utility>

namespace kavela {

/// Decoded frames of all films that are open, under one limit of memory; the least recently used
/// go first. May be used from any thread.
class FrameCache {
public:
    /// Names a film in this cache.
    using SourceId = std::uint64_t;

    explicit FrameCache(std::size_t budgetBytes) : m_budget(budgetBytes) {}

    /// A new film comes under the limit.
    [[nodiscard]] SourceId addSource();
    /// Forgets a film and its frames.
    void removeSource(SourceId source);

    /// The frame, which counts as used now; null when it is not here.
    [[nodiscard]] FramePtr find(SourceId source, FrameNumber number);
    /// Whether it is here, without using it.
    [[nodiscard]] bool holds(SourceId source, FrameNumber number) const;
    /// Takes a frame in; a frame larger than the whole budget is not kept.
    void insert(SourceId source, FrameNumber number, FramePtr frame);

    [[nodiscard]] std::size_t budget() const { return m_budget; }
    /// What one film may take so that every film open now has as much, in bytes.
    [[nodiscard]] std::size_t fairShare() const;
    /// What the frames take now, in bytes.
    [[nodiscard]] std::size_t usedBytes() const;

private:
    using Key = std::pair<SourceId, FrameNumber>;
    struct Entry {
        Key key;
        FramePtr frame;
        std::size_t bytes = 0;
    };
    using Entries = std::list<Entry>;

    void erase(std::map<Key, Entries::iterator>::iterator place);

    const std::size_t m_budget;
    mutable std::mutex m_guard;
    Entries m_entries; ///< the most recently used first
    std::map<Key, Entries::iterator> m_places;
    std::size_t m_used = 0;
    std::size_t m_sources = 0;
    SourceId m_nextSource = 0;
};

/// The memory that a frame's samples take, in bytes.
[[nodiscard]] std::size_t bytesOf(const AVFrame& frame);

} // namespace kavela
