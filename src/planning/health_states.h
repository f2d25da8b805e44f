#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

/// What the health of a week can be: its number in `health` is the place in this list. A number
/// that was stored keeps its meaning, so that the list may only grow at its end.
namespace kavela {

inline constexpr std::array<std::string_view, 4> HealthStates{"Healthy", "Sore or tired", "Injured",
                                                              "Ill"};

/// The label of a state; "State 9" for one of a file that knows more of them.
[[nodiscard]] inline std::string healthState(std::int64_t state) {
    return state >= 0 && state < static_cast<std::int64_t>(HealthStates.size())
               ? std::string(HealthStates[static_cast<std::size_t>(state)])
               : "State " + std::to_string(state);
}

} // namespace kavela
