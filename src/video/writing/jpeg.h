#pragma once

#include "video/picture.h"

#include <string>

namespace kavela {

/// The bytes of a JPEG file of a picture; empty where none can be made.
[[nodiscard]] std::string jpegOf(const Picture& picture);

} // namespace kavela
