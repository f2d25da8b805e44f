#pragma once

#include "common/error.h"

namespace kavela {

/// A video file that cannot be opened, or of which nothing can be shown, with the reason.
class VideoError : public FileError {
public:
    using FileError::FileError;
};

} // namespace kavela
