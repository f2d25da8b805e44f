#include "common/display_text.h"
#include "common/parallel.h"
#include "common/percentile.h"

#include <gmock/gmock.h>
#include <simdjson.h>

#include <cmath>
#include <random>

namespace kavela::test {

namespace {
using testing::Each;
} // namespace

TEST(Percentile, InterpolatesBetweenTheClosestRanks) {
    struct Row {
        std::vector<double> values;
        double fraction;
        double percentile;
    };
    for (const Row& row : {Row{{1, 2, 3, 4}, 0.25, 1.75}, Row{{15, 20, 35, 40, 50}, 0.4, 29},
                           Row{{1, 3}, 0.5, 2}, Row{{7}, 0, 7}, Row{{7}, 0.9, 7}, Row{{7}, 1, 7},
                           Row{{-4, 0, 4}, 0.25, -2}, Row{{1, 2, 10}, 0, 1}, Row{{1, 2, 10}, 1, 10},
                           Row{{10, 20, 30, 40}, 0.9, 37}, Row{{5, 5, 5}, 0.3, 5}})
        EXPECT_DOUBLE_EQ(percentile(row.values, row.fraction), row.percentile);
}

TEST(DisplayText, MeasuresWhatATerminalShows) {
    struct Row {
        const char* text;
        int width;
        const char* inFour;
    };
    for (const Row& row :
         {Row{"", 0, "    "}, Row{"abc", 3, "abc "}, Row{"abcde", 5, "abc…"},
          Row{"日本", 4, "日本"}, Row{"日本語", 6, "日… "},
          Row{"e\u0301te\u0301", 3, "e\u0301te\u0301 "}, Row{"\U0001F6F6", 2, "\U0001F6F6  "},
          Row{"Šárka", 5, "Šár…"}, Row{"a\u200Bb", 2, "a\u200Bb  "}}) {
        EXPECT_EQ(displayWidth(row.text), row.width) << row.text;
        EXPECT_EQ(fitted(row.text, 4), row.inFour);
    }
    EXPECT_EQ(rightAligned("日", 4), "  日");
    EXPECT_EQ(rightAligned("abcde", 4), "abcde");
}

TEST(DisplayText, LeavesNothingThatSteersATerminal) {
    EXPECT_EQ(printable("a\x1b[2Jb\tc\r\n\x7f"), "a [2Jb c   ");
    EXPECT_EQ(printable("\u009b2J \u202Eabc\u2066"), " 2J  abc ");
    EXPECT_EQ(printable("\x9b"), "\uFFFD");
    EXPECT_EQ(printable(std::string("\0a", 2)), " a");
    EXPECT_EQ(printable("Šárka 日本"), "Šárka 日本");
}

TEST(DisplayText, MakesValidUtf8OfAnyBytes) {
    std::vector<std::string> texts{"\xc0\xaf", "\xed\xa0\x80",         "\xf4\x90\x80\x80",
                                   "\xe2\x82", "\xf8\x88\x80\x80\x80", "caf\xe9 X",
                                   "é\xff日"};
    std::mt19937 dice(3);
    for (int i = 0; i < 2000; ++i) {
        std::string& text = texts.emplace_back();
        for (auto left = dice() % 12; left > 0; --left)
            text += static_cast<char>(dice() % 3 == 0 ? 'a' + dice() % 26 : dice() % 256);
    }
    for (const std::string& text : texts) {
        const std::string valid = validUtf8(text);
        ASSERT_TRUE(simdjson::validate_utf8(valid)) << testing::PrintToString(text);
        ASSERT_TRUE(simdjson::validate_utf8(printable(text))) << testing::PrintToString(text);
        ASSERT_EQ(valid == text, simdjson::validate_utf8(text)) << testing::PrintToString(text);
        ASSERT_EQ(displayWidth(fitted(printable(text), 6)), 6) << testing::PrintToString(text);
    }
    EXPECT_EQ(validUtf8("é\xff日"), "é\uFFFD日");
}

TEST(ParallelFor, DoesEveryStepOnce) {
    std::vector<std::atomic<int>> calls(1000);
    parallelFor(calls.size(), [&](std::size_t i) { ++calls[i]; });
    EXPECT_THAT(std::vector<int>(calls.begin(), calls.end()), Each(1));
    parallelFor(0, [](std::size_t) { FAIL(); });
}

TEST(ParallelFor, PassesAFailureOnAndStops) {
    for (int round = 0; round < 50; ++round) {
        std::atomic<int> calls = 0;
        EXPECT_THROW(parallelFor(100000,
                                 [&](std::size_t i) {
                                     ++calls;
                                     if (i % 7 == 3)
                                         throw std::runtime_error("seventh");
                                 }),
                     std::runtime_error);
        EXPECT_LT(calls, 100000);
    }
}

} // namespace kavela::test
