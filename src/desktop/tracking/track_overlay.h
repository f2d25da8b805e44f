#pragma once

#include "vision/path_figures.h"
#include "vision/track.h"

#include <QSize>
#include <QWidget>

#include <optional>
#include <vector>

namespace kavela::desktop {

/// What is drawn over the picture of a film: the path up to the frame, the box, the known points.
/// A box is drawn with the mouse, or by arrow keys: they move it, with Shift they size it, and
/// Enter takes it. Covers the film view that is its parent.
class TrackOverlay : public QWidget {
    Q_OBJECT

public:
    explicit TrackOverlay(QWidget* film);

    /// Pixels of the film's upright picture; empty where that is not known yet.
    void setFilmSize(QSize size);
    /// `found` are points of a run that goes on.
    void setTrack(const FilmTrack& track, std::vector<TrackPoint> found = {});
    void setFrame(FrameNumber frame);
    void setKnownPoints(std::optional<KnownPlane> plane);
    /// Clicks mean known points, no boxes.
    void setTakesPoints(bool takesPoints);
    [[nodiscard]] bool takesPoints() const { return m_takesPoints; }

    /// A box to begin with where none is drawn, in the middle of the picture or where it was seen
    /// last, for the keys.
    void proposeBox();
    [[nodiscard]] const std::optional<TrackBox>& drawnBox() const { return m_drawn; }
    void forgetBox();
    /// The place in the widget of a place in the picture, and back.
    [[nodiscard]] QPointF shownPlace(const PicturePlace& place) const;
    [[nodiscard]] PicturePlace placeAt(const QPointF& shown) const;

signals:
    void boxDrawn(const kavela::TrackBox& box);
    void pointClicked(const kavela::PicturePlace& place);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    [[nodiscard]] QRectF pictureRect() const;
    [[nodiscard]] QRectF shownBox(const TrackBox& box) const;
    [[nodiscard]] std::optional<TrackBox> boxOfFrame() const;
    void takeDrawnBox();
    void paintPath(QPainter& painter) const;
    void paintKnownPoints(QPainter& painter) const;

    QSize m_film;
    FilmTrack m_track;
    std::vector<TrackPoint> m_found;
    FrameNumber m_frame = -1;
    std::optional<KnownPlane> m_plane;
    std::optional<TrackBox> m_drawn; ///< being drawn, or waiting for Enter
    QPointF m_from;                  ///< where the mouse was pressed
    bool m_isDragging = false;
    bool m_takesPoints = false;
};

} // namespace kavela::desktop
