#include "splitdata/annotation_labels.h"

#include <gmock/gmock.h>

#include <set>

namespace kavela::test {

namespace {

using testing::StartsWith;

constexpr auto LastList = static_cast<int>(LabelList::RollStyle);

/// "id=text|id=text": a list in one line, as released.
std::string lineOf(LabelList list) {
    std::string line;
    for (const Label& label : labelsOf(list))
        line += (line.empty() ? "" : "|") + std::string(label.id) + "=" + std::string(label.text);
    return line;
}

struct Row {
    LabelList list;
    const char* name;
    const char* line;
};

constexpr const char* Sides = "left=Left|right=Right";
constexpr const char* Passages =
    "direct=Direct line|spin=Spin|duffek=Duffek (bow draw)|sweep=Sweep|sternPivot=Stern pivot|"
    "punt=Punt|flatTurn=Flat turn|ferry=Ferry|reverse=Reverse|surf=Surf";

/// Files in the field hold places of these lists: a line may only grow at its end.
const Row Released[] = {
    {LabelList::PenaltyGateKind, "penalty.gateKind",
     "downstream=Downstream gate|upstream=Upstream gate|offset=Offset gate|spin=Spin gate|"
     "singlePole=Single pole"},
    {LabelList::PenaltyKind, "penalty.kind",
     "touch=Touch|missed=Missed gate|head=Head outside the gate|direction=Wrong direction|"
     "order=Wrong order|pushed=Pole pushed on purpose|upsideDown=Upside down in the gate"},
    {LabelList::PenaltyPole, "penalty.pole",
     "inner=Inner pole|outer=Outer pole|both=Both poles|left=Left pole|right=Right pole"},
    {LabelList::PenaltyWay, "penalty.way",
     "boat=Boat|blade=Blade|body=Body|head=Head|bow=Bow|stern=Stern|shaft=Shaft|arm=Arm|"
     "washed=Washed past the gate|leftOut=Left out on purpose"},
    {LabelList::PenaltyMoment, "penalty.moment",
     "entering=Entering|in=In the gate|leaving=Leaving|before=Before the gate|"
     "after=After the gate"},
    {LabelList::PenaltyDirection, "penalty.direction",
     "forwards=Forwards|backwards=Backwards|sideways=Sideways|turningLeft=Turning left|"
     "turningRight=Turning right|driftingLeft=Drifting left|driftingRight=Drifting right"},
    {LabelList::PenaltyStyle, "penalty.style", Passages},
    {LabelList::PenaltyEye, "penalty.eye",
     "gate=At the gate|nextGate=At the next gate|pole=At the pole|water=At the water|"
     "blade=At the blade|bow=At the bow|away=Elsewhere"},
    {LabelList::UpstreamDirection, "upstream.direction", Sides},
    {LabelList::UpstreamStyle, "upstream.style",
     "sternPivot=Stern pivot|duffek=Duffek (bow draw)|flatTurn=Flat turn|punt=Punt|sweep=Sweep|"
     "spin=Spin|crossBow=Cross-bow draw"},
    {LabelList::StrokeHand, "stroke.hand", Sides},
    {LabelList::StrokeStyle, "stroke.style",
     "forward=Forward|sweep=Sweep|duffek=Duffek (bow draw)|draw=Draw|reverse=Reverse|"
     "sternRudder=Stern rudder|brace=Brace|crossBow=Cross-bow|punt=Punt"},
    {LabelList::LossGateCombination, "loss.gateCombination",
     "single=Single gate|offset=Offset (stagger)|sTurn=S-turn|cross=Cross (ferry)|"
     "upstream=Upstream|upstreamSprint=Upstream sprint|merano=Merano|"
     "downToUp=Downstream to upstream|upToDown=Upstream to downstream|"
     "upToUp=Upstream to upstream|straight=Straight gates|start=Start|finish=Finish sprint"},
    {LabelList::LossGateDetails, "loss.gateDetails",
     "approach=Approach|entrance=Entrance|in=In the gate|exit=Exit|between=Between the gates|"
     "whole=Whole"},
    {LabelList::LossStyle, "loss.style", Passages},
    {LabelList::LossWaterFeature, "loss.waterFeature",
     "flat=Flat water|wave=Wave|stopper=Stopper (hole)|eddy=Eddy|eddyLine=Eddy line|"
     "pourover=Pourover|curtain=Curtain|drop=Drop|boil=Boil|cushion=Cushion|"
     "waveTrain=Wave train|fastWater=Fast water"},
    {LabelList::RollDirection, "roll.direction", Sides},
    {LabelList::RollStyle, "roll.style", "sweep=Sweep roll|cToC=C-to-C roll|hand=Hand roll"}};

} // namespace

TEST(AnnotationLabels, KeepTheirPlacesForEver) {
    ASSERT_EQ(std::size(Released), static_cast<std::size_t>(LastList) + 1);
    for (const Row& row : Released) {
        EXPECT_EQ(nameOf(row.list), row.name);
        EXPECT_THAT(lineOf(row.list), StartsWith(row.line)) << row.name;
    }
}

TEST(AnnotationLabels, ShowCodesBeyondAListAsNumbers) {
    EXPECT_EQ(labelOf(LabelList::PenaltyMoment, 2), "Leaving");
    for (int list = 0; list <= LastList; ++list) {
        const auto which = static_cast<LabelList>(list);
        const auto size = static_cast<std::int64_t>(labelsOf(which).size());
        for (const std::int64_t code : {size, size + 1, std::int64_t{-1}, INT64_MAX, INT64_MIN})
            EXPECT_EQ(labelOf(which, code), std::to_string(code)) << nameOf(which);
        std::set<std::string_view> ids;
        for (std::int64_t code = 0; code < size; ++code) {
            const Label& label = labelsOf(which)[static_cast<std::size_t>(code)];
            EXPECT_TRUE(ids.insert(label.id).second) << nameOf(which) << ' ' << label.id;
            EXPECT_EQ(codeOf(which, label.id), code);
        }
    }
    EXPECT_EQ(codeOf(LabelList::StrokeHand, "foot"), std::nullopt);
}

TEST(AnnotationLabels, KnowWhatAPenaltyCosts) {
    EXPECT_EQ(penaltySecondsOf(*codeOf(LabelList::PenaltyKind, "touch")), 2);
    for (const char* id : {"missed", "head", "direction", "order", "pushed", "upsideDown"})
        EXPECT_EQ(penaltySecondsOf(*codeOf(LabelList::PenaltyKind, id)), 50) << id;
    for (const std::int64_t code : {-1, 7, 99})
        EXPECT_EQ(penaltySecondsOf(code), std::nullopt);
}

} // namespace kavela::test
