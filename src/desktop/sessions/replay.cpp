#include "desktop/sessions/replay.h"

#include <algorithm>

namespace kavela::desktop {

namespace {

constexpr int StepMilliseconds = 33;

} // namespace

Replay::Replay(QObject* parent) : QObject(parent) {
    m_timer.setInterval(StepMilliseconds);
    connect(&m_timer, &QTimer::timeout, this, &Replay::advance);
}

void Replay::setRange(double from, double to) {
    m_from = from;
    m_to = std::max(from, to);
    setMoment(m_moment);
}

void Replay::setMoment(double moment) {
    m_moment = std::clamp(moment, m_from, m_to);
    emit momentChanged(m_moment);
}

void Replay::setPlaying(bool plays) {
    if (plays == isPlaying())
        return;
    if (plays) {
        if (m_moment >= m_to)
            setMoment(m_from);
        m_clock.start();
        m_timer.start();
    } else {
        m_timer.stop();
    }
    emit playingChanged(plays);
}

const std::vector<double>& Replay::speeds() {
    static const std::vector<double> Speeds{0.25, 0.5, 1, 2, 4, 8, 16};
    return Speeds;
}

void Replay::setSpeed(double speed) {
    m_speed = speed;
    emit speedChanged(speed);
}

void Replay::changeSpeed(int steps) {
    const auto here = std::ranges::lower_bound(speeds(), m_speed) - speeds().begin();
    const auto last = static_cast<std::ptrdiff_t>(speeds().size()) - 1;
    setSpeed(speeds()[static_cast<std::size_t>(std::clamp<std::ptrdiff_t>(here + steps, 0, last))]);
}

void Replay::advance() {
    const double seconds = static_cast<double>(m_clock.restart()) / 1000;
    setMoment(m_moment + seconds * m_speed);
    if (m_moment >= m_to)
        setPlaying(false);
}

} // namespace kavela::desktop
