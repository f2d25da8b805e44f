#pragma once

#include "fetch/web_rules.h"

namespace kavela::test {

/// A network whose seconds take two milliseconds.
inline constexpr fetch::WebPace Fast{.silenceMilliseconds = 400, .secondMilliseconds = 2};

} // namespace kavela::test
