#pragma once

namespace kavela::desktop {

class CompareWindow;

/// The menus of comparing films and their keys.
void makeCompareMenus(CompareWindow& window);

} // namespace kavela::desktop
