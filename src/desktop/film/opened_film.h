#pragma once

#include "desktop/film/camera_slot.h"

#include <QString>

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>

class QObject;

namespace kavela {
class FrameCache;
class VideoPlayer;
} // namespace kavela

namespace kavela::desktop {

/// A film with its player and the place where its latest picture waits. It can be opened before it
/// is shown, so that its index and first frames are there by then. Nothing is told of it before
/// that, nor once this is gone.
class OpenedFilm {
public:
    /// What is told of a film that is shown, on the thread of the context.
    struct Listener {
        std::function<void(std::size_t camera)> picture; ///< one waits
        std::function<void(std::size_t camera)> index;   ///< more of it is known
        std::function<void(std::size_t camera, const QString& message)> fault;
    };

    /// The context has to outlive this.
    OpenedFilm(const QString& film, std::shared_ptr<FrameCache> cache, QObject& context,
               const Listener& listener);
    OpenedFilm(const OpenedFilm&) = delete;
    OpenedFilm& operator=(const OpenedFilm&) = delete;
    ~OpenedFilm();

    [[nodiscard]] const QString& film() const { return m_film; }
    [[nodiscard]] const std::shared_ptr<CameraSlot>& slot() const { return m_slot; }
    [[nodiscard]] const std::shared_ptr<VideoPlayer>& player() const { return m_player; }

    /// It is shown as this camera from now on; what is known of it already is told soon.
    void showAs(std::size_t camera);

private:
    QString m_film;
    QObject& m_context;
    Listener m_listener;
    /// Nothing while it is not shown; read and written on the thread of the context alone.
    std::shared_ptr<std::optional<std::size_t>> m_camera;
    std::shared_ptr<CameraSlot> m_slot;
    std::shared_ptr<VideoPlayer> m_player;
};

} // namespace kavela::desktop
