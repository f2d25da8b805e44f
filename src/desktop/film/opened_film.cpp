#include "desktop/film/opened_film.h"

#include "video/threaded_player.h"

#include <QMetaObject>
#include <QObject>

#include <utility>

namespace kavela::desktop {

namespace {

using ShownCamera = std::shared_ptr<std::optional<std::size_t>>;

/// Called from a player's thread: what it has to tell is told on the context's.
template <class Tell>
void tellShown(QObject& context, const ShownCamera& camera, Tell tell) {
    QMetaObject::invokeMethod(
        &context,
        [camera, tell = std::move(tell)] {
            if (*camera)
                tell(**camera);
        },
        Qt::QueuedConnection);
}

} // namespace

OpenedFilm::OpenedFilm(const QString& film, std::shared_ptr<FrameCache> cache, QObject& context,
                       const Listener& listener)
    : m_film(film),
      m_context(context),
      m_listener(listener),
      m_camera(std::make_shared<std::optional<std::size_t>>()),
      m_slot(std::make_shared<CameraSlot>([&context, camera = m_camera, tell = listener.picture] {
          tellShown(context, camera, tell);
      })) {
    PlayerEvents events;
    // Events never come two at once, so that the picture maker is used by one of them at a time.
    events.onFrame = [slot = m_slot](const ShownFrame& shown) { slot->put(shown); };
    events.onIndex = [slot = m_slot, &context, camera = m_camera,
                      tell = listener.index](const auto& index, double) {
        if (!index)
            return;
        slot->setFacts(index->facts());
        tellShown(context, camera, tell);
    };
    events.onError = [&context, camera = m_camera,
                      tell = listener.fault](const std::string& message) {
        tellShown(context, camera,
                  [tell, text = QString::fromStdString(message)](std::size_t shown) {
                      tell(shown, text);
                  });
    };
    m_player =
        std::make_shared<ThreadedPlayer>(film.toStdString(), std::move(cache), std::move(events));
}

OpenedFilm::~OpenedFilm() {
    m_camera->reset();
}

void OpenedFilm::showAs(std::size_t camera) {
    *m_camera = camera;
    if (m_player->index())
        tellShown(m_context, m_camera, m_listener.index);
    tellShown(m_context, m_camera, m_listener.picture); // one that came before waits untold
}

} // namespace kavela::desktop
