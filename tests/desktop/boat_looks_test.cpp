#include "desktop/cross/heats/boat_looks.h"

#include <gtest/gtest.h>

#include <QPalette>

namespace kavela::test {
namespace {

TEST(BoatLooks, TellBoatsApartByAFewLetters) {
    struct Case {
        std::vector<std::string> athletes;
        std::vector<std::string> cues;
    };
    for (const Case& each : {Case{{"Ada Stone", "Bea Rill"}, {"AS", "BR"}},
                             Case{{"Ada Stone", "Alma Sun"}, {"ASt", "ASu"}},
                             Case{{"Åse", "Ana Maria Lopez", ""}, {"Å", "AL", "3"}},
                             Case{{"瀬音 ひなた"}, {"瀬ひ"}}}) {
        std::vector<std::string> cues;
        for (const desktop::BoatLook& look : desktop::boatLooks(each.athletes, QPalette()))
            cues.push_back(look.cue.toStdString());
        EXPECT_EQ(cues, each.cues);
    }
}

} // namespace
} // namespace kavela::test
