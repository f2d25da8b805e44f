#pragma once

#include "vision/slit_file.h"

#include <QWidget>

#include <optional>
#include <vector>

namespace kavela::desktop {

/// The lines over the picture of a film, drawn and dragged by the mouse, or moved by the arrow keys
/// while this has the focus. Lies over the widget that shows the film, as large as that.
class LineOverlay : public QWidget {
    Q_OBJECT

public:
    /// What a press beside every line begins.
    enum class Tool { None, Line, Boat };

    explicit LineOverlay(QWidget& over);

    /// Upright pixels of the film; nothing is drawn for an empty size.
    void setFilmSize(QSize size);
    void setLines(std::vector<slitline001> lines, std::size_t current);
    void setTool(Tool tool);
    [[nodiscard]] Tool tool() const { return m_tool; }

    /// Where a place of the film lies in the widget, and back; the latter within the film.
    [[nodiscard]] QPointF placeOf(const QPointF& film) const;
    [[nodiscard]] QPointF filmPlace(const QPointF& place) const;

signals:
    void lineChosen(std::size_t line);
    /// Ends were dragged; behind the last line for a new one.
    void lineDrawn(std::size_t line, const QPointF& first, const QPointF& second);
    void lineNudged(std::size_t line, const QPointF& first, const QPointF& second); ///< by a key
    void boatDrawn(const QRectF& box); ///< in pixels of the film
    void left();                       ///< Esc: the keys are the window's again

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    struct Grip {
        std::size_t line = 0;
        int end = 0; ///< 0 or 1; 2 for both
    };

    [[nodiscard]] QRectF picture() const;
    [[nodiscard]] std::optional<Grip> gripAt(const QPointF& place) const;
    [[nodiscard]] QLineF shown(const slitline001& line) const;
    void dragTo(const QPointF& to);
    void moveEnd(const QPointF& by);
    void paintLine(QPainter& painter, std::size_t line) const;

    QSize m_film;
    std::vector<slitline001> m_lines;
    std::size_t m_current = 0;
    Tool m_tool = Tool::None;
    std::optional<Grip> m_grip; ///< that is dragged
    bool m_isDrawing = false;   ///< a new line or box
    QPointF m_from;             ///< of the film
    QPointF m_to;
    int m_keyEnd = 0; ///< what the arrow keys move: 0 or 1; 2 for both
};

} // namespace kavela::desktop
