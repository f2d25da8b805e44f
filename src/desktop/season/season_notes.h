#pragma once

#include "desktop/season/shown_season.h"

#include <QStringList>

/// What the window of a season tells of what its figures are made from.
namespace kavela::desktop {

/// Of how many split files the races are.
[[nodiscard]] QString comparedFilesText(std::size_t files);

/// How much was compared, and what could not be.
[[nodiscard]] QStringList seasonNotes(const ShownSeason& shown);

} // namespace kavela::desktop
