#include "video/machine_memory.h"

#include <unistd.h>

#include <algorithm>

namespace kavela {

namespace {

/// Some seconds of three cameras around the place that is looked at.
constexpr std::size_t Plenty = std::size_t{768} << 20U;

} // namespace

std::size_t machineMemory() {
    const long pages = ::sysconf(_SC_PHYS_PAGES);
    const long bytes = ::sysconf(_SC_PAGE_SIZE);
    return pages > 0 && bytes > 0
               ? static_cast<std::size_t>(pages) * static_cast<std::size_t>(bytes)
               : 0;
}

std::size_t frameMemory(std::size_t machineBytes) {
    return machineBytes == 0 ? Plenty : std::min(machineBytes / 4, Plenty);
}

} // namespace kavela
