#include "desktop/film/film_view.h"

#include "desktop/film/film_deck.h"
#include "desktop/shell/shown_number.h"
#include "desktop/shell/theme.h"

#include <QApplication>
#include <QPainter>
#include <QPushButton>
#include <QTimer>

#include <algorithm>

namespace kavela::desktop {

namespace {

constexpr int FlashMilliseconds = 1200;
constexpr int RefusalMilliseconds = 4000; // it has to be read
constexpr QColor Ground{0x10, 0x12, 0x14};
constexpr QColor Veil{0, 0, 0, 150};
constexpr QColor Letters{0xF2, 0xF4, 0xF6};
constexpr QColor Warning{0xB0, 0x4A, 0x10, 230};

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
    setMinimumSize(160, 90);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setAttribute(Qt::WA_OpaquePaintEvent);
    connect(&m_deck, &FilmDeck::frameShown, this, [this](std::size_t shown) {
        if (shown == m_camera)
            showFrame();
    });
    connect(&m_deck, &FilmDeck::failed, this, [this](std::size_t failed, const QString& why) {
        if (failed == m_camera && (!m_button || m_button->isHidden()))
            setMessage(why); // a question says more
    });
    if (m_camera == 0)
        connect(&m_deck, &FilmDeck::refused, this, &FilmView::refuse);
}

void FilmView::showFrame() {
    const FilmPicture* const picture = m_deck.shown(m_camera);
    if (!picture)
        return;
    m_image = picture->image;
    m_isPreview = picture->isPreview;
    m_message.clear();
    if (m_button)
        m_button->hide();
    const auto index = m_deck.index(m_camera);
    m_corner = tr("frame %1   %2 s")
                   .arg(picture->frame.number)
                   .arg(shownNumber(picture->frame.stamp.seconds(), 3));
    if (index && picture->frame.number < index->frameCount())
        m_corner += tr("  ±%1").arg(shownNumber(index->uncertainty(picture->frame.number), 3));
    update();
}

void FilmView::setMessage(const QString& message) {
    if (m_button)
        m_button->hide();
    m_message = message;
    m_image = {};
    m_corner.clear();
    update();
}

void FilmView::setQuestion(const QString& message, const QString& button) {
    setMessage(message);
    if (!m_button) {
        m_button = new QPushButton(this);
        m_button->setObjectName("filmQuestion");
        m_button->setFocusPolicy(Qt::TabFocus); // a click leaves the keys to the window
        connect(m_button, &QPushButton::clicked, this, &FilmView::answered);
    }
    m_button->setText(button);
    m_button->show();
    placeButton();
}

/// Below the message, which stands in the middle.
void FilmView::placeButton() {
    if (!m_button)
        return;
    m_button->adjustSize();
    const int below = rect().center().y() + 3 * fontMetrics().height();
    m_button->move(rect().center().x() - m_button->width() / 2,
                   std::min(below, height() - m_button->height() - theme::Spacing));
}

void FilmView::setCaption(const QString& caption) {
    m_caption = caption;
    update();
}

void FilmView::flash(const QString& text) {
    m_isRefusal = false;
    flashFor(text, FlashMilliseconds);
}

void FilmView::refuse(const QString& why) {
    m_isRefusal = true;
    flashFor(why, RefusalMilliseconds);
    QApplication::beep();
    emit refused(why);
}

void FilmView::flashFor(const QString& text, int milliseconds) {
    m_flash = text;
    update();
    QTimer::singleShot(milliseconds, this, [this, text] {
        if (m_flash == text) {
            m_flash.clear();
            update();
        }
    });
}

void FilmView::resizeEvent(QResizeEvent*) {
    placeButton();
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

/// A reason is longer than a number: it has its own lines.
void FilmView::paintFlash(QPainter& painter, const QRect& picture) const {
    if (m_flash.isEmpty())
        return;
    painter.setFont(m_isRefusal ? theme::titleFont(*this) : theme::headlineFont(*this));
    const QRect room = picture.adjusted(theme::Spacing, theme::Spacing, -theme::Spacing, 0);
    const int height = painter.fontMetrics().boundingRect(room, Qt::TextWordWrap, m_flash).height();
    const QRect band(picture.left(), picture.top() + theme::Spacing, picture.width(),
                     height + 2 * theme::SmallSpacing);
    painter.fillRect(band, m_isRefusal ? Warning : Veil);
    painter.setPen(Letters);
    painter.drawText(band.adjusted(theme::Spacing, 0, -theme::Spacing, 0),
                     Qt::AlignCenter | Qt::TextWordWrap, m_flash);
}

void FilmView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), Ground);
    if (m_image.isNull()) {
        painter.setPen(Letters);
        painter.drawText(rect().marginsRemoved({theme::PageMargin, theme::PageMargin,
                                                theme::PageMargin, theme::PageMargin}),
                         Qt::AlignCenter | Qt::TextWordWrap, m_message);
        paintFlash(painter, rect());
        return;
    }
    QRect picture(QPoint(), m_image.size().scaled(size(), Qt::KeepAspectRatio));
    picture.moveCenter(rect().center());
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(picture, m_image);
    paintCorner(painter, picture);
    paintCaption(painter, picture);
    paintFlash(painter, picture);
}

} // namespace kavela::desktop
