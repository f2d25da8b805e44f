#pragma once

#include "update/update_rules.h"
#include "update/update_source.h"

#include <QString>

#include <optional>

namespace kavela::desktop {

class Workspace;

/// What the coach said about newer versions of the program, and what is remembered of them.

[[nodiscard]] update::LookHabit lookHabit(const Workspace& workspace);
void setMayLook(Workspace& workspace, bool mayLook);
/// Seconds since 1970.
void setLastLook(Workspace& workspace, std::int64_t when);

/// What is known when a manifest comes, beside the version of the program itself.
[[nodiscard]] update::KnownVersions knownVersions(const Workspace& workspace,
                                                  const update::Version& own);
/// Remembers a version that a believed manifest told of, where it is the newest so far.
void noteSeen(Workspace& workspace, const update::Version& version);
void skipVersion(Workspace& workspace, const update::Version& version);

/// The address that was chosen in place of the one that the program was built with; empty for none.
[[nodiscard]] QString chosenUpdateAddress(const Workspace& workspace);
/// False for what is no address that may be asked; an empty text goes back to the built-in one.
[[nodiscard]] bool chooseUpdateAddress(Workspace& workspace, const QString& text);
/// Where to look. The key is always that of the program: another server has to give out what the
/// same people signed.
[[nodiscard]] std::optional<update::UpdateSource> updateSource(const Workspace& workspace);

} // namespace kavela::desktop
