#include "common/large_pages.h"

#include <sys/mman.h>

#include <cstdint>

namespace kavela {

void preferLargePages(void* memory, std::size_t size) {
    constexpr std::uintptr_t SmallPage = 4096; // advice is given for whole ones
    constexpr std::size_t Worthwhile = std::size_t{4} << 20;
    if (size < Worthwhile)
        return;
    const auto start = reinterpret_cast<std::uintptr_t>(memory);
    const std::uintptr_t begin = (start + SmallPage - 1) / SmallPage * SmallPage;
    const std::uintptr_t end = (start + size) / SmallPage * SmallPage;
    ::madvise(reinterpret_cast<void*>(begin), end - begin, MADV_HUGEPAGE);
}

} // namespace kavela
