#pragma once

#include <stdexcept>

namespace kavela {

/// Something that cannot be tracked or measured as it was asked for, in a sentence.
class TrackError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

} // namespace kavela
