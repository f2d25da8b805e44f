#pragma once

class QWidget;

namespace kavela::desktop {

class SelectionDocument;
class Workspace;

/// Both reports of a selection, that of the times shown in front. Always of the real results: who
/// reads a report cannot see that something was only tried. What is typed in the window is taken
/// first; nothing happens where it cannot be.
void previewSelection(const SelectionDocument& document, Workspace& workspace, QWidget& window);

} // namespace kavela::desktop
