#pragma once

#include <QString>

namespace kavela::desktop {

class WorkSteps;

enum class CopyEnd { Done, Cancelled, Failed };

/// Copies a large file, as a piece of work beside the window. The copy has its name only once it is
/// whole; an existing file is never replaced.
[[nodiscard]] CopyEnd copyFile(const QString& from, const QString& to, const WorkSteps& steps);

} // namespace kavela::desktop
