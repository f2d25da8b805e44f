#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

/// The words behind the codes of annotations: a split file stores a place in one of these lists,
/// counted from 0. A list only ever grows at its end, since files in the field hold its places.
namespace kavela {

/// One list for each kind of code.
enum class LabelList {
    PenaltyGateKind,     ///< `pendata030::gatekind`
    PenaltyKind,         ///< `pendata030::penkind`
    PenaltyPole,         ///< `pendata030::polekind`
    PenaltyWay,          ///< `pendata030::penway`: what touched, or how the gate was missed
    PenaltyMoment,       ///< `pendata030::moment`
    PenaltyDirection,    ///< `pendata030::direction`: how the boat was moving
    PenaltyStyle,        ///< `pendata030::style`
    PenaltyEye,          ///< `pendata030::eye`
    UpstreamDirection,   ///< `upstreamdata025::direction`: the side to which the boat turns
    UpstreamStyle,       ///< `upstreamdata025::style`
    StrokeHand,          ///< `strokessdata025::hand`
    StrokeStyle,         ///< `strokessdata025::style`
    LossGateCombination, ///< `timeloss031::gateCombination`
    LossGateDetails,     ///< `timeloss031::gateDetails`: the part of the gate
    LossStyle,           ///< `timeloss031::style`
    LossWaterFeature,    ///< `timeloss031::waterFeature`
    RollDirection,       ///< `ttroll030::direction`
    RollStyle            ///< `ttroll030::style`
};

/// Codes of `penkind` that programs ask for by name; those after them are missed gates too.
enum class PenaltyKindCode : std::int64_t { Touch = 0, MissedGate = 1 };

/// Codes of `hand` of a stroke.
enum class HandCode : std::int64_t { Left = 0, Right = 1 };

/// An entry of a list: an id, unique within the list, and the English text.
struct Label {
    std::string_view id;
    std::string_view text;
};

/// The entries of a list, by code.
[[nodiscard]] std::span<const Label> labelsOf(LabelList list);

/// The list's name, the first part of a translation's key: "penalty.kind".
[[nodiscard]] std::string_view nameOf(LabelList list);

/// The text of a code in the language of the program; the number as text for a code that is not in
/// the list.
[[nodiscard]] std::string labelOf(LabelList list, std::int64_t code);

/// The code behind an id; nothing when the list has none such.
[[nodiscard]] std::optional<std::int64_t> codeOf(LabelList list, std::string_view id);

/// Penalty seconds of a kind of penalty: 2 for a touch, 50 for every way of missing a gate. Nothing
/// for a code that is not in the list.
[[nodiscard]] std::optional<std::int64_t> penaltySecondsOf(std::int64_t kindCode);

} // namespace kavela
