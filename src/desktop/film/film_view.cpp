#include "desktop/film/film_view.h"

#include "desktop/film/film_deck.h"
#include "desktop/shell/theme.h"

#include <QPainter>
#include <QTimer>

namespace kavela::desktop {

namespace {

constexpr int FlashMilliseconds = 1200;
constexpr QColor Ground{0x10, 0x12, 0x14};
constexpr QColor Veil{0, 0, 0, 150};
constexpr QColor Letters{0xF2, 0xF4, 0xF6};

QSize boxOf(const QString& text, const QFontMetrics& metrics) {
    return metrics.boundingRect(text).size() + QSize(2 * theme::Spacing, 2 * theme::SmallSpacing);
}

void paintText(QPainter& painter, const QRect& box, const QString& text) {
    painter.fillRect(box, Veil);
    painter.setPen(Letters);
    painter.drawText(box, Qt::AlignCenter, text);
}

} // namespace

FilmView::FilmView(FilmDeck& deck, std::size_t camera, QWidget* parent)
    : QWidget(parent), m_deck(deck), m_camera(camera) {
    setMinimumSize(240, 135);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setAttribute(Qt::WA_OpaquePaintEvent);
    connect(&m_deck, &FilmDeck::frameShown, this, [this](std::size_t shown) {
        if (shown == m_camera)
            showFrame();
    });
    connect(&m_deck, &FilmDeck::failed, this, [this](std::size_t failed, const QString& why) {
        if (failed == m_camera)
            setMessage(why);
    });
}

void FilmView::showFrame() {
    const FilmPicture* const picture = m_deck.shown(m_camera);
    if (!picture)
        return;
    m_image = picture->image;
    m_isPreview = picture->isPreview;
    m_message.clear();
    const auto index = m_deck.index(m_camera);
    m_corner = tr("frame %1   %2 s")
                   .arg(picture->frame.number)
                   .arg(picture->frame.stamp.seconds(), 0, 'f', 3);
    if (index && picture->frame.number < index->frameCount())
        m_corner += tr("  ±%1").arg(index->uncertainty(picture->frame.number), 0, 'f', 3);
    update();
}

void FilmView::setMessage(const QString& message) {
    m_message = message;
    m_image = {};
    m_corner.clear();
    update();
}

void FilmView::setCaption(const QString& caption) {
    m_caption = caption;
    update();
}

void FilmView::flash(const QString& text) {
    m_flash = text;
    update();
    QTimer::singleShot(FlashMilliseconds, this, [this, text] {
        if (m_flash == text) {
            m_flash.clear();
            update();
        }
    });
}

void FilmView::resizeEvent(QResizeEvent*) {
    const qreal ratio = devicePixelRatioF();
    m_deck.setBox(m_camera,
                  {static_cast<int>(width() * ratio), static_cast<int>(height() * ratio)});
}

void FilmView::paintCorner(QPainter& painter, const QRect& picture) const {
    const QString text = m_isPreview ? tr("…") : m_corner;
    const QSize size = boxOf(text, painter.fontMetrics());
    paintText(painter, {picture.bottomRight() - QPoint(size.width(), size.height()), size}, text);
}

void FilmView::paintCaption(QPainter& painter, const QRect& picture) const {
    if (m_caption.isEmpty())
        return;
    const QString text = painter.fontMetrics().elidedText(m_caption, Qt::ElideMiddle,
                                                          picture.width() - 2 * theme::Spacing);
    const QSize size = boxOf(text, painter.fontMetrics());
    paintText(painter, {{picture.left(), picture.top()}, size}, text);
}

void FilmView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), Ground);
    if (m_image.isNull()) {
        painter.setPen(Letters);
        painter.drawText(rect().marginsRemoved({theme::PageMargin, theme::PageMargin,
                                                theme::PageMargin, theme::PageMargin}),
                         Qt::AlignCenter | Qt::TextWordWrap, m_message);
        return;
    }
    QRect picture(QPoint(), m_image.size().scaled(size(), Qt::KeepAspectRatio));
    picture.moveCenter(rect().center());
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(picture, m_image);
    paintCorner(painter, picture);
    paintCaption(painter, picture);
    if (m_flash.isEmpty())
        return;
    painter.setFont(theme::headlineFont(*this));
    const QRect band(picture.left(), picture.top() + theme::Spacing, picture.width(),
                     painter.fontMetrics().height() + 2 * theme::SmallSpacing);
    painter.fillRect(band, Veil);
    painter.setPen(Letters);
    painter.drawText(band, Qt::AlignCenter, m_flash);
}

} // namespace kavela::desktop
