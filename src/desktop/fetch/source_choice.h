#pragma once

#include "fetch/fetch_source.h"

#include <QString>

class QWidget;

/// Where a source of films comes from, and what it names: remembered, or chosen by the coach.
namespace kavela::desktop {

class Workspace;

/// As it was left; the first time with the names that split taking reads.
[[nodiscard]] fetch::filmsource001 rememberedSource(const Workspace& workspace);
void rememberSource(Workspace& workspace, const fetch::filmsource001& source);

// Each asks over a window; the path is empty where none was chosen.
[[nodiscard]] QString askForBibs(QWidget& over, const fetch::filmsource001& source);
[[nodiscard]] QString askForFilmFolder(QWidget& over, const fetch::filmsource001& source);
[[nodiscard]] QString askForSource(QWidget& over, const fetch::filmsource001& source);
/// Where the source is to be written, with its extension.
[[nodiscard]] QString askForSourceTarget(QWidget& over, const fetch::filmsource001& source);

} // namespace kavela::desktop
