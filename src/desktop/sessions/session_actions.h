#pragma once

class QMenu;

namespace kavela::desktop {

class SessionWindow;

/// Fills the menus of a session: `file` and `edit` in part, the others whole.
void makeSessionMenus(SessionWindow& window, QMenu& file, QMenu& edit);

} // namespace kavela::desktop
