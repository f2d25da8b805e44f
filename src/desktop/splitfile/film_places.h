#pragma once

#include <QStringList>

namespace kavela::desktop {

struct TakingState;
class Workspace;

/// Films belong into the folder of their split file, which knows them by bare names. Where they
/// were moved elsewhere, the folders that the coach named are remembered for that file.

/// The names of all films of the runs and of the cross race.
[[nodiscard]] QStringList filmNames(const TakingState& state);

/// The path of a film of a split file: in the file's folder, otherwise in a folder remembered for
/// it. In the file's folder when it is in none of them.
[[nodiscard]] QString placeOfFilm(const Workspace& workspace, const QString& splitFile,
                                  const QString& name);

/// Looks for films by their names in a folder and those within it, and remembers for the split file
/// where they are. Returns the names that were not found.
[[nodiscard]] QStringList findFilms(Workspace& workspace, const QString& splitFile,
                                    const QString& folder, const QStringList& names);

} // namespace kavela::desktop
