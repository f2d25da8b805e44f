#include "desktop/help/guide_text.h"

#include "desktop/help/guide.h"

#include <QAbstractTextDocumentLayout>
#include <QImage>
#include <QRegularExpression>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextDocument>
#include <QUrl>

#include <cmath>

namespace kavela::desktop {

namespace {

constexpr double MostPictureWidth = 640.0; ///< logical pixels, beside the contents
constexpr int PageEdge = 16;

} // namespace

GuideText::GuideText(QWidget* parent) : QTextBrowser(parent) {
    setOpenLinks(false);
    document()->setDocumentMargin(PageEdge);
    document()->setMarkdown(guideText());
    connect(verticalScrollBar(), &QScrollBar::valueChanged, this, &GuideText::noteTop);
    connect(verticalScrollBar(), &QScrollBar::rangeChanged, this, &GuideText::keepTop);
}

/// A large picture is shown small, with all its pixels on a fine screen.
QVariant GuideText::loadResource(int type, const QUrl& name) {
    if (type != QTextDocument::ImageResource)
        return QTextBrowser::loadResource(type, name);
    QImage picture(":/guide/" + name.path());
    if (picture.width() > MostPictureWidth)
        picture.setDevicePixelRatio(picture.width() / MostPictureWidth);
    return picture;
}

void GuideText::resizeEvent(QResizeEvent* event) {
    const int top = m_top;
    QTextBrowser::resizeEvent(event);
    showBlock(top);
}

void GuideText::showBlock(int block) {
    const QTextBlock shown = document()->findBlockByNumber(block);
    if (!shown.isValid())
        return;
    const QScopedValueRollback placing(m_isPlacing, true);
    (void)document()->pageCount(); // lays out all of it, else there is no room to scroll to yet
    const QRectF place = document()->documentLayout()->blockBoundingRect(shown);
    verticalScrollBar()->setValue(static_cast<int>(std::floor(place.top())));
    m_top = block; // also where the end of the guide is too near to bring it to the top
}

/// Laid out anew, also later than the size changed, the text moves under the scroll bar.
void GuideText::keepTop() {
    if (m_isPlacing)
        return;
    m_isPlacing = true;
    QMetaObject::invokeMethod(
        this,
        [this] {
            m_isPlacing = false;
            showBlock(m_top);
        },
        Qt::QueuedConnection);
}

void GuideText::noteTop() {
    if (m_isPlacing)
        return;
    const int top = cursorForPosition(QPoint(PageEdge, PageEdge)).block().blockNumber();
    if (top == m_top)
        return;
    m_top = top;
    emit scrolled();
}

QRegularExpression GuideText::sought(const QString& query) const {
    QStringList words = query.split(u' ', Qt::SkipEmptyParts);
    for (QString& word : words)
        word = QRegularExpression::escape(word);
    const auto options = QRegularExpression::CaseInsensitiveOption;
    const QRegularExpression together(words.join("\\s+"), options);
    if (words.size() < 2 || !document()->find(together).isNull())
        return together;
    return QRegularExpression(words.join('|'), options);
}

void GuideText::markAll(const QString& query) {
    QList<ExtraSelection> marks;
    if (!query.trimmed().isEmpty()) {
        const QRegularExpression places = sought(query.trimmed());
        QTextCharFormat look;
        look.setBackground(palette().highlight());
        look.setForeground(palette().highlightedText());
        for (QTextCursor at = document()->find(places); !at.isNull();
             at = document()->find(places, at))
            marks.append({at, look});
    }
    setExtraSelections(marks);
}

bool GuideText::findNext(const QString& query) {
    if (query.trimmed().isEmpty())
        return false;
    const QRegularExpression places = sought(query.trimmed());
    QTextCursor at = document()->find(places, textCursor());
    if (at.isNull())
        at = document()->find(places);
    if (at.isNull())
        return false;
    setTextCursor(at);
    ensureCursorVisible();
    return true;
}

} // namespace kavela::desktop
