#pragma once

namespace kavela::test {

/// How long a test waits for a film at most, in milliseconds.
inline constexpr int Patience = 20000;

} // namespace kavela::test
