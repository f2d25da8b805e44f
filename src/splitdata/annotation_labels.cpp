#include "splitdata/annotation_labels.h"

#include "common/text.h"

#include <algorithm>
#include <array>
#include <utility>

namespace kavela {

namespace {

constexpr std::array GateKinds{Label{"downstream", "Downstream gate"},
                               Label{"upstream", "Upstream gate"}, Label{"offset", "Offset gate"},
                               Label{"spin", "Spin gate"}, Label{"singlePole", "Single pole"}};

constexpr std::array PenaltyKinds{Label{"touch", "Touch"},
                                  Label{"missed", "Missed gate"},
                                  Label{"head", "Head outside the gate"},
                                  Label{"direction", "Wrong direction"},
                                  Label{"order", "Wrong order"},
                                  Label{"pushed", "Pole pushed on purpose"},
                                  Label{"upsideDown", "Upside down in the gate"}};

constexpr std::array Poles{Label{"inner", "Inner pole"}, Label{"outer", "Outer pole"},
                           Label{"both", "Both poles"}, Label{"left", "Left pole"},
                           Label{"right", "Right pole"}};

constexpr std::array PenaltyWays{Label{"boat", "Boat"},
                                 Label{"blade", "Blade"},
                                 Label{"body", "Body"},
                                 Label{"head", "Head"},
                                 Label{"bow", "Bow"},
                                 Label{"stern", "Stern"},
                                 Label{"shaft", "Shaft"},
                                 Label{"arm", "Arm"},
                                 Label{"washed", "Washed past the gate"},
                                 Label{"leftOut", "Left out on purpose"}};

constexpr std::array Moments{Label{"entering", "Entering"}, Label{"in", "In the gate"},
                             Label{"leaving", "Leaving"}, Label{"before", "Before the gate"},
                             Label{"after", "After the gate"}};

constexpr std::array BoatDirections{
    Label{"forwards", "Forwards"},           Label{"backwards", "Backwards"},
    Label{"sideways", "Sideways"},           Label{"turningLeft", "Turning left"},
    Label{"turningRight", "Turning right"},  Label{"driftingLeft", "Drifting left"},
    Label{"driftingRight", "Drifting right"}};

/// How a gate or a stretch is paddled.
constexpr std::array PassageStyles{Label{"direct", "Direct line"},       Label{"spin", "Spin"},
                                   Label{"duffek", "Duffek (bow draw)"}, Label{"sweep", "Sweep"},
                                   Label{"sternPivot", "Stern pivot"},   Label{"punt", "Punt"},
                                   Label{"flatTurn", "Flat turn"},       Label{"ferry", "Ferry"},
                                   Label{"reverse", "Reverse"},          Label{"surf", "Surf"}};

constexpr std::array Eyes{Label{"gate", "At the gate"},   Label{"nextGate", "At the next gate"},
                          Label{"pole", "At the pole"},   Label{"water", "At the water"},
                          Label{"blade", "At the blade"}, Label{"bow", "At the bow"},
                          Label{"away", "Elsewhere"}};

constexpr std::array Sides{Label{"left", "Left"}, Label{"right", "Right"}};

constexpr std::array UpstreamStyles{Label{"sternPivot", "Stern pivot"},
                                    Label{"duffek", "Duffek (bow draw)"},
                                    Label{"flatTurn", "Flat turn"},
                                    Label{"punt", "Punt"},
                                    Label{"sweep", "Sweep"},
                                    Label{"spin", "Spin"},
                                    Label{"crossBow", "Cross-bow draw"}};

constexpr std::array StrokeStyles{Label{"forward", "Forward"},
                                  Label{"sweep", "Sweep"},
                                  Label{"duffek", "Duffek (bow draw)"},
                                  Label{"draw", "Draw"},
                                  Label{"reverse", "Reverse"},
                                  Label{"sternRudder", "Stern rudder"},
                                  Label{"brace", "Brace"},
                                  Label{"crossBow", "Cross-bow"},
                                  Label{"punt", "Punt"}};

constexpr std::array GateCombinations{Label{"single", "Single gate"},
                                      Label{"offset", "Offset (stagger)"},
                                      Label{"sTurn", "S-turn"},
                                      Label{"cross", "Cross (ferry)"},
                                      Label{"upstream", "Upstream"},
                                      Label{"upstreamSprint", "Upstream sprint"},
                                      Label{"merano", "Merano"},
                                      Label{"downToUp", "Downstream to upstream"},
                                      Label{"upToDown", "Upstream to downstream"},
                                      Label{"upToUp", "Upstream to upstream"},
                                      Label{"straight", "Straight gates"},
                                      Label{"start", "Start"},
                                      Label{"finish", "Finish sprint"}};

constexpr std::array GateDetails{Label{"approach", "Approach"},
                                 Label{"entrance", "Entrance"},
                                 Label{"in", "In the gate"},
                                 Label{"exit", "Exit"},
                                 Label{"between", "Between the gates"},
                                 Label{"whole", "Whole"}};

constexpr std::array WaterFeatures{Label{"flat", "Flat water"},
                                   Label{"wave", "Wave"},
                                   Label{"stopper", "Stopper (hole)"},
                                   Label{"eddy", "Eddy"},
                                   Label{"eddyLine", "Eddy line"},
                                   Label{"pourover", "Pourover"},
                                   Label{"curtain", "Curtain"},
                                   Label{"drop", "Drop"},
                                   Label{"boil", "Boil"},
                                   Label{"cushion", "Cushion"},
                                   Label{"waveTrain", "Wave train"},
                                   Label{"fastWater", "Fast water"}};

constexpr std::array RollStyles{Label{"sweep", "Sweep roll"}, Label{"cToC", "C-to-C roll"},
                                Label{"hand", "Hand roll"}};

struct NamedList {
    std::string_view name;
    std::span<const Label> labels;
};

/// In the order of LabelList.
constexpr std::array Lists{NamedList{"penalty.gateKind", GateKinds},
                           NamedList{"penalty.kind", PenaltyKinds},
                           NamedList{"penalty.pole", Poles},
                           NamedList{"penalty.way", PenaltyWays},
                           NamedList{"penalty.moment", Moments},
                           NamedList{"penalty.direction", BoatDirections},
                           NamedList{"penalty.style", PassageStyles},
                           NamedList{"penalty.eye", Eyes},
                           NamedList{"upstream.direction", Sides},
                           NamedList{"upstream.style", UpstreamStyles},
                           NamedList{"stroke.hand", Sides},
                           NamedList{"stroke.style", StrokeStyles},
                           NamedList{"loss.gateCombination", GateCombinations},
                           NamedList{"loss.gateDetails", GateDetails},
                           NamedList{"loss.style", PassageStyles},
                           NamedList{"loss.waterFeature", WaterFeatures},
                           NamedList{"roll.direction", Sides},
                           NamedList{"roll.style", RollStyles}};
static_assert(Lists.size() == static_cast<std::size_t>(LabelList::RollStyle) + 1);

const NamedList& find(LabelList list) {
    return Lists[static_cast<std::size_t>(list)];
}

} // namespace

std::span<const Label> labelsOf(LabelList list) {
    return find(list).labels;
}

std::string_view nameOf(LabelList list) {
    return find(list).name;
}

std::string labelOf(LabelList list, std::int64_t code) {
    const std::span<const Label> labels = labelsOf(list);
    if (code < 0 || std::cmp_greater_equal(code, labels.size()))
        return std::to_string(code);
    return std::string(translated(labels[static_cast<std::size_t>(code)].text));
}

std::optional<std::int64_t> codeOf(LabelList list, std::string_view id) {
    const std::span<const Label> labels = labelsOf(list);
    const auto found = std::ranges::find(labels, id, &Label::id);
    return found == labels.end() ? std::nullopt : std::optional(found - labels.begin());
}

std::optional<std::int64_t> penaltySecondsOf(std::int64_t kindCode) {
    if (kindCode < 0 || std::cmp_greater_equal(kindCode, labelsOf(LabelList::PenaltyKind).size()))
        return std::nullopt;
    return kindCode == static_cast<std::int64_t>(PenaltyKindCode::Touch) ? 2 : 50;
}

} // namespace kavela
