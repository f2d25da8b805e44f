#pragma once

#include "fetch/address.h"
#include "update/signature.h"

#include <optional>

namespace kavela::update {

/// Where newer versions are told of, and who signs for them.
struct UpdateSource {
    fetch::Address manifest; ///< the signature lies beside it, ".sig" behind its name
    PublicKey key{};
};

/// What this program was built with. Nothing where it was built without an address.
[[nodiscard]] std::optional<UpdateSource> builtInUpdateSource();

} // namespace kavela::update
