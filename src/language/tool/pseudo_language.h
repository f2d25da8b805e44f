#pragma once

#include "language/tool/ts_file.h"

#include <string>
#include <string_view>

namespace kavela::catalogue {

/// A text twice as long with accents on its letters. What a program fills in or acts on stays as it
/// is: %1, %n, {}, {0:.2f}, &File, <b>, &amp;.
[[nodiscard]] std::string pseudoText(std::string_view text);

/// Every text of a catalogue in that language, finished.
[[nodiscard]] Catalogue pseudoCatalogue(const Catalogue& source);

} // namespace kavela::catalogue
