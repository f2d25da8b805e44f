#pragma once

#include "facts/query_text.h"

#include <QStringList>

namespace kavela::desktop {

/// A sentence for each athlete that a query asks for and nobody in the files is called, with the
/// likest names.
[[nodiscard]] QStringList unknownNameSentences(const Query& query, const FactStore& facts);

} // namespace kavela::desktop
