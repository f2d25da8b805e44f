#include "desktop/shell/key_overlay.h"

#include "desktop/shell/theme.h"

#include <QAction>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QSet>

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

QWidget* columnOf(const KeyGroup& group, const QWidget& like) {
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
    grid->setRowStretch(row, 1);
    return box;
}

} // namespace

KeyOverlay::KeyOverlay(const QMainWindow& window, QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint) {
    setWindowTitle(tr("All keys"));
    auto* row = new QHBoxLayout(theme::floatingFrame(*this));
    row->setContentsMargins(theme::PageMargin, theme::PageMargin, theme::PageMargin,
                            theme::PageMargin);
    row->setSpacing(theme::PageMargin);
    for (const KeyGroup& group : keyGroups(window))
        row->addWidget(columnOf(group, *this), 0, Qt::AlignTop);
}

void KeyOverlay::keyPressEvent(QKeyEvent*) {
    accept();
}

void KeyOverlay::mousePressEvent(QMouseEvent*) {
    accept();
}

} // namespace kavela::desktop
