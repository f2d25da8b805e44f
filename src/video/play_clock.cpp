#include "video/play_clock.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace kavela {

namespace {

constexpr std::array<double, 7> Rates = {0.125, 0.25, 0.5, 1, 2, 4, 8};

} // namespace

double slowerRate(double rate) {
    const auto place = std::ranges::lower_bound(Rates, std::abs(rate));
    return std::copysign(place == Rates.begin() ? Rates.front() : *std::prev(place), rate);
}

double fasterRate(double rate) {
    const auto place = std::ranges::upper_bound(Rates, std::abs(rate));
    return std::copysign(place == Rates.end() ? Rates.back() : *place, rate);
}

double PlayClock::clamped(double position) const {
    return std::clamp(position, m_start, m_end);
}

double PlayClock::position(Moment now) const {
    if (!m_isPlaying)
        return m_anchor;
    const double elapsed = std::chrono::duration<double>(now - m_since).count();
    return clamped(m_anchor + m_rate * elapsed);
}

bool PlayClock::isAtLimit(Moment now) const {
    return m_rate < 0 ? position(now) <= m_start : position(now) >= m_end;
}

void PlayClock::setRange(double start, double end, Moment now) {
    const double here = position(now);
    m_start = start;
    m_end = std::max(start, end);
    seek(here, now);
}

void PlayClock::play(Moment now) {
    if (m_isPlaying)
        return;
    if (isAtLimit(now))
        m_anchor = m_rate < 0 ? m_end : m_start;
    m_since = now;
    m_isPlaying = true;
}

void PlayClock::pause(Moment now) {
    m_anchor = position(now);
    m_isPlaying = false;
}

void PlayClock::seek(double position, Moment now) {
    if (std::isnan(position))
        return;
    m_anchor = clamped(position);
    m_since = now;
}

void PlayClock::setRate(double rate, Moment now) {
    seek(position(now), now);
    if (rate == 0 || std::isnan(rate)) {
        m_isPlaying = false;
        return;
    }
    m_rate = std::copysign(std::clamp(std::abs(rate), Rates.front(), Rates.back()), rate);
}

ShuttleStep shuttle(const PlayClock& clock, ShuttleKey key, bool isStopHeld) {
    if (key == ShuttleKey::K)
        return {.isPlaying = false, .rate = 1, .frames = 0};
    const int direction = key == ShuttleKey::J ? -1 : 1;
    if (isStopHeld)
        return {.isPlaying = false, .rate = 1, .frames = direction};
    const bool isAgain = clock.isPlaying() && clock.rate() * direction > 0;
    return {.isPlaying = true, .rate = isAgain ? fasterRate(clock.rate()) : direction, .frames = 0};
}

} // namespace kavela
