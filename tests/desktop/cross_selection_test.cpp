#include "common/recorders.h"
#include "common/temp_folder.h"
#include "desktop/cross/cross_window.h"
#include "desktop/cross/heats/heat_page.h"
#include "desktop/cross/place_after.h"
#include "desktop/cross/trials/trial_page.h"
#include "desktop/shell/workspace.h"
#include "splitdata/loader.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QTest>

#include <functional>

/// What the keys of the cross window act on after something else changed its content.
namespace kavela::test {
namespace {

using desktop::CrossWindow;
using desktop::TrialMode;
using desktop::Workspace;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

const std::string Ada = "Ada";
const std::string Bea = "Bea";
const std::string Cleo = "Cleo";

CMTime at(std::int64_t seconds) {
    return {seconds * 100, 100, 1, 0};
}

ttdata030 trial(const std::string& athlete, std::int64_t seconds) {
    ttdata030 made;
    made.athlete = athlete;
    made.splittimes = {{at(seconds)}};
    made.time = static_cast<double>(seconds);
    made.upstreams = {{4, {at(seconds - 2), {}, at(seconds - 1)}, 0, 0}};
    return made;
}

rounddata030 heat() {
    return {"",
            {Ada, Bea, Cleo},
            {{at(10), 1, 1, {Ada, Bea, Cleo}, ""}, {at(30), 3, 3, {Ada, Bea, Cleo}, ""}},
            {{{at(40)}, Bea, {Ada}, false, "", "", ""}}};
}

class CrossSelectionTest : public ::testing::Test {
protected:
    CrossSelectionTest() { m_workspace.setAlerts(&m_recorder); }

    void TearDown() override {
        m_window.document().undoStack().setClean(); // nothing is asked at the end
        EXPECT_THAT(m_recorder.alerts, IsEmpty());
    }

    void open(std::vector<ttdata030> trials, std::vector<rounddata030> heats) {
        splittakerdata031 race;
        race.crossracedata = {{"", "", {1, 2, 3, 4}, 0}, std::move(trials), std::move(heats)};
        const auto file = m_folder.path() / "cross.kvx";
        ASSERT_TRUE(saveSplitFile(race, file, m_recorder.log()));
        m_window.setAttribute(Qt::WA_DeleteOnClose, false);
        ASSERT_TRUE(m_window.open(QString::fromStdString(file.string())));
        m_window.show();
        QApplication::setActiveWindow(&m_window);
        QApplication::processEvents();
    }

    void press(QKeyCombination keys) {
        QWidget* const focus = m_window.focusWidget() ? m_window.focusWidget() : &m_window;
        QTest::keyClick(focus, keys.key(), keys.keyboardModifiers());
        QApplication::processEvents();
    }
    void undo() { press(Qt::CTRL | Qt::Key_Z); }
    void redo() { press(Qt::CTRL | Qt::SHIFT | Qt::Key_Z); }
    void nudge() { press(Qt::ALT | Qt::Key_Right); }

    const rounddata030& heatAt(std::size_t place) const {
        return m_document.cross().eliphase.at(place);
    }
    const ttdata030& trialAt(std::size_t place) const {
        return m_document.cross().timetrials.at(place);
    }

    TempFolder m_folder;
    Recorder m_recorder;
    Workspace m_workspace{Preferences(m_folder.path() / "preferences.ini"), m_recorder.log(),
                          [] { return ReferenceDate{7e8}; }};
    CrossWindow m_window{m_workspace, desktop::Autosave(QString::fromStdString(
                                          (m_folder.path() / "kept").string()))};
    const desktop::TakingDocument& m_document = m_window.document();
};

TEST_F(CrossSelectionTest, MovesNoOtherOrderOnceTheSelectedOneIsUndone) {
    ASSERT_NO_FATAL_FAILURE(open({}, {heat()}));
    ASSERT_EQ(m_window.heats().gate(), 2);
    m_window.heats().mark(at(20));
    nudge();
    EXPECT_NEAR(heatAt(0).generals.at(1).time.seconds(), 20.01, 1e-9);
    undo();
    nudge();
    EXPECT_NEAR(heatAt(0).generals.at(1).time.seconds(), 20.01, 1e-9) << "the same mark, moved";
    undo();
    undo();
    nudge();
    press(Qt::Key_Delete);
    ASSERT_THAT(heatAt(0).generals, SizeIs(2));
    EXPECT_EQ(heatAt(0).generals[1].time, at(30)) << "of gate 3";
    EXPECT_EQ(m_window.heats().selectedMark(), std::nullopt);
}

TEST_F(CrossSelectionTest, NamesNobodyForAnotherAttackOnceTheSelectedOneIsUndone) {
    ASSERT_NO_FATAL_FAILURE(open({}, {heat()}));
    m_window.heats().addAttack(at(20));
    undo();
    press(Qt::Key_3);
    ASSERT_THAT(heatAt(0).actions, SizeIs(1));
    EXPECT_EQ(heatAt(0).actions[0].attacker, Bea);
    EXPECT_FALSE(m_document.isDirty());
    m_window.heats().selectMark(2); // the attack
    redo();
    nudge();
    ASSERT_THAT(heatAt(0).actions, SizeIs(2));
    EXPECT_EQ(heatAt(0).actions[0].time.front(), at(20));
    EXPECT_NEAR(heatAt(0).actions[1].time.front().seconds(), 40.01, 1e-9) << "where it went";
}

TEST_F(CrossSelectionTest, EndsTheNamingOfAnAttackThatIsUndoneInPart) {
    ASSERT_NO_FATAL_FAILURE(open({}, {heat()}));
    m_window.heats().addAttack(at(50));
    press(Qt::Key_3);
    undo();
    press(Qt::Key_3);
    EXPECT_EQ(heatAt(0).actions.at(1).attacker, Bea);
    EXPECT_THAT(heatAt(0).actions.at(1).defenders, ElementsAre(Ada));
}

TEST_F(CrossSelectionTest, ComesFreshToTheHeatAfterARemovedOne) {
    rounddata030 first = heat();
    first.generals.push_back({at(20), 2, 2, {Ada}, ""});
    rounddata030 second = heat();
    second.athletes[2] = "Dora";
    second.generals.erase(second.generals.begin());
    ASSERT_NO_FATAL_FAILURE(open({}, {first, second}));
    EXPECT_EQ(m_window.heats().gate(), 4);
    m_window.heats().addAttack(at(60));
    m_window.heats().removeHeat();
    EXPECT_EQ(m_window.heats().selectedMark(), std::nullopt);
    EXPECT_EQ(m_window.heats().gate(), 1);
    press(Qt::Key_3);
    press(Qt::Key_Delete);
    EXPECT_EQ(heatAt(0).actions.at(0).attacker, Bea);
    m_window.heats().selectMark(1); // the attack
    undo();
    EXPECT_EQ(m_window.heats().heat(), 1U) << "with the first heat back, still the same";
    nudge();
    EXPECT_NEAR(heatAt(1).actions.at(0).time.front().seconds(), 40.01, 1e-9);
}

TEST_F(CrossSelectionTest, KeepsTheGateInFrontWhenTheCourseChanges) {
    ASSERT_NO_FATAL_FAILURE(open({}, {heat()}));
    press(Qt::Key_N);
    ASSERT_EQ(m_window.heats().gate(), 3);
    m_window.document().editCross("course", [](crossdata030& cross) {
        cross.crossinfo.gates = {5, 1, 2, 3};
    });
    EXPECT_EQ(m_window.heats().gate(), 3);
}

TEST_F(CrossSelectionTest, MovesNoMarkOfAnotherGateOfATrial) {
    ASSERT_NO_FATAL_FAILURE(open({trial(Ada, 20)}, {}));
    press(Qt::CTRL | Qt::SHIFT | Qt::Key_2);
    press(Qt::Key_2); // gate 2
    m_window.trials().mark(at(5));
    ASSERT_THAT(trialAt(0).upstreams, SizeIs(2));
    undo();
    nudge();
    press(Qt::SHIFT | Qt::Key_M);
    ASSERT_THAT(trialAt(0).upstreams, SizeIs(1));
    EXPECT_EQ(trialAt(0).upstreams[0].cmtimes.front(), at(18));
    EXPECT_EQ(trialAt(0).upstreams[0].cmtimes.back(), at(19));
}

TEST_F(CrossSelectionTest, FollowsTheTrialInFrontThroughRemovalAndUndo) {
    ASSERT_NO_FATAL_FAILURE(open({trial(Ada, 20), trial(Bea, 25), trial(Cleo, 22)}, {}));
    m_window.trials().selectMark(1); // the split
    m_window.trials().removeTrial();
    EXPECT_EQ(trialAt(0).athlete, Bea);
    EXPECT_EQ(m_window.trials().selectedMark(), std::nullopt);
    press(Qt::Key_Down);
    m_window.trials().selectMark(1);
    undo();
    ASSERT_EQ(m_window.trials().trial(), 2U) << "Cleo, ranked anew";
    nudge();
    EXPECT_EQ(trialAt(1).splittimes[0].front(), at(25));
    EXPECT_NEAR(trialAt(2).splittimes[0].front().seconds(), 22.01, 1e-9);
    redo(); // is over: an edit came after
    undo();
    EXPECT_EQ(m_window.trials().selectedMark(), 1U) << "where it was before it was moved";
    EXPECT_EQ(trialAt(2).splittimes[0].front(), at(22));
}

TEST_F(CrossSelectionTest, BringsATrialThatTakesTheFrontToItsOwnGates) {
    ttdata030 done = trial(Ada, 20);
    done.upstreams.insert(done.upstreams.begin(), {2, {at(5), {}, at(6)}, 0, 0});
    ASSERT_NO_FATAL_FAILURE(open({done, trial(Cleo, 30), done}, {}));
    m_window.trials().selectTrial(2);
    press(Qt::CTRL | Qt::SHIFT | Qt::Key_2);
    press(Qt::Key_4);
    m_window.trials().removeTrial();
    EXPECT_EQ(m_window.trials().trial(), 1U);
    EXPECT_EQ(m_window.trials().gate(), 2) << "the one that Cleo has no marks of";
    EXPECT_EQ(m_window.trials().selectedMark(), std::nullopt);
    nudge();
    EXPECT_EQ(trialAt(1).upstreams[0].cmtimes.front(), at(28));
}

TEST(PlaceAfter, FindsAnEntryInAListThatSomethingElseChanged) {
    struct Case {
        const char* name;
        std::string before;
        std::size_t place;
        std::string after;
        std::optional<std::size_t> expected;
    };
    for (const Case& each :
         {Case{"the same list", "abc", 1, "abc", 1}, Case{"added before it", "bc", 1, "abc", 2},
          Case{"added behind it", "ab", 1, "abc", 1}, Case{"removed before it", "abc", 2, "bc", 1},
          Case{"itself removed", "abc", 1, "ac", std::nullopt},
          Case{"the only one removed", "a", 0, "", std::nullopt},
          Case{"changed", "abc", 1, "axc", 1}, Case{"another one changed", "abc", 1, "xbc", 1},
          Case{"sorted elsewhere", "abc", 0, "bca", 2},
          Case{"changed and sorted elsewhere", "abc", 1, "acx", std::nullopt},
          Case{"of two alike the first removed", "aab", 0, "ab", 0},
          Case{"all others", "ab", 0, "xyz", std::nullopt},
          Case{"none there", "ab", 2, "ab", std::nullopt}}) {
        const std::vector<char> before(each.before.begin(), each.before.end());
        const std::vector<char> after(each.after.begin(), each.after.end());
        EXPECT_EQ(desktop::placeAfter(before, each.place, after, std::equal_to<char>()),
                  each.expected)
            << each.name;
    }
}

} // namespace
} // namespace kavela::test
