#pragma once

#include <QString>

class QWidget;

namespace kavela::desktop {

enum class CopyEnd { Done, Cancelled, Failed };

/// Copies a large file with a progress bar and a Cancel button. The copy has its name only once it
/// is whole; an existing file is never replaced.
[[nodiscard]] CopyEnd copyFile(const QString& from, const QString& to, QWidget* over);

} // namespace kavela::desktop
