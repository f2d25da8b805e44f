#pragma once

#include "video/picture.h"
#include "video/player.h"

#include <QImage>
#include <QSize>

#include <cstdint>
#include <functional>
#include <mutex>
#include <optional>

namespace kavela::desktop {

/// A frame that stands on the screen, or is about to.
struct FilmPicture {
    VideoFrame frame;
    QImage image;
    bool isPreview = false;    ///< stands in until the frame that was asked for is decoded
    std::uint64_t request = 0; ///< as ShownFrame has it
    /// The same of the last frame up to this one that did not stand in.
    std::uint64_t settledRequest = 0;
};

/// Where a player's thread leaves the latest picture for the interface. Pictures that came faster
/// than they could be shown are dropped.
class CameraSlot {
public:
    /// `wake` is called from the player's thread when a picture waits and none did before.
    explicit CameraSlot(std::function<void()> wake) : m_wake(std::move(wake)) {}

    /// What is known of the film; from the player's thread, before the first picture.
    void setFacts(const VideoFacts& facts);
    /// Pixels that the view has; the pictures are made to fit.
    void setBox(QSize box);
    /// Makes the picture, on the player's thread.
    void put(const ShownFrame& shown);
    [[nodiscard]] std::optional<FilmPicture> take();

private:
    std::function<void()> m_wake;
    std::mutex m_guard;
    QSize m_box;
    std::optional<FilmPicture> m_waiting;
    std::uint64_t m_settledRequest = 0;    ///< also of a picture that was dropped
    std::unique_ptr<PictureMaker> m_maker; ///< used by the player's thread alone
};

} // namespace kavela::desktop
