#pragma once

#include "vision/slit_file.h"

namespace kavela::films {

/// The lines over the film of the camera on a tripod, at start and finish, with a box as large as a
/// boat: what somebody who opens its slit picture would draw first.
[[nodiscard]] slitfile002 sprintLines();

} // namespace kavela::films
