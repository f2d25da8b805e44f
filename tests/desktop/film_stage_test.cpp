#include "desktop/film/film_stage.h"

#include "common/recorders.h"
#include "common/temp_folder.h"
#include "desktop/film/film_mode.h"
#include "desktop/shell/workspace.h"

#include <gmock/gmock.h>

#include <utility>

namespace kavela::test {
namespace {

using desktop::FilmMode;
using desktop::FilmStage;
using desktop::Workspace;
using ::testing::ElementsAre;

/// Writes down which keys it was handed.
class NotingMode : public FilmMode {
public:
    NotingMode(std::string name, std::vector<std::string>& heard)
        : m_name(std::move(name)), m_heard(heard) {}

    bool isTaking = true;
    bool isSelected = false;
    bool hasMarks = true;

    [[nodiscard]] bool takesMarks() const override { return isTaking; }
    [[nodiscard]] bool hasSelection() const override { return isSelected; }
    void markHere() override { note("mark"); }
    void moveMarkHere() override { note("move"); }
    void nudgeMark(int frames) override { note("nudge " + std::to_string(frames)); }
    void deleteMark() override { note("delete"); }
    bool stepMark(int step) override {
        if (hasMarks)
            note("step " + std::to_string(step));
        return hasMarks;
    }
    bool stepGate(int step) override {
        if (hasMarks)
            note("gate " + std::to_string(step));
        return hasMarks;
    }
    void goToMark(std::size_t number) override { note("go to " + std::to_string(number)); }
    void dropMark(std::size_t number, double) override { note("drop " + std::to_string(number)); }

private:
    void note(const std::string& what) { m_heard.push_back(m_name + ": " + what); }

    std::string m_name;
    std::vector<std::string>& m_heard;
};

class FilmStageTest : public ::testing::Test {
protected:
    FilmStageTest() { m_stage.setModes({&m_splits, &m_strokes, &m_tags}); }

    void pressEditingKeys() {
        m_stage.moveMarkHere();
        m_stage.nudgeMark(-1);
        m_stage.deleteMark();
    }

    std::vector<std::string> heard() { return std::exchange(m_heard, {}); }

    TempFolder m_folder;
    Recorder m_recorder;
    Workspace m_workspace{Preferences(m_folder.path() / "preferences.ini"), m_recorder.log(),
                          [] { return ReferenceDate{7e8}; }};
    std::vector<std::string> m_heard;
    NotingMode m_splits{"splits", m_heard};
    NotingMode m_strokes{"strokes", m_heard};
    NotingMode m_tags{"tags", m_heard};
    FilmStage m_stage{m_workspace, {}};
};

TEST_F(FilmStageTest, HandsTheKeysOfMarkingToTheModeInFrontOrToTheFirstOne) {
    m_stage.markHere();
    m_stage.setFront(m_tags);
    m_stage.markHere();
    pressEditingKeys();
    EXPECT_THAT(heard(), ElementsAre("splits: mark", "tags: mark", "tags: move", "tags: nudge -1",
                                     "tags: delete"));
    m_tags.isTaking = false;
    m_stage.markHere();
    pressEditingKeys();
    EXPECT_THAT(heard(),
                ElementsAre("splits: mark", "splits: move", "splits: nudge -1", "splits: delete"));
}

TEST_F(FilmStageTest, GivesTheKeysOfASelectedMarkToTheModeThatHasIt) {
    m_stage.setFront(m_tags);
    m_strokes.isSelected = true;
    m_stage.markHere();
    pressEditingKeys();
    EXPECT_THAT(heard(),
                ElementsAre("tags: mark", "strokes: move", "strokes: nudge -1", "strokes: delete"));
    m_splits.isSelected = true;
    m_stage.deleteMark();
    EXPECT_THAT(heard(), ElementsAre("splits: delete")) << "a split that is selected comes first";
}

TEST_F(FilmStageTest, LeavesToTheFirstModeWhatTheOneInFrontDoesNotHave) {
    m_stage.setFront(m_tags);
    m_stage.stepMark(1);
    m_stage.stepGate(-1);
    m_tags.hasMarks = false;
    m_stage.stepMark(1);
    m_stage.stepGate(-1);
    EXPECT_THAT(heard(),
                ElementsAre("tags: step 1", "tags: gate -1", "splits: step 1", "splits: gate -1"));
    m_stage.pressNumber(2);
    m_stage.goToMark(0);
    m_stage.dropMark(1, 2.5);
    EXPECT_THAT(heard(), ElementsAre("splits: go to 2", "splits: go to 0", "splits: drop 1"))
        << "the time line shows the marks of the first mode";
}

} // namespace
} // namespace kavela::test
