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
#include <optional>
#include <utility>

namespace kavela::desktop {

namespace {

/// A text and the number at its end; none where it ends with none.
std::pair<QString, std::optional<int>> numbered(const QString& text) {
    qsizetype end = text.size();
    while (end > 0 && text[end - 1].isDigit())
        --end;
    if (end == text.size())
        return {text, std::nullopt};
    return {text.first(end), text.sliced(end).toInt()};
}

/// Whether a text is another one with the number at its end counted on.
bool isCountedOn(const QString& text, const QString& from, qsizetype steps) {
    const auto [stem, number] = numbered(from);
    return number &&
           numbered(text) == std::pair(stem, std::optional(*number + static_cast<int>(steps)));
}

/// Keys that differ in nothing but a number are one line: "1 … 9", "To split 1 … 9".
QList<ShownKey> gathered(const QList<ShownKey>& lines) {
    constexpr qsizetype Fewest = 3;
    QList<ShownKey> gathered;
    for (qsizetype i = 0; i < lines.size();) {
        qsizetype end = i + 1;
        while (end < lines.size() && isCountedOn(lines[end].key, lines[i].key, end - i) &&
               isCountedOn(lines[end].title, lines[i].title, end - i))
            ++end;
        if (end - i < Fewest)
            end = i + 1;
        ShownKey line = lines[i];
        if (end - i > 1) {
            line.key += QStringLiteral(" … ") + lines[end - 1].key;
            line.title += QStringLiteral(" … %1").arg(*numbered(lines[end - 1].title).second);
        }
        gathered.append(line);
        i = end;
    }
    return gathered;
}

QList<ShownKeys> groupsOf(const QMainWindow& window) {
    QList<ShownKeys> groups;
    for (const KeyGroup& group : keyGroups(window)) {
        QList<ShownKey> lines;
        for (const ListedKey& listed : group.keys)
            lines.append({listed.action->shortcut().toString(QKeySequence::NativeText),
                          plainTitle(listed.action->text())});
        groups.append({group.title, gathered(lines)});
    }
    return groups;
}

/// The groups of each column, in their order, in as low columns as so many of them allow.
QList<QList<ShownKeys>> packed(const QList<ShownKeys>& groups, qsizetype columns) {
    constexpr qsizetype TitleLines = 2; // with the gap above it
    for (qsizetype height = 1;; ++height) {
        QList<QList<ShownKeys>> tried;
        qsizetype used = height;
        for (const ShownKeys& group : groups) {
            const qsizetype lines = group.keys.size() + TitleLines;
            if (tried.isEmpty() || used + lines > height) {
                tried.append(QList<ShownKeys>());
                used = 0;
            }
            tried.back().append(group);
            used += lines;
        }
        if (tried.size() <= columns)
            return tried;
    }
}

QWidget* boxOf(const ShownKeys& group, const QWidget& like) {
    auto* box = new QWidget;
    auto* grid = new QGridLayout(box);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(theme::LargeSpacing);
    grid->setVerticalSpacing(theme::SmallSpacing);
    auto* title = new QLabel(group.title);
    title->setFont(theme::titleFont(like));
    grid->addWidget(title, 0, 0, 1, 2);
    int row = 1;
    for (const ShownKey& line : group.keys) {
        auto* key = new QLabel(line.key);
        QFont bold = key->font();
        bold.setBold(true);
        key->setFont(bold);
        grid->addWidget(key, row, 0, Qt::AlignRight);
        grid->addWidget(new QLabel(line.title), row++, 1);
    }
    grid->setColumnStretch(1, 1);
    return box;
}

/// As many columns as fit beside each other on the screen.
QWidget* columnsOf(const QList<ShownKeys>& groups, const QWidget& like, int width) {
    for (qsizetype count = groups.size();; --count) {
        auto whole = std::make_unique<QWidget>();
        auto* row = new QHBoxLayout(whole.get());
        row->setContentsMargins(0, 0, 0, 0);
        row->setSpacing(theme::PageMargin);
        for (const QList<ShownKeys>& column : packed(groups, count)) {
            auto* stack = new QVBoxLayout;
            stack->setSpacing(theme::LargeSpacing);
            for (const ShownKeys& group : column)
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
    : KeyOverlay(window, groupsOf(window), parent) {}

KeyOverlay::KeyOverlay(const QWidget& window, const QList<ShownKeys>& groups, QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint), m_area(new QScrollArea) {
    setWindowTitle(tr("All keys"));
    const QSize free = freeArea(window).size();
    const int margins = 2 * theme::PageMargin + 2 * theme::Spacing;
    QWidget* const keys = columnsOf(groups, *this, free.width() - margins);
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
