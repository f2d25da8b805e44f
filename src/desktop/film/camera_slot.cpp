#include "desktop/film/camera_slot.h"

namespace kavela::desktop {

namespace {

/// The picture as an image that shares its pixels.
QImage imageOf(const std::shared_ptr<const Picture>& picture) {
    if (!picture)
        return {};
    auto* const keeper = new std::shared_ptr<const Picture>(picture);
    return {picture->pixels.get(),
            picture->width,
            picture->height,
            picture->bytesPerLine,
            QImage::Format_RGB32,
            [](void* kept) { delete static_cast<std::shared_ptr<const Picture>*>(kept); },
            keeper};
}

} // namespace

void CameraSlot::setFacts(const VideoFacts& facts) {
    if (!m_maker)
        m_maker = std::make_unique<PictureMaker>(facts);
}

void CameraSlot::setBox(QSize box) {
    const std::scoped_lock lock(m_guard);
    m_box = box;
}

void CameraSlot::put(const ShownFrame& shown) {
    if (!m_maker)
        return;
    QSize box;
    {
        const std::scoped_lock lock(m_guard);
        box = m_box;
    }
    FilmPicture made{shown.frame,
                     imageOf(m_maker->make(*shown.frame.samples, {box.width(), box.height()})),
                     shown.isPreview, shown.request};
    bool isFirst = false;
    {
        const std::scoped_lock lock(m_guard);
        if (!shown.isPreview)
            m_settledRequest = shown.request;
        made.settledRequest = m_settledRequest;
        isFirst = !m_waiting;
        m_waiting = std::move(made);
    }
    if (isFirst)
        m_wake();
}

std::optional<FilmPicture> CameraSlot::take() {
    const std::scoped_lock lock(m_guard);
    return std::exchange(m_waiting, std::nullopt);
}

} // namespace kavela::desktop
