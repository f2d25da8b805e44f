#pragma once

#include "common/reference_date.h"

#include <cstdint>

namespace kavela {

/// Days since 2001-01-01.
[[nodiscard]] double seasonDay(ReferenceDate date);

/// 0 for a date that is none.
[[nodiscard]] std::int64_t yearOfDate(ReferenceDate date);

} // namespace kavela
