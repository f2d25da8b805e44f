#pragma once

#include "splitdata/document.h"

#include <string>

namespace kavela {

/// The split table of a document as semicolon-separated text: "Name;Phase;", time and penalty of
/// each split (S1;P1; …), "Total;P", then a line for each run. Times stand as the shortest plain
/// decimal text that reads back the same, missing ones as 0.
/// Throws EncodeError when the course claims more splits than a table can have.
[[nodiscard]] std::string splitTableCsv(const splittakerdata031& document);

} // namespace kavela
