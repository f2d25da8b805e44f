#pragma once

#include "boatmotion/sessions.h"
#include "splitdata/document.h"

#include <string>
#include <string_view>
#include <vector>

/// Documents as older releases wrote them: what they did not know is left out, what they kept in
/// another shape is put back into it.
namespace kavela::sample {

struct OldFile {
    std::string_view release; ///< "0.28"
    std::string text;
};

/// One race of former seasons for each of several releases, newest first.
[[nodiscard]] std::vector<OldFile> filesOfOldReleases();

/// A recording of today as phones wrote it up to version 4.
[[nodiscard]] bmrawdata_v4 asVersion4(bmrawdata_v5 session);

} // namespace kavela::sample
