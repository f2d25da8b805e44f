#include "desktop/compose/compare_player.h"

#include "desktop/compose/preview_worker.h"

#include <algorithm>
#include <utility>

namespace kavela::desktop {

namespace {

/// The image holds the picture.
QImage imageOf(const std::shared_ptr<const Picture>& picture) {
    auto* const held = new std::shared_ptr(picture);
    return {picture->pixels.get(),
            picture->width,
            picture->height,
            picture->bytesPerLine,
            QImage::Format_RGB32,
            [](void* info) { delete static_cast<std::shared_ptr<const Picture>*>(info); },
            held};
}

} // namespace

ComparePlayer::ComparePlayer(std::shared_ptr<FrameCache> frames, QObject* parent)
    : QObject(parent), m_worker(std::make_unique<PreviewWorker>(*this, std::move(frames))) {}

ComparePlayer::~ComparePlayer() = default;

void ComparePlayer::show(const composejob002& job, QSize box) {
    m_worker->ask({++m_asked, job, {std::max(box.width(), 2), std::max(box.height(), 2)}});
}

void ComparePlayer::clear() {
    pause();
    m_worker->clear(++m_asked);
    m_prepared.reset();
    m_image = {};
    emit preparedChanged();
    emit pictureShown();
}

void ComparePlayer::seek(double seconds) {
    if (!m_prepared)
        return;
    m_position = std::clamp(seconds, 0.0, m_prepared->length);
    m_worker->seek(m_position);
    setClock();
    emit sought();
}

void ComparePlayer::setClock() {
    m_clockFrom = m_position;
    m_clockSince = std::chrono::steady_clock::now();
}

double ComparePlayer::clock() const {
    if (!m_isPlaying || !m_prepared)
        return m_position;
    const std::chrono::duration<double> since = std::chrono::steady_clock::now() - m_clockSince;
    return std::min(m_clockFrom + since.count(), m_prepared->length);
}

void ComparePlayer::step(int frames) {
    if (!m_prepared)
        return;
    pause();
    seek(m_position + frames * m_prepared->frameSeconds);
}

void ComparePlayer::play() {
    if (!m_prepared || m_isPlaying)
        return;
    if (m_position + m_prepared->frameSeconds > m_prepared->length)
        m_position = 0;
    m_isPlaying = true;
    m_worker->seek(m_position);
    m_worker->setPlaying(true, m_position);
    setClock();
    emit playingChanged();
}

void ComparePlayer::pause() {
    if (!m_isPlaying)
        return;
    m_isPlaying = false;
    m_worker->setPlaying(false, m_position);
    emit playingChanged();
}

/// What is about a job that was replaced meanwhile is of no use.
void ComparePlayer::takeNews() {
    PreviewWorker::News news = m_worker->takeNews();
    if (news.number != m_asked)
        return;
    if (news.hasStopped && std::exchange(m_isPlaying, false))
        emit playingChanged();
    if (news.fault) {
        m_prepared.reset();
        m_image = {};
        emit preparedChanged();
        emit failed(news.fault->first, news.fault->second);
        return;
    }
    if (news.prepared) {
        m_prepared = std::move(news.prepared);
        m_position = news.position;
        setClock();
        emit preparedChanged();
    }
    if (news.picture) {
        m_image = imageOf(news.picture);
        m_position = news.position;
        emit pictureShown();
    }
}

} // namespace kavela::desktop
