#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace kavela::fetch {

/// A run whose film is wanted, as a list or a split file tells of it.
struct FetchRun {
    std::int64_t bib = 0;           ///< above 0
    std::vector<std::string> names; ///< of the crew; none where the list has none
    std::string category;           ///< empty where it is not told, like what follows
    std::string phase;
    std::int64_t run = 0; ///< counted from 1; 0 where it is not told

    friend bool operator==(const FetchRun&, const FetchRun&) = default;
};

} // namespace kavela::fetch
