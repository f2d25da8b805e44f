#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kavela::fetch {

/// What a page links to.
struct PageLinks {
    std::string base; ///< where its links start from; empty for the page itself
    std::vector<std::string> links;
};

/// The links and films of a page as browsers would read them, however broken the page is: `href` of
/// anchors, `src` of films. What stands in comments and scripts is left out.
[[nodiscard]] PageLinks linksInPage(std::string_view page);

} // namespace kavela::fetch
