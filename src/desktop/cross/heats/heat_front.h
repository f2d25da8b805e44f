#pragma once

#include "splitdata/cross_records.h"

#include <optional>
#include <string>
#include <vector>

namespace kavela::desktop {

/// A moment of a heat: that of an order, or the start or the end of an attack.
struct HeatMark {
    bool isOrder = true;
    std::size_t record = 0;
    std::size_t entry = 0; ///< of an attack: 0 is its start, 1 its end

    friend bool operator==(const HeatMark&, const HeatMark&) = default;
};

/// What is in front on the page of heats.
struct HeatFront {
    /// What a number names.
    enum class Naming { Nothing, Order, Attacker, Defenders };

    std::optional<std::size_t> heat; ///< its place in the file
    std::size_t gate = 0;            ///< its place on the course
    std::optional<HeatMark> selected;
    std::optional<std::vector<std::string>> draft; ///< of the gate in front, not taken yet
    Naming naming = Naming::Nothing;

    /// An order that is not taken yet gives way.
    void dropDraft();
};

/// A heat as it comes to the front: at its first gate without an order.
[[nodiscard]] HeatFront openedHeat(const crossdata030& cross, std::optional<std::size_t> heat);

/// What stays in front after something else than the page changed the cross race, such as undoing:
/// the heat, gate and mark in front are looked for, and given up when they are gone. Keys must not
/// act on what took their place.
[[nodiscard]] HeatFront followedFront(HeatFront front, const crossdata030& before,
                                      const crossdata030& now);

} // namespace kavela::desktop
