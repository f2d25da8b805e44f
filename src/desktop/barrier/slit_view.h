#pragma once

#include "vision/slit_picture.h"

#include <QWidget>

#include <memory>
#include <optional>
#include <vector>

namespace kavela::desktop {

/// A mark in the slit picture.
struct SlitMark {
    double seconds = 0; ///< of the film
    QString label;
    int run = 0;
    bool isCurrent = false;
};

/// A proposal in the slit picture.
struct SlitGuess {
    double seconds = 0;
    double confidence = 0; ///< 0 to 1
};

/// A slit picture scrolled and zoomed like a map, with a hair line. Places are in columns of the
/// picture: a frame's column goes from its number to the next, its stamp lies in the middle. Only
/// what is seen is painted.
class SlitView : public QWidget {
    Q_OBJECT

public:
    explicit SlitView(QWidget* parent = nullptr);

    /// Both must stay as long as they are shown; null for none.
    void setPicture(const SlitPicture* picture, std::shared_ptr<const VideoIndex> index);
    /// Said in place of a picture.
    void setMessage(const QString& message);
    void setMarks(std::vector<SlitMark> marks);
    void setGuesses(std::vector<SlitGuess> guesses);

    [[nodiscard]] double hair() const { return m_hair; } ///< column
    /// Moves the hair line, kept within the film, and the picture with it where it leaves the view.
    void setHair(double column);
    [[nodiscard]] double pixelsPerColumn() const { return m_zoom; }
    /// Zooms around the hair line.
    void zoomBy(double factor);
    void showWhole();

    /// Pixels from the left of a place, and back.
    [[nodiscard]] double placeOf(double column) const { return (column - m_left) * m_zoom; }
    [[nodiscard]] double columnAt(double place) const { return place / m_zoom + m_left; }
    [[nodiscard]] QSize sizeHint() const override;

signals:
    void hairMoved(double column); ///< by the mouse
    void markDropped(int run, double column);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    enum class Drag { None, Press, Pan, Hair, Mark };

    [[nodiscard]] double columns() const;
    [[nodiscard]] QRect area() const;
    [[nodiscard]] const SlitMark* markAt(double place) const;
    [[nodiscard]] double columnOf(double seconds) const;
    void zoomAround(double factor, double place);
    void keepInside();
    void paintTiles(QPainter& painter) const;
    void paintRuler(QPainter& painter) const;
    void paintMarks(QPainter& painter) const;
    void paintGuesses(QPainter& painter) const;
    void paintHair(QPainter& painter) const;

    const SlitPicture* m_picture = nullptr;
    std::shared_ptr<const VideoIndex> m_index;
    QString m_message;
    std::vector<SlitMark> m_marks;
    std::vector<SlitGuess> m_guesses;
    double m_hair = 0.5;
    double m_left = 0;     ///< column at the left edge
    double m_zoom = 1;     ///< pixels a column
    bool m_isWhole = true; ///< nobody has zoomed yet: the whole film is shown
    Drag m_drag = Drag::None;
    double m_pressed = 0;     ///< where, in pixels
    double m_pressedLeft = 0; ///< column at the left edge then
    int m_dragged = 0;        ///< run of the mark
    double m_draggedTo = 0;   ///< column
};

} // namespace kavela::desktop
