#include "desktop/shell/key_overlay.h"

#include "desktop/shell/theme.h"

#include <QAction>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QSet>

#include <memory>

namespace kavela::desktop {

namespace {

struct KeyGroup {
    QString title;
    QList<QPair<QString, QString>> lines; ///< keys, what they do
};

QString plainTitle(QString text) {
    text.remove('&');
    if (text.endsWith(u'…'))
        text.chop(1);
    return text;
}

void collect(const QList<QAction*>& actions, KeyGroup& group, QSet<const QAction*>& seen) {
    for (const QAction* action : actions) {
        if (action->menu())
            collect(action->menu()->actions(), group, seen);
        if (action->shortcut().isEmpty() || seen.contains(action))
            continue;
        seen.insert(action);
        group.lines.append(
            {action->shortcut().toString(QKeySequence::NativeText), plainTitle(action->text())});
    }
}

QList<KeyGroup> keyGroups(const QMainWindow& window) {
    QList<KeyGroup> groups;
    QSet<const QAction*> seen;
    for (const QAction* menu : window.menuBar()->actions()) {
        if (!menu->menu())
            continue;
        KeyGroup group{plainTitle(menu->text()), {}};
        collect(menu->menu()->actions(), group, seen);
        groups.append(group);
    }
    KeyGroup others{KeyOverlay::tr("In the charts"), {}};
    for (const QWidget* part : window.findChildren<QWidget*>())
        if (part->isVisible())
            collect(part->actions(), others, seen);
    groups.append(others);
    groups.removeIf([](const KeyGroup& group) { return group.lines.isEmpty(); });
    return groups;
}

/// The groups of each column, in their order, in as low columns as so many of them allow.
QList<QList<KeyGroup>> packed(const QList<KeyGroup>& groups, qsizetype columns) {
    constexpr qsizetype TitleLines = 2; // with the gap above it
    for (qsizetype height = 1;; ++height) {
        QList<QList<KeyGroup>> tried;
        qsizetype used = height;
        for (const KeyGroup& group : groups) {
            const qsizetype lines = group.lines.size() + TitleLines;
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
    for (const auto& [keys, what] : group.lines) {
        auto* key = new QLabel(keys);
        QFont bold = key->font();
        bold.setBold(true);
        key->setFont(bold);
        grid->addWidget(key, row, 0, Qt::AlignRight);
        grid->addWidget(new QLabel(what), row++, 1);
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
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint) {
    setWindowTitle(tr("All keys"));
    auto* row = new QHBoxLayout(theme::floatingFrame(*this));
    row->setContentsMargins(theme::PageMargin, theme::PageMargin, theme::PageMargin,
                            theme::PageMargin);
    const int margins = 2 * theme::PageMargin + 2 * theme::Spacing;
    row->addWidget(
        columnsOf(keyGroups(window), *this, screen()->availableSize().width() - margins));
}

void KeyOverlay::keyPressEvent(QKeyEvent*) {
    accept();
}

void KeyOverlay::mousePressEvent(QMouseEvent*) {
    accept();
}

} // namespace kavela::desktop
