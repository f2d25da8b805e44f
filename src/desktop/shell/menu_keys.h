#pragma once

#include <QList>

class QAction;

namespace kavela::desktop {

/// Gives every action of a menu, and of the menus below it, a letter of its own. What a language
/// has twice in one menu keeps it where it comes first; a later text takes another of its letters:
/// the first one of a word, else any that the keyboard has, and none where all are taken.
void partMenuKeys(const QList<QAction*>& actions);

} // namespace kavela::desktop
