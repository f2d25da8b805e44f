#pragma once

#include "splittaking/annotations/gate_marks.h"

#include <QString>

namespace kavela::desktop {

/// What a mark of an upstream gate is called within a sentence.
[[nodiscard]] QString gateMarkText(GateMark which);

} // namespace kavela::desktop
