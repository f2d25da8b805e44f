#include "splittaking/training_collection.h"

#include "common/error.h"
#include "common/temp_folder.h"

#include <gmock/gmock.h>

namespace kavela::test {

TEST(TrainingCollection, FindsANameInAFilm) {
    struct Row {
        const char* film;
        const char* athlete;
        bool isCarried;
    };
    for (const Row& row :
         {Row{"Ann Lee Heats.MOV", "ann lee", true}, Row{"LEE_Ann_2.mov", "Ann Lee", true},
          Row{"AnnLee2.mp4", "Ann Lee", true}, Row{"AnnLee2.mp4", "Lee", true},
          Row{"K1W-ANNLEE.mov", "Ann Lee", true}, Row{"Ashlee.MOV", "Lee", false},
          Row{"Ann Leeds.MOV", "Ann Lee", false}, Row{"Ann Ray - Bea Lee.MOV", "Ann Lee", false},
          Row{"de la Cruz Ana.MOV", "Ana de la Cruz", true},
          Row{"S\u030Ca\u0301rka Nova.MOV", "Šárka NOVÁ", true},
          Row{"Anne-Marie.MOV", "Anne Marie", true}, Row{"瀬音ひなた決勝.MOV", "瀬音 ひなた", true},
          Row{"Ann.MOV", "-", false}, Row{"Ann.MOV", "", false}})
        EXPECT_EQ(carriesName(row.film, row.athlete), row.isCarried) << row.film;
}

TEST(TrainingCollection, MakesARunOfEachFilm) {
    const TempFolder folder;
    for (const char* name :
         {"Ann Lee 10.MOV", "ann_lee_9.mp4", "Ann Lee K1W Final.mov", "ann lee best.mov",
          "Ann Lee.txt", "._Ann Lee 9.MOV", "Bea.MOV", "Ann Lee \xFF.mov"})
        (void)folder.add(name, "");
    std::filesystem::create_directory(folder.path() / "Ann Lee folder.mov");
    const TrainingCollection found = collectTraining(folder.path(), {"Ann Lee", 2, {123}});
    std::vector<std::string> runs;
    for (const athletedata031& run : found.document.athletes)
        runs.push_back(run.videoname.at(0) + '|' + run.names.at(0) + '|' + run.cat + '|' +
                       run.phase);
    EXPECT_THAT(runs, testing::ElementsAre(
                          "Ann Lee 10.MOV|Ann Lee||10", "ann lee best.mov|Ann Lee||Run 2",
                          "Ann Lee K1W Final.mov|Ann Lee|K1W|Final", "ann_lee_9.mp4|Ann Lee||9"));
    EXPECT_THAT(found.unusable, testing::ElementsAre("Ann Lee \xFF.mov"));
    EXPECT_EQ(found.document.info.session, "Training");
    EXPECT_THAT(found.document.info.splitTitles, testing::ElementsAre("S1", "S2"));
    EXPECT_EQ(found.document.info.lastSavedDate.seconds, 123);
    EXPECT_THROW((void)collectTraining(folder.path() / "missing", {"Ann", 2, {}}), FileError);
}

} // namespace kavela::test
