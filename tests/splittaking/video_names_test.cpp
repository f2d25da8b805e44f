#include "splittaking/video_names.h"

#include <gmock/gmock.h>

namespace kavela::test {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

/// "NAME + NAME|category|phase|bib|number".
std::string told(const FilmFacts& facts) {
    std::string text;
    for (const std::string& name : facts.names)
        text += (text.empty() ? "" : " + ") + name;
    const auto number = [](std::optional<int> n) { return n ? std::to_string(*n) : ""; };
    return text + '|' + facts.category + '|' + facts.phase + '|' + number(facts.bib) + '|' +
           number(facts.number);
}

} // namespace

TEST(VideoNames, KnowsFilmsByTheirExtension) {
    for (const char* name : {"a.MOV", "a b.mp4", "x.y.M2TS", "clip.3gp", "x.mts.webm"})
        EXPECT_TRUE(isVideoFile(name)) << name;
    for (const char* name : {"a.kvx", "mov", "a.mov.txt", ".mov", "._a.MOV", "", "a.", "a.thm"})
        EXPECT_FALSE(isVideoFile(name)) << name;
}

TEST(VideoNames, AreReadWithoutBeingTold) {
    struct Row {
        const char* film;
        const char* told;
    };
    for (const Row& row : {
             Row{"Ann Lee Heats.MOV", "Ann Lee||Heats||"},
             Row{"ann_lee_heat1.mp4", "ann lee||Heat 1||"},
             Row{"Ann.Lee.Semi-Final.MTS", "Ann Lee||Semifinal||"},
             Row{"Ann Lee semi final 2.mov", "Ann Lee||Semifinal 2||"},
             Row{"Ann Lee 2nd run.mov", "Ann Lee||Run 2||"},
             Row{"Ann Lee H2.mov", "Ann Lee||Heat 2||"},
             Row{"Ann Lee 03.mov", "Ann Lee||3||3"},
             Row{"Ann Lee.mov", "Ann Lee||||"},
             Row{"Lee.mov", "Lee||||"},
             Row{"K1W Ann Lee Final.mov", "Ann Lee|K1W|Final||"},
             Row{"K1W-Lee-Final.mov", "Lee|K1W|Final||"},
             Row{"Anne-Marie Lee k1 women u23 finals.mov", "Anne-Marie Lee|K1WU23|Final||"},
             Row{"MK1 Lee R1.mov", "Lee|K1M|Run 1||"},
             Row{"14 Ann Lee K-1 W run 1.mov", "Ann Lee|K1W|Run 1|14|"},
             Row{"Ann Lee bib 14 Final.mov", "Ann Lee||Final|14|"},
             Row{"Ann Lee #14 Final Run 2.mov", "Ann Lee||Final Run 2|14|"},
             Row{"Kuba Zak - Ola Mean Heats.MOV", "Kuba Zak + Ola Mean||Heats||"},
             Row{"Kuba+Ola C2X.MOV", "Kuba + Ola|C2X|||"},
             Row{"C2M - Kuba & Jan - Final.MOV", "Kuba + Jan|C2M|Final||"},
             Row{"riverside Owen Final cam 2.MOV", "riverside Owen||Final||"},
             Row{"2018 Joren Heats.MOV", "Joren||Heats||"},
             Row{"20240511_Ann_Lee_Run_1_2.mp4", "Ann Lee||Run 1||2"},
             Row{"2024-05-11 Ann Lee Final (1).mov", "Ann Lee||Final||"},
             Row{"IMG_0231.MOV", "||||"},
             Row{"GX010023.MP4", "||||"},
             Row{"VID_20240511_101500.mp4", "||||"},
             Row{"Vid Kuder 2024 Heats.mp4", "Vid Kuder||Heats||"},
             Row{"Šárka Nová Demi.mov", "Šárka Nová Demi||||"},
             Row{"瀬音 ひなた X1 time trial.mov", "瀬音 ひなた|X1|Time trial||"},
             Row{".mov", "mov||||"},
             Row{"", "||||"},
             Row{"- _ - .mov", "||||"},
         })
        EXPECT_EQ(told(filmFacts(row.film)), row.told) << row.film;
}

TEST(VideoNames, AreReadByThePatternOfTheCoach) {
    struct Row {
        const char* pattern;
        const char* film;
        const char* told;
    };
    for (const Row& row : {
             Row{"{category}_{name}_{phase}.MOV", "k1w_Ann Lee_run2.mp4", "Ann Lee|K1W|Run 2||"},
             Row{"{bib} {name} {phase}", "14 Ann Lee Final.mov", "Ann Lee||Final|14|"},
             Row{"{any} {name} {phase}", "riverside Ann Lee Final.mov", "Ann Lee||Final||"},
             Row{"{name} - {phase}", "Kuba - Ola - Lap 3.mov", "Kuba + Ola||Lap 3||"},
             Row{"{name} - {phase}", "Ann Lee - morning.mov", "Ann Lee||morning||"},
             Row{"{phase} {name}", "Final Ann Lee.mov", "Ann Lee||Final||"},
             Row{"Film {number}, {name}", "FILM 7, Ann.mov", "Ann||||7"},
             Row{"{name}({category})", "Ann Lee (Masters).mov", "Ann Lee|Masters|||"},
             Row{"{name}", "Ann Final Lee.mov", "Ann Final Lee||||"},
             Row{"{name} at {any}", "no match here K1M.mov", "no match here|K1M|||"},
             Row{"{name", "Ann Lee Final.mov", "Ann Lee||Final||"},
         })
        EXPECT_EQ(told(filmFacts(row.film, row.pattern)), row.told) << row.pattern;
    const std::string anything = "{any} " + std::string(200, 'a') + " {name}";
    EXPECT_NO_THROW((void)filmFacts(std::string(900, 'a'), anything));
}

TEST(VideoNames, RefuseAPatternThatCannotBeUsed) {
    struct Row {
        const char* pattern;
        const char* fault;
    };
    for (const Row& row : {Row{"{name} {fase}", "{fase} is not known"}, Row{"{name", "not closed"},
                           Row{"{name}{phase}", "side by side"}, Row{"{name} {name}", "twice"},
                           Row{"", "no bracket"}, Row{"film", "no bracket"}})
        EXPECT_THAT(faultOfVideoPattern(row.pattern), testing::Optional(HasSubstr(row.fault)));
    for (const auto pattern : {DefaultVideoPattern, std::string_view("{ Any } x {any}}")})
        EXPECT_EQ(faultOfVideoPattern(pattern), std::nullopt);
}

TEST(VideoNames, TakeCrewsApart) {
    EXPECT_THAT(crewIn("A Lee / B Ray+C&D - E-F"), ElementsAre("A Lee", "B Ray", "C", "D", "E-F"));
    EXPECT_THAT(crewIn(" / - & - - "), IsEmpty());
}

} // namespace kavela::test
