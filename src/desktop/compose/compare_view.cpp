#include "desktop/compose/compare_view.h"

#include "desktop/shell/theme.h"

#include <QMouseEvent>
#include <QPainter>

#include <utility>

namespace kavela::desktop {

namespace {

constexpr QColor PictureGround{0x10, 0x12, 0x14};
constexpr QColor PictureLetters{0xF2, 0xF4, 0xF6};
constexpr QColor CrossColour{0xFF, 0xD0, 0x30};

} // namespace

CompareView::CompareView(QWidget* parent) : QWidget(parent) {
    setMinimumSize(320, 180);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::StrongFocus); // a click leaves the search, so that Space plays
    setAccessibleName(tr("Preview of the composed film"));
}

void CompareView::setImage(const QImage& image) {
    m_image = image;
    if (!image.isNull())
        m_message.clear();
    update();
}

void CompareView::setMessage(const QString& message) {
    m_message = message;
    update();
}

void CompareView::setCrosses(std::vector<QPointF> crosses) {
    m_crosses = std::move(crosses);
    update();
}

QRect CompareView::pictureRect() const {
    if (m_image.isNull())
        return {};
    QRect place(QPoint(), m_image.size().scaled(size(), Qt::KeepAspectRatio));
    place.moveCenter(rect().center());
    return place;
}

void CompareView::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.fillRect(rect(), PictureGround);
    if (!m_message.isEmpty()) {
        painter.setPen(PictureLetters);
        painter.drawText(rect().adjusted(theme::LargeSpacing, 0, -theme::LargeSpacing, 0),
                         int(Qt::AlignCenter) | int(Qt::TextWordWrap), m_message);
        return;
    }
    const QRect place = pictureRect();
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    if (!m_image.isNull())
        painter.drawImage(place, m_image);
    painter.setPen(QPen(CrossColour, 2));
    int number = 0;
    for (const QPointF& cross : m_crosses) {
        constexpr int Arm = 8;
        const QPoint at(place.x() + qRound(cross.x() * place.width()),
                        place.y() + qRound(cross.y() * place.height()));
        painter.drawLine(at - QPoint(Arm, 0), at + QPoint(Arm, 0));
        painter.drawLine(at - QPoint(0, Arm), at + QPoint(0, Arm));
        painter.drawText(at + QPoint(Arm, -Arm / 2), QString::number(++number));
    }
}

void CompareView::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    emit resized();
}

void CompareView::mousePressEvent(QMouseEvent* event) {
    const QRect place = pictureRect();
    if (event->button() == Qt::LeftButton && place.contains(event->pos()))
        emit clicked({(event->position().x() - place.x()) / place.width(),
                      (event->position().y() - place.y()) / place.height()});
}

std::optional<ClickedPoint> clickedPoint(const QPointF& point, const std::vector<FilmPlace>& places,
                                         QSize size) {
    const double x = point.x() * size.width();
    const double y = point.y() * size.height();
    for (std::size_t film = 0; film < places.size(); ++film) {
        const PictureRect& picture = places[film].picture;
        const double ownX = (x - picture.x) / picture.width;
        const double ownY = (y - picture.y) / picture.height;
        if (ownX >= 0 && ownX <= 1 && ownY >= 0 && ownY <= 1)
            return ClickedPoint{film, {ownX, ownY}};
    }
    return std::nullopt;
}

} // namespace kavela::desktop
