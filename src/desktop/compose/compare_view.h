#pragma once

#include "compose/layout.h"

#include <QImage>
#include <QPointF>
#include <QWidget>

#include <optional>
#include <vector>

namespace kavela::desktop {

/// A composed picture on the screen, or why there is none. Points of the films in it can be
/// clicked.
class CompareView : public QWidget {
    Q_OBJECT

public:
    explicit CompareView(QWidget* parent = nullptr);

    void setImage(const QImage& image);
    [[nodiscard]] const QImage& image() const { return m_image; }
    /// Stands in place of the picture; empty for none.
    void setMessage(const QString& message);
    [[nodiscard]] const QString& message() const { return m_message; }
    /// Crosses with numbers, in the order of the clicks, by points of the whole picture from 0
    /// to 1.
    void setCrosses(std::vector<QPointF> crosses);

    [[nodiscard]] QSize sizeHint() const override { return {640, 360}; }
    /// Where the picture stands.
    [[nodiscard]] QRect pictureRect() const;

signals:
    /// A point of the picture, 0 to 1 from its left and from its top.
    void clicked(const QPointF& point);
    void resized();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    QImage m_image;
    QString m_message;
    std::vector<QPointF> m_crosses;
};

/// Which film is seen at a point of a picture, and the point in that film's own picture; nothing
/// beside the films. `size` is that of the picture that the places are in.
struct ClickedPoint {
    std::size_t film = 0;
    PicturePoint point;
};
[[nodiscard]] std::optional<ClickedPoint>
clickedPoint(const QPointF& point, const std::vector<FilmPlace>& places, QSize size);

} // namespace kavela::desktop
