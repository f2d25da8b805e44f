#pragma once

class QAction;
class QMenu;
class QString;

namespace kavela::desktop {

class FilmStage;

/// Adds the keys of marking to a menu, which the stage hands to the mode in front: marking, called
/// `markText`, moving, nudging and removing a mark, and going from mark to mark. Returns the first.
QAction* addMarkActions(QMenu& menu, FilmStage& stage, const QString& markText);

/// Adds the keys of the next gate and the one before.
void addGateActions(QMenu& menu, FilmStage& stage, const QString& next, const QString& previous);

} // namespace kavela::desktop
