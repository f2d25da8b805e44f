#pragma once

class QMainWindow;

namespace kavela::desktop {

class NotesPanel;

/// Adds the menu of the modes to a window, and tells their keys on the mode bar.
void addNoteMenu(QMainWindow& window, NotesPanel& notes);

} // namespace kavela::desktop
