#include "desktop/shell/key_list.h"

#include <QAction>
#include <QCoreApplication>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QSet>

namespace kavela::desktop {

namespace {

void collect(const QList<QAction*>& actions, QWidget* part, KeyGroup& group,
             QSet<const QAction*>& seen) {
    for (QAction* action : actions) {
        if (action->menu())
            collect(action->menu()->actions(), part, group, seen);
        if (!action->isVisible() || action->shortcut().isEmpty() || seen.contains(action))
            continue;
        seen.insert(action);
        group.keys.append({action, part});
    }
}

} // namespace

QString plainTitle(QString text) {
    text.remove('&');
    if (text.endsWith(u'…'))
        text.chop(1);
    return text;
}

QList<KeyGroup> keyGroups(const QMainWindow& window) {
    QList<KeyGroup> groups;
    QSet<const QAction*> seen;
    for (const QAction* menu : window.menuBar()->actions()) {
        if (!menu->menu())
            continue;
        KeyGroup group{menu->text().remove('&'), {}};
        collect(menu->menu()->actions(), nullptr, group, seen);
        groups.append(group);
    }
    KeyGroup others{QCoreApplication::translate("KeyOverlay", "In the part with the focus"), {}};
    for (QWidget* part : window.findChildren<QWidget*>())
        if (part->isVisible())
            collect(part->actions(), part, others, seen);
    groups.append(others);
    groups.removeIf([](const KeyGroup& group) { return group.keys.isEmpty(); });
    return groups;
}

} // namespace kavela::desktop
