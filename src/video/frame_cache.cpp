#include "video/frame_cache.h"

#include "video/av_handles.h"

#include <algorithm>
#include <limits>

namespace kavela {

std::size_t bytesOf(const AVFrame& frame) {
    std::size_t bytes = sizeof frame;
    for (const AVBufferRef* const buffer : frame.buf)
        if (buffer != nullptr)
            bytes += static_cast<std::size_t>(buffer->size);
    return bytes;
}

FrameCache::SourceId FrameCache::addSource() {
    const std::lock_guard lock(m_guard);
    ++m_sources;
    return m_nextSource++;
}

void FrameCache::removeSource(SourceId source) {
    const std::lock_guard lock(m_guard);
    --m_sources;
    auto place = m_places.lower_bound({source, std::numeric_limits<FrameNumber>::min()});
    while (place != m_places.end() && place->first.first == source)
        erase(place++);
}

FramePtr FrameCache::find(SourceId source, FrameNumber number) {
    const std::lock_guard lock(m_guard);
    const auto place = m_places.find({source, number});
    if (place == m_places.end())
        return nullptr;
    m_entries.splice(m_entries.begin(), m_entries, place->second);
    return place->second->frame;
}

bool FrameCache::holds(SourceId source, FrameNumber number) const {
    const std::lock_guard lock(m_guard);
    return m_places.contains({source, number});
}

void FrameCache::insert(SourceId source, FrameNumber number, FramePtr frame) {
    const std::size_t bytes = bytesOf(*frame);
    const std::lock_guard lock(m_guard);
    if (const auto old = m_places.find({source, number}); old != m_places.end())
        erase(old);
    if (bytes > m_budget)
        return;
    m_entries.push_front({{source, number}, std::move(frame), bytes});
    m_places[{source, number}] = m_entries.begin();
    m_used += bytes;
    while (m_used > m_budget)
        erase(m_places.find(m_entries.back().key));
}

void FrameCache::erase(std::map<Key, Entries::iterator>::iterator place) {
    m_used -= place->second->bytes;
    m_entries.erase(place->second);
    m_places.erase(place);
}

std::size_t FrameCache::fairShare() const {
    const std::lock_guard lock(m_guard);
    return m_budget / std::max<std::size_t>(m_sources, 1);
}

std::size_t FrameCache::usedBytes() const {
    const std::lock_guard lock(m_guard);
    return m_used;
}

} // namespace kavela
