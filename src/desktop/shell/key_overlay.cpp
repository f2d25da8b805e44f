#include "desktop/shell/key_overlay.h"

#include "desktop/shell/key_list.h"
#include "desktop/shell/screen_fit.h"
#include "desktop/shell/theme.h"

#include <QAction>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMainWindow>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyle>

#include <memory>

namespace kavela::desktop {

namespace {

QString plainTitle(QString text) {
    text.remove('&');
    if (text.endsWith(u'…'))
        text.chop(1);
    return text;
}

/// The groups of each column, in their order, in as low columns as so many of them allow.
QList<QList<KeyGroup>> packed(const QList<KeyGroup>& groups, qsizetype columns) {
    constexpr qsizetype TitleLines = 2; // with the gap above it
    for (qsizetype height = 1;; ++height) {
        QList<QList<KeyGroup>> tried;
        qsizetype used = height;
        for (const KeyGroup& group : groups) {
            const qsizetype lines = group.keys.size() + TitleLines;
            if (tried.isEmpty() || used + lines > height) {
                tried.append(QList<KeyGroup>());
                used = 0;
            }
            tried.back().append(group);
            used += lines;
        }
        if (tried.size() <= columns)
            return tried;
    }
}

QWidget* boxOf(const KeyGroup& group, const QWidget& like) {
    auto* box = new QWidget;
    auto* grid = new QGridLayout(box);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(theme::LargeSpacing);
    grid->setVerticalSpacing(theme::SmallSpacing);
    auto* title = new QLabel(group.title);
    title->setFont(theme::titleFont(like));
    grid->addWidget(title, 0, 0, 1, 2);
    int row = 1;
    for (const ListedKey& listed : group.keys) {
        auto* key = new QLabel(listed.action->shortcut().toString(QKeySequence::NativeText));
        QFont bold = key->font();
        bold.setBold(true);
        key->setFont(bold);
        grid->addWidget(key, row, 0, Qt::AlignRight);
        grid->addWidget(new QLabel(plainTitle(listed.action->text())), row++, 1);
    }
    grid->setColumnStretch(1, 1);
    return box;
}

/// As many columns as fit beside each other on the screen.
QWidget* columnsOf(const QList<KeyGroup>& groups, const QWidget& like, int width) {
    for (qsizetype count = groups.size();; --count) {
        auto whole = std::make_unique<QWidget>();
        auto* row = new QHBoxLayout(whole.get());
        row->setContentsMargins(0, 0, 0, 0);
        row->setSpacing(theme::PageMargin);
        for (const QList<KeyGroup>& column : packed(groups, count)) {
            auto* stack = new QVBoxLayout;
            stack->setSpacing(theme::LargeSpacing);
            for (const KeyGroup& group : column)
                stack->addWidget(boxOf(group, like));
            stack->addStretch(1);
            row->addLayout(stack);
        }
        if (count <= 1 || whole->sizeHint().width() <= width)
            return whole.release();
    }
}

} // namespace

KeyOverlay::KeyOverlay(const QMainWindow& window, QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint), m_area(new QScrollArea) {
    setWindowTitle(tr("All keys"));
    const QSize free = freeArea(window).size();
    const int margins = 2 * theme::PageMargin + 2 * theme::Spacing;
    QWidget* const keys = columnsOf(keyGroups(window), *this, free.width() - margins);
    keys->layout()->setContentsMargins(theme::PageMargin, theme::PageMargin, theme::PageMargin,
                                       theme::PageMargin);
    m_area->setFrameShape(QFrame::NoFrame);
    m_area->setWidgetResizable(true);
    m_area->setFocusPolicy(Qt::NoFocus);
    m_area->setWidget(keys);
    auto* column = new QVBoxLayout(theme::floatingFrame(*this));
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(m_area, 1);
    const QSize whole = keys->sizeHint() + QSize(2, 2) * 2;
    const bool isTooHigh = whole.height() > free.height();
    if (isTooHigh) {
        auto* hint = new QLabel(tr("Up, Down, Page up and Page down show the rest; any other key "
                                   "closes."));
        hint->setForegroundRole(QPalette::PlaceholderText);
        hint->setAlignment(Qt::AlignCenter);
        column->addWidget(hint);
    }
    const int bar = isTooHigh ? style()->pixelMetric(QStyle::PM_ScrollBarExtent) : 0;
    resize((whole + QSize(bar, 0)).boundedTo(free));
}

/// Scrolls by a key where not all keys fit; false where the key is none of these.
bool KeyOverlay::isScrolledBy(int key) {
    QScrollBar& bar = *m_area->verticalScrollBar();
    if (bar.maximum() == bar.minimum())
        return false;
    switch (key) {
    case Qt::Key_Down:
        bar.triggerAction(QAbstractSlider::SliderSingleStepAdd);
        return true;
    case Qt::Key_Up:
        bar.triggerAction(QAbstractSlider::SliderSingleStepSub);
        return true;
    case Qt::Key_PageDown:
        bar.triggerAction(QAbstractSlider::SliderPageStepAdd);
        return true;
    case Qt::Key_PageUp:
        bar.triggerAction(QAbstractSlider::SliderPageStepSub);
        return true;
    default:
        return false;
    }
}

void KeyOverlay::keyPressEvent(QKeyEvent* event) {
    if (!isScrolledBy(event->key()))
        accept();
}

void KeyOverlay::mousePressEvent(QMouseEvent*) {
    accept();
}

} // namespace kavela::desktop
