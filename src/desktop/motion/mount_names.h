#pragma once

#include <QStringList>

namespace kavela::desktop {

/// The mounts of a phone, as a coach names them: one for each value of Mount, in that order.
[[nodiscard]] QStringList mountNames();

} // namespace kavela::desktop
