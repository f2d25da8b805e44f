#pragma once

namespace kavela::test {

/// How far a figure may be from that of the model.
inline constexpr double Close = 1e-9;

} // namespace kavela::test
