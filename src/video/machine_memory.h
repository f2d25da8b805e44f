#pragma once

#include <cstddef>

namespace kavela {

/// The memory of this machine in bytes; 0 where it does not tell.
[[nodiscard]] std::size_t machineMemory();

/// What decoded frames of all films together may take on a machine with so much memory, in bytes: a
/// quarter of it, and no more than serves to step and play smoothly.
[[nodiscard]] std::size_t frameMemory(std::size_t machineBytes);

} // namespace kavela
