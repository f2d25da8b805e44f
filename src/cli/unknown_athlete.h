#pragma once

#include "facts/fact_store.h"

#include <string>

namespace kavela::cli {

/// Tells that nobody of the files is called so, with the nearest names. The category is how it was
/// asked for; empty for all.
void logUnknownAthlete(const FactStore& facts, const std::string& athlete,
                       const std::string& category);

} // namespace kavela::cli
