#include "common/why.h"

#include "common/why_text.h"

#include <gmock/gmock.h>

namespace kavela::test {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Optional;

constexpr Rule TestedSum{"sum", "All of them.", "a + b", ""};
constexpr Rule TestedHalf{"half", "One of two.", "a / 2", "an old rule"};

double half(double value, Why* why) {
    if (why)
        why->input("whole", value);
    if (why && value != 0)
        why->result(TestedHalf, value / 2, std::to_string(value / 2));
    return value / 2;
}

double sumOfHalves(std::initializer_list<double> values, Why* why) {
    double sum = 0;
    for (const double value : values)
        sum += half(value, why ? why->part() : nullptr);
    if (why)
        why->result(TestedSum, sum, "the sum");
    return sum;
}

} // namespace

TEST(Why, KeepsTheNumbersOnTheWayInTheirOrder) {
    Why why;
    const double sum = sumOfHalves({2, 4, 8, 16, 32}, &why);
    const Reason reason = why.reason();
    EXPECT_EQ(reason.rule, &TestedSum);
    EXPECT_EQ(reason.value, sum);
    EXPECT_EQ(reason.shown, "the sum");
    ASSERT_EQ(reason.parts.size(), 5U);
    for (std::size_t i = 0; i < 5; ++i) {
        EXPECT_EQ(reason.parts[i].rule, &TestedHalf);
        EXPECT_EQ(reason.parts[i].inputs.at(0).value, static_cast<double>(2U << i));
    }
    EXPECT_EQ(sumOfHalves({2, 4}, nullptr), 3) << "the same with nobody asking";
}

TEST(Why, KeepsPlacesUncertaintyAndNotes) {
    Why why;
    const Place place{"a.kvx", 50, 5, {}, {}, CMTime{2441, 50, 1, 0}};
    why.input("own", 11.64, place);
    why.input("winner", 10.62);
    why.uncertain({1.0, 1.04}, "half a frame, two marks");
    why.note("a run without a time is left out");
    const Reason reason = why.reason();
    EXPECT_EQ(reason.rule, nullptr) << "no number was told yet";
    ASSERT_EQ(reason.inputs.size(), 2U);
    EXPECT_THAT(reason.inputs[0].place, Optional(place));
    EXPECT_EQ(reason.inputs[1].place, std::nullopt);
    EXPECT_THAT(reason.uncertainty, Optional(Interval{1.0, 1.04}));
    EXPECT_THAT(reason.notes, ElementsAre("a run without a time is left out"));
}

TEST(Why, LeavesOutPartsThatToldNothing) {
    Why why;
    (void)why.part();
    (void)half(3, why.part()->part());
    (void)why.part()->part();
    const Reason reason = why.reason();
    ASSERT_EQ(reason.parts.size(), 1U);
    EXPECT_EQ(reason.parts[0].rule, nullptr);
    EXPECT_EQ(reason.parts[0].parts.at(0).value, 1.5) << "a part of a part";
}

/// A word is not rounded, a count has no hundredths, a time of whole seconds in a file has.
TEST(WhyText, ShowsNumbersAsWhatTheyAre) {
    Why why;
    why.input("races", 4);
    why.input("own", 96, Place{"day/race.kvx", 5, 3, {}, {}, {}});
    why.result(TestedHalf, 1.0200000000000014, "+1.02");
    const std::string text = whyText(why.reason());
    EXPECT_THAT(text, HasSubstr("shown +1.02 of 1.0200000000000014"));
    EXPECT_THAT(text, HasSubstr(" 4\n"));
    EXPECT_THAT(text, HasSubstr("96.00  race.kvx · run 5 · split 3\n"));
    Place cell{"day/final.csv", 0, {}, {}, {}, {}};
    cell.line = 12;
    cell.column = 4;
    EXPECT_EQ(placeText(cell), "final.csv · line 12 · column 4");
    cell.file.clear();
    EXPECT_EQ(placeText(cell), "line 12 · column 4") << "what was copied has no file";
    EXPECT_EQ(inputText({"Pen", 2, cell}), "2") << "a list has whole numbers of its own";
    why.result(TestedHalf, 2, "Medalist");
    EXPECT_EQ(roundingText(why.reason()), "");
}

} // namespace kavela::test
