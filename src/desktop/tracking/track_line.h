#pragma once

#include "vision/track.h"

#include <QWidget>

namespace kavela::desktop {

/// The time line of a path: where it is known, its gaps, the boxes as keys and the moment that is
/// shown. A click goes there.
class TrackLine : public QWidget {
    Q_OBJECT

public:
    explicit TrackLine(QWidget* parent = nullptr);

    void setFrames(qint64 frames);
    void setTrack(const FilmTrack& track);
    void setFrame(qint64 frame);

    [[nodiscard]] QSize sizeHint() const override { return {400, 34}; }
    [[nodiscard]] int placeOf(FrameNumber frame) const;

signals:
    void frameWanted(qint64 frame);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    void ask(const QPoint& place);

    qint64 m_frames = 0;
    qint64 m_frame = 0;
    FilmTrack m_track;
};

} // namespace kavela::desktop
