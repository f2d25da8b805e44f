#pragma once

#include <QStringList>

#include <filesystem>
#include <optional>

/// What stands in a folder of films.
namespace kavela::desktop {

/// The moment a file was written; none where there is none.
[[nodiscard]] std::optional<std::filesystem::file_time_type>
lastWritten(const std::filesystem::path& file);

/// The split file of a folder, the latest of several; a collected training only where there is no
/// other. Empty for none.
[[nodiscard]] QString splitFileIn(const QString& folder);

/// The names of the films of a folder, in their order.
[[nodiscard]] QStringList filmsIn(const QString& folder);

} // namespace kavela::desktop
