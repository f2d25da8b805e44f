#include "desktop/find/query_edit.h"

#include "desktop/charts/chart_colours.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/theme.h"

#include <QAbstractItemView>
#include <QAbstractTextDocumentLayout>
#include <QCompleter>
#include <QKeyEvent>
#include <QMimeData>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QStringListModel>

#include <algorithm>

namespace kavela::desktop {

namespace {

constexpr int Rest = 300; ///< milliseconds
constexpr int MostLines = 3;
constexpr int MostOffered = 12; ///< seen without scrolling

/// Letters in front of so many bytes of a text.
int lettersBefore(const QByteArray& text, std::size_t bytes) {
    return static_cast<int>(QString::fromUtf8(text.left(static_cast<qsizetype>(bytes))).size());
}

/// Letters with Ctrl but those that copy, paste, undo and select.
bool isOfWindow(const QKeyEvent& key) {
    const bool isLetter = key.key() >= Qt::Key_A && key.key() <= Qt::Key_Z;
    return isLetter && key.modifiers().testFlag(Qt::ControlModifier) &&
           !QStringLiteral("ACVXYZ").contains(QChar(key.key()));
}

} // namespace

QueryEdit::QueryEdit(QWidget* parent)
    : QPlainTextEdit(parent),
      m_completer(new QCompleter(this)),
      m_words(new QStringListModel(this)) {
    setObjectName("query");
    setAccessibleName(tr("Query"));
    setTabChangesFocus(true);
    setLineWrapMode(WidgetWidth);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_completer->setModel(m_words);
    m_completer->setWidget(this);
    m_completer->setCompletionMode(QCompleter::UnfilteredPopupCompletion);
    m_completer->setMaxVisibleItems(MostOffered);
    m_rest.setSingleShot(true);
    m_rest.setInterval(Rest);
    connect(m_completer, qOverload<const QString&>(&QCompleter::activated), this, &QueryEdit::take);
    connect(&m_rest, &QTimer::timeout, this, &QueryEdit::rested);
    connect(this, &QPlainTextEdit::textChanged, this, &QueryEdit::noteTyping);
    connect(document()->documentLayout(), &QAbstractTextDocumentLayout::documentSizeChanged, this,
            &QueryEdit::fitHeight);
    fitHeight();
}

QString QueryEdit::text() const {
    return toPlainText().replace('\n', ' ');
}

void QueryEdit::setText(const QString& text) {
    if (text == this->text())
        return;
    const QScopedValueRollback showing(m_isShowing, true);
    m_rest.stop();
    m_completer->popup()->hide();
    // As one step that the coach can undo: the text may have been typed.
    QTextCursor all(document());
    all.select(QTextCursor::Document);
    all.insertText(text);
}

/// What is underlined is about what was typed before.
void QueryEdit::noteTyping() {
    if (m_isShowing)
        return;
    clearFault();
    m_rest.start();
}

void QueryEdit::showFault(std::size_t place, std::size_t length) {
    const QByteArray all = text().toUtf8();
    const int begin = lettersBefore(all, place);
    const int end = lettersBefore(all, place + length);
    QTextEdit::ExtraSelection fault;
    fault.cursor = QTextCursor(document());
    fault.cursor.setPosition(begin < end ? begin : std::max(begin - 1, 0));
    fault.cursor.setPosition(end, QTextCursor::KeepAnchor);
    fault.format.setUnderlineStyle(QTextCharFormat::WaveUnderline);
    fault.format.setUnderlineColor(missedColour(palette()));
    setExtraSelections({fault});
}

void QueryEdit::clearFault() {
    setExtraSelections({});
}

QStringList QueryEdit::offered() const {
    return isOpen() ? m_words->stringList() : QStringList();
}

bool QueryEdit::isOpen() const {
    return m_completer->popup()->isVisible();
}

/// Some systems have letters with Ctrl for moving in a text, which are the window's here. Tab would
/// go to the next field before the key gets here.
bool QueryEdit::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride &&
        isOfWindow(*static_cast<const QKeyEvent*>(event))) {
        event->ignore();
        return false;
    }
    if (event->type() == QEvent::KeyPress && isOpen() &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Tab) {
        const QModelIndex chosen = m_completer->popup()->currentIndex();
        const QString word =
            chosen.isValid() ? chosen.data().toString() : m_words->stringList().value(0);
        m_completer->popup()->hide();
        take(word);
        event->accept();
        return true;
    }
    return QPlainTextEdit::event(event);
}

void QueryEdit::keyPressEvent(QKeyEvent* event) {
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const bool isChosen = isOpen() && m_completer->popup()->currentIndex().isValid();
    if (isOpen() && event->key() == Qt::Key_Escape)
        return m_completer->popup()->hide();
    if (isEnter && isChosen) {
        event->ignore(); // the list takes it
        return;
    }
    if (isEnter) {
        m_completer->popup()->hide();
        m_rest.stop();
        emit entered();
        return;
    }
    const bool isAskedFor =
        event->key() == Qt::Key_Space && event->modifiers().testFlag(Qt::ControlModifier);
    if (!isAskedFor)
        QPlainTextEdit::keyPressEvent(event);
    const bool isTyped = !event->text().isEmpty() && event->text().at(0).isPrint();
    if (isAskedFor || isTyped || event->key() == Qt::Key_Backspace)
        offer(isAskedFor);
    else if (isOpen())
        m_completer->popup()->hide(); // the cursor went elsewhere
}

/// Behind a blank nothing is begun yet: what may come there is only shown when it is asked for.
void QueryEdit::offer(bool isAskedFor) {
    const QString before = text().left(textCursor().position());
    const QByteArray bytes = before.toUtf8();
    Completion completion;
    if (m_values)
        completion = completionAt(text().toUtf8().toStdString(),
                                  static_cast<std::size_t>(bytes.size()), m_values);
    m_begin = lettersBefore(bytes, completion.place);
    const QString begun = before.mid(m_begin);
    QStringList words;
    for (const std::string& word : completion.words)
        words.append(qtText(word));
    const bool isWhole = words.size() == 1 && words.front() == begun;
    const bool isBegun = begun.size() > (begun.startsWith('"') ? 1 : 0);
    if (words.isEmpty() || isWhole || (!isBegun && !isAskedFor)) {
        m_completer->popup()->hide();
        return;
    }
    m_words->setStringList(words);
    m_completer->popup()->setCurrentIndex({});
    QRect below = cursorRect();
    below.setWidth(m_completer->popup()->sizeHintForColumn(0) +
                   m_completer->popup()->verticalScrollBar()->sizeHint().width() + theme::Spacing);
    m_completer->complete(below);
}

void QueryEdit::take(const QString& word) {
    if (word.isEmpty())
        return;
    QTextCursor cursor = textCursor();
    const int end = cursor.position();
    cursor.setPosition(std::min(m_begin, end));
    cursor.setPosition(end, QTextCursor::KeepAnchor);
    cursor.insertText(word + ' ');
    setTextCursor(cursor);
}

/// A query is one line, whatever it was copied from.
void QueryEdit::insertFromMimeData(const QMimeData* source) {
    insertPlainText(source->text().simplified());
}

void QueryEdit::changeEvent(QEvent* event) {
    QPlainTextEdit::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        fitHeight();
}

/// The layout of plain texts tells its height in lines.
void QueryEdit::fitHeight() {
    const int lines = std::clamp(static_cast<int>(document()->size().height()), 1, MostLines);
    const int margins = 2 * (static_cast<int>(document()->documentMargin()) + frameWidth());
    setFixedHeight(lines * fontMetrics().lineSpacing() + margins + theme::SmallSpacing);
}

} // namespace kavela::desktop
