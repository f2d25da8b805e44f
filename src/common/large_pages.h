#pragma once

#include <cstddef>

namespace kavela {

/// Asks the system to back memory that is about to be filled from its start with pages of
/// megabytes, where it is large enough for some; it may decline. In small pages, reading a long
/// recording spends a third of its time on being given them one by one.
void preferLargePages(void* memory, std::size_t size);

} // namespace kavela
