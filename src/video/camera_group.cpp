#include "video/camera_group.h"

#include <algorithm>
#include <optional>
#include <stdexcept>

namespace kavela {

double CameraOffset::toOwn(double seconds) const {
    return seconds - common.seconds() + own.seconds();
}

double CameraOffset::toCommon(double seconds) const {
    return seconds - own.seconds() + common.seconds();
}

CameraGroup::CameraGroup(std::vector<std::shared_ptr<VideoPlayer>> players, std::size_t ranging)
    : m_players(std::move(players)),
      m_offsets(m_players.size()),
      m_stretches(m_players.size()),
      m_ranging(ranging) {
    if (m_players.empty())
        throw std::invalid_argument("a group of no cameras");
}

void CameraGroup::updateRange(Moment now) {
    std::optional<std::pair<double, double>> range;
    m_isGrowing = false;
    for (std::size_t i = 0; i < std::min(m_ranging, m_players.size()); ++i) {
        const auto index = m_players[i]->index();
        if (!index || index->frameCount() == 0)
            continue;
        const Stretch& stretch = m_stretches[i];
        const double last = index->secondsOf(index->frameCount() - 1);
        m_isGrowing = m_isGrowing || (!index->isComplete() && last < stretch.to);
        const double start =
            m_offsets[i].toCommon(std::clamp(index->secondsOf(0), stretch.from, stretch.to));
        const double end = m_offsets[i].toCommon(std::clamp(last, stretch.from, stretch.to));
        range = range ? std::pair(std::min(range->first, start), std::max(range->second, end))
                      : std::pair(start, end);
    }
    m_isGrowing = m_isGrowing || !range;
    if (range && *range != std::pair(m_clock.start(), m_clock.end()))
        m_clock.setRange(range->first, range->second, now);
    if (!m_wanted)
        return;
    m_clock.seek(*m_wanted, now);
    if (!m_isGrowing || *m_wanted <= m_clock.end())
        m_wanted.reset();
}

void CameraGroup::showAll(Moment now) {
    const double position = this->position(now);
    for (std::size_t i = 0; i < m_players.size(); ++i)
        m_players[i]->requestPosition(
            std::clamp(m_offsets[i].toOwn(position), m_stretches[i].from, m_stretches[i].to));
}

void CameraGroup::tick(Moment now) {
    updateRange(now);
    if (!m_clock.isPlaying())
        return;
    showAll(now);
    if (m_clock.isAtLimit(now) && !m_isGrowing)
        m_clock.pause(now);
}

void CameraGroup::play(Moment now) {
    updateRange(now);
    m_wanted.reset();
    m_clock.play(now);
    showAll(now);
}

void CameraGroup::pause(Moment now, const std::optional<CMTime>& seen) {
    if (!m_clock.isPlaying())
        return;
    m_clock.pause(now);
    const auto shown = m_players.front()->shown();
    if (seen || shown)
        seek(seen ? *seen : shown->stamp, now);
    else
        showAll(now);
}

void CameraGroup::setRate(double rate, Moment now) {
    m_clock.setRate(rate, now);
}

void CameraGroup::seek(double seconds, Moment now) {
    updateRange(now);
    m_clock.seek(seconds, now);
    m_wanted = m_isGrowing && seconds > m_clock.end() ? std::optional(seconds) : std::nullopt;
    showAll(now);
}

void CameraGroup::seek(const CMTime& stamp, Moment now) {
    seek(stamp.seconds(), now);
    m_players.front()->requestStamp(stamp);
}

void CameraGroup::expect(std::optional<double> seconds) {
    for (std::size_t i = 0; i < m_players.size(); ++i)
        m_players[i]->expect(seconds ? std::optional(m_offsets[i].toOwn(*seconds)) : std::nullopt);
}

void CameraGroup::step(FrameNumber frames, Moment now) {
    m_clock.pause(now);
    const auto index = m_players.front()->index();
    const auto target = m_players.front()->target();
    if (!index || !target)
        return;
    const Stretch& stretch = m_stretches.front();
    const FrameNumber number =
        std::clamp<FrameNumber>(*target + frames, index->frameAt(stretch.from).value_or(0),
                                index->frameAt(stretch.to).value_or(0));
    seek(index->secondsOf(number), now);
    m_players.front()->showFrame(number);
}

void CameraGroup::stepAlone(std::size_t camera, FrameNumber frames, Moment now) {
    if (m_clock.isPlaying())
        pause(now);
    VideoPlayer& player = *m_players.at(camera);
    if (const auto target = player.target())
        player.showFrame(*target + frames);
}

const CameraOffset& CameraGroup::offset(std::size_t camera) const {
    return m_offsets.at(camera);
}

void CameraGroup::setOffset(std::size_t camera, const CameraOffset& offset, Moment now) {
    if (camera == 0)
        throw std::out_of_range("the first camera has no offset");
    if (!isMoment(offset.own) || !isMoment(offset.common))
        throw std::invalid_argument("an offset from a stamp that is no moment");
    m_offsets.at(camera) = offset;
    updateRange(now);
    showAll(now);
}

void CameraGroup::setStretch(std::size_t camera, double from, double to, Moment now) {
    m_stretches.at(camera) = {from, to};
    updateRange(now);
    showAll(now);
}

bool CameraGroup::alignShown(Moment now) {
    std::vector<CMTime> stamps;
    for (const auto& player : m_players) {
        const auto index = player->index();
        const auto shown = player->shown();
        const auto asked = shown && !m_clock.isPlaying() ? player->target() : std::nullopt;
        if (!index || !shown || (!m_clock.isPlaying() && !asked))
            return false;
        stamps.push_back(asked ? index->stampOf(*asked) : shown->stamp);
    }
    for (std::size_t i = 1; i < stamps.size(); ++i)
        m_offsets[i] = {.own = stamps[i], .common = stamps.front()};
    updateRange(now);
    m_clock.seek(stamps.front().seconds(), now);
    return true;
}

} // namespace kavela
