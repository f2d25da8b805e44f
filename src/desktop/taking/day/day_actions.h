#pragma once

class QAction;
class QMainWindow;

namespace kavela::desktop {

class DayDesk;
class DayPanel;

/// The menu of the race day with its keys. `show` shows the panel, and is checked while it is seen.
void addDayMenu(QMainWindow& window, DayDesk& desk, DayPanel& panel, QAction& show);

} // namespace kavela::desktop
