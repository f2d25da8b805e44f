#pragma once

#include <QStringList>

/// What stands in a folder of films.
namespace kavela::desktop {

/// The split file of a folder, the latest of several; a collected training only where there is no
/// other. Empty for none.
[[nodiscard]] QString splitFileIn(const QString& folder);

/// The split file beside a film that has a run of it, the latest of several. Empty for none. Up to
/// two dozen files are read; none is rewritten.
[[nodiscard]] QString splitFileWith(const QString& film);

/// The names of the films of a folder, in their order.
[[nodiscard]] QStringList filmsIn(const QString& folder);

} // namespace kavela::desktop
