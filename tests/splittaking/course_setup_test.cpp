#include "splittaking/course_setup.h"

#include <gmock/gmock.h>

namespace kavela::test {

namespace {
using testing::ElementsAre;
using testing::IsEmpty;
} // namespace

TEST(CourseSetup, SharesTheGatesEvenly) {
    struct Row {
        std::int64_t gates;
        std::int64_t splits;
        std::vector<std::string> titles;
    };
    for (const Row& row :
         {Row{18, 7, {"1-3", "4-6", "7-9", "10-12", "13-14", "15-16", "17-18"}},
          Row{6, 3, {"1-2", "3-4", "5-6"}}, Row{3, 3, {"1", "2", "3"}},
          Row{2, 4, {"1", "2", "S3", "S4"}}, Row{0, 1, {"S1"}}, Row{5, 0, {}}, Row{-5, -3, {}}}) {
        const CourseSections sections = defaultSections(row.gates, row.splits);
        EXPECT_EQ(sectionTitles(sections), row.titles);
        infodata031 course;
        course.gates = row.splits > 0 ? row.gates : 0;
        course.totalsplits = row.splits;
        course.definedsections = sections;
        EXPECT_EQ(faultOfSections(course), std::nullopt);
    }
    EXPECT_LT(defaultSections(INT64_MAX, INT64_MAX).size(), 10000U);
}

TEST(CourseSetup, ReadsNumbersStrictly) {
    EXPECT_EQ(parseGates(" 18\t"), 18);
    EXPECT_EQ(parseGates("0"), 0);
    for (const char* text : {"", " ", "eighteen", "18.0", "-1", "1000", "18 gates", "1e1", "+5"})
        EXPECT_EQ(parseGates(text), std::nullopt) << text;
}

TEST(CourseSetup, ReadsListsOfGates) {
    EXPECT_THAT(parseGateList("3, 7 12;3,", 18).gates, ElementsAre(3, 7, 12));
    EXPECT_THAT(parseGateList(" ", 18).fault, IsEmpty());
    struct Row {
        const char* text;
        const char* fault;
    };
    for (const Row& row :
         {Row{"3 x7", "\"x7\" is no gate number."}, Row{"3-5", "\"3-5\" is no gate number."},
          Row{"3 19", "Gate 19 is not on a course of 18 gates."},
          Row{"0", "Gate 0 is not on a course of 18 gates."}}) {
        EXPECT_EQ(parseGateList(row.text, 18).fault, row.fault);
        EXPECT_THAT(parseGateList(row.text, 18).gates, IsEmpty());
    }
}

TEST(CourseSetup, SaysWhatIsWrongWithSections) {
    struct Row {
        CourseSections sections;
        const char* fault;
    };
    for (const Row& row :
         {Row{{{1, 2}, {2, 3, 4}}, "Gate 2 stands a second time or out of order in section 2."},
          Row{{{1, 2}, {4}}, "Gate 3 is missing before gate 4 in section 2."},
          Row{{{1, 3}, {2, 4}}, "Gate 2 is missing before gate 3 in section 1."},
          Row{{{1, 2}, {3}}, "Gate 4 stands in no section."},
          Row{{{1, 2}, {3, 4, 5}}, "Gate 5 is not on a course of 4 gates."},
          Row{{{0}, {1}}, "Gate 0 is not on a course of 4 gates."},
          Row{{{1, 2, 3, 4}}, "The number of sections is 1, but that of splits is 2."}}) {
        infodata031 course;
        course.gates = 4;
        course.totalsplits = 2;
        course.definedsections = row.sections;
        EXPECT_EQ(faultOfSections(course), row.fault);
    }
    EXPECT_EQ(faultOfSections({}), std::nullopt);
}

} // namespace kavela::test
