#pragma once

namespace kavela::desktop {

class Workspace;

/// Whether the windows are light or dark: as the system is, or as the coach chose.
enum class Scheme { System, Light, Dark };

/// What the coach chose in the settings.
[[nodiscard]] Scheme chosenScheme(const Workspace& workspace);

/// Remembers a choice and applies it to every window at once.
void chooseScheme(Workspace& workspace, Scheme scheme);

/// Gives the program the palette of the chosen scheme. The environment variable KAVELA_SCHEME,
/// "light" or "dark", decides before any choice.
void applyScheme(const Workspace& workspace);

} // namespace kavela::desktop
