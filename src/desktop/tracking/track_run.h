#pragma once

#include "desktop/shell/background_work.h"
#include "vision/film_track.h"

#include <QObject>
#include <QTimer>

#include <memory>
#include <optional>
#include <stop_token>
#include <string>
#include <vector>

namespace kavela::desktop {

/// Follows a path beside the window, and tells how far it is while it does.
class TrackRun : public QObject {
    Q_OBJECT

public:
    explicit TrackRun(QObject* parent = nullptr);
    ~TrackRun() override;

    /// Follows anew what begins or ends with the box of this number. What runs must have ended.
    void start(const std::shared_ptr<const VideoIndex>& index, const FilmTrack& track,
               std::size_t key);
    /// What was followed so far is kept.
    void stop() { m_stop.request_stop(); }
    [[nodiscard]] bool isRunning() const { return m_isRunning; }
    /// Points found so far, beside those of the path; by frame in the order in which they came.
    [[nodiscard]] const std::vector<TrackPoint>& found() const { return m_found; }

signals:
    /// It has come to a frame; `done` is 0 to 1.
    void advanced(qint64 frame, double done);
    /// It has ended with this path. `lostAt` is the first frame in which it was not seen again up
    /// to the end, -1 for none.
    void ended(const kavela::FilmTrack& track, qint64 lostAt);
    /// It could not be followed, in a sentence.
    void failed(const QString& why);

private:
    struct Shared;
    void showProgress();

    std::shared_ptr<Shared> m_shared;
    std::stop_source m_stop;
    QTimer m_poll;
    std::vector<TrackPoint> m_found;
    bool m_isRunning = false;
    BackgroundWork m_work;
};

} // namespace kavela::desktop
