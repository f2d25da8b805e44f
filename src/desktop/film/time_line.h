#pragma once

#include "common/cm_time.h"

#include <QWidget>

#include <optional>
#include <vector>

class QLabel;

namespace kavela::desktop {

class FilmDeck;

/// A mark on the time line.
struct LineMark {
    CMTime stamp;           ///< of the first film
    QString label;          ///< "Start", "3"
    std::size_t number = 0; ///< of the mark, as its owner counts
};

/// The film from end to end, with the marks of the run. Dragging scrubs frame by frame, a click on
/// a mark goes to its frame, dragging a mark moves it, and hovering shows the frame under the
/// pointer. Without a film it goes from the first mark to the last.
class TimeLine : public QWidget {
    Q_OBJECT

public:
    explicit TimeLine(FilmDeck& deck, QWidget* parent = nullptr);
    ~TimeLine() override;

    void setMarks(std::vector<LineMark> marks);
    /// Where the next mark is to be expected, in seconds of the first film, and its label; nowhere
    /// without a value.
    void setExpected(std::optional<double> seconds, const QString& label = {});
    [[nodiscard]] std::optional<double> expected() const { return m_expected; }
    /// The mark that keys act on, by its place in the list; none without a value.
    void setSelected(std::optional<std::size_t> place);

    [[nodiscard]] QSize sizeHint() const override;
    /// Pixels from the left of a moment.
    [[nodiscard]] int placeOf(double seconds) const;
    /// The moment of the film at so many pixels from the left.
    [[nodiscard]] double momentAt(int place) const;

signals:
    void markClicked(std::size_t number);
    void markDropped(std::size_t number, double seconds);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    [[nodiscard]] int flagHeight() const;
    [[nodiscard]] std::optional<std::size_t> markAt(QPoint place) const;
    struct Range {
        double start = 0;
        double end = 0;
    };
    [[nodiscard]] Range range() const;
    void paintMarks(QPainter& painter) const;
    void paintExpected(QPainter& painter) const;
    void hoverAt(int place);
    void showThumbnail();
    void hideThumbnail();

    FilmDeck& m_deck;
    FilmDeck* m_hoverDeck; ///< its own player: hovering leaves the film where it is
    QLabel* m_thumbnail;
    std::vector<LineMark> m_marks;
    std::optional<std::size_t> m_selected;
    std::optional<double> m_expected;
    QString m_expectedLabel;
    int m_hoverPlace = 0;
    std::optional<std::size_t> m_pressed; ///< number of the mark under the button
    int m_pressedPlace = 0;
    bool m_isDragging = false; ///< the mark pressed has left its place
};

} // namespace kavela::desktop
