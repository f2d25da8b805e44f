#include "desktop/cross/cross_window.h"

#include "common/recorders.h"
#include "common/temp_folder.h"
#include "desktop/film/film_deck.h"
#include "desktop/film/film_view.h"
#include "desktop/numbered_film.h"
#include "desktop/shell/workspace.h"
#include "splitdata/loader.h"
#include "splittaking/annotations/cross_heats.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QLabel>
#include <QTest>

#include <cmath>

namespace kavela::test {
namespace {

namespace fs = std::filesystem;
using desktop::CrossWindow;
using desktop::Workspace;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

/// Trials of Ada, whose film has numbered frames, and of Bea, whose film is gone; a heat without a
/// film.
class CrossMarkingTest : public ::testing::Test {
protected:
    CrossMarkingTest() { m_workspace.setAlerts(&m_recorder); }
    void TearDown() override { EXPECT_THAT(m_recorder.alerts, IsEmpty()); }

    void SetUp() override {
        splittakerdata031 race;
        race.crossracedata.crossinfo = {"Heats", "K1W", {1, 2, 3}, 2};
        for (const auto& [athlete, film] : {std::pair("Ada", "ada.mp4"), {"Bea", "gone.mp4"}}) {
            ttdata030& trial = race.crossracedata.timetrials.emplace_back();
            trial.athlete = athlete;
            trial.videoname = film;
        }
        (void)addHeat(race.crossracedata, {}, {"Ada", "Bea", "Cleo"});
        fs::create_symlink(numberedFilm(), m_folder.path() / "ada.mp4");
        const fs::path file = m_folder.path() / "cross.kvx";
        ASSERT_TRUE(saveSplitFile(race, file, m_recorder.log()));
        m_window.setAttribute(Qt::WA_DeleteOnClose, false);
        ASSERT_TRUE(m_window.open(QString::fromStdString(file.string())));
        m_window.show();
        QApplication::processEvents();
    }

    void press(std::initializer_list<QKeyCombination> keys) {
        for (const QKeyCombination each : keys) {
            if (QApplication::activeWindow() != &m_window)
                QApplication::setActiveWindow(&m_window);
            QWidget* const focus = m_window.focusWidget() ? m_window.focusWidget() : &m_window;
            QTest::keyClick(focus, each.key(), each.keyboardModifiers());
        }
    }

    const crossdata030& cross() const { return m_window.document().cross(); }
    static std::int64_t frameOf(const CMTime& stamp) {
        return std::llround(stamp.seconds() * NumberedRate);
    }
    std::string lastWords() const {
        return m_window.findChild<desktop::FilmView*>()->flashed().toStdString();
    }

    TempFolder m_folder;
    Recorder m_recorder;
    Workspace m_workspace{Preferences(m_folder.path() / "preferences.ini"), m_recorder.log(),
                          [] { return ReferenceDate{7e8}; }};
    mutable CrossWindow m_window{m_workspace, desktop::Autosave(QString::fromStdString(
                                                  (m_folder.path() / "kept").string()))};
};

TEST_F(CrossMarkingTest, MarksTheFrameOnItsWayAndTellsWhereThereIsNone) {
    // From the first moment on, before the film is read and before any frame is seen.
    press({Qt::Key_M, Qt::Key_PageDown, Qt::Key_M, Qt::SHIFT | Qt::Key_Right, Qt::Key_M,
           Qt::Key_Right, Qt::SHIFT | Qt::Key_M, Qt::ALT | Qt::Key_Right, Qt::Key_Home,
           Qt::Key_Down}); // to the trial without a film
    const auto& splits = cross().timetrials.at(0).splittimes;
    ASSERT_THAT(splits, SizeIs(2));
    EXPECT_EQ(frameOf(splits[0].front()), 500);
    EXPECT_EQ(frameOf(splits[1].front()), 552);
    EXPECT_NEAR(cross().timetrials[0].time, 11.04, 1e-9);
    press({Qt::Key_M});
    EXPECT_THAT(lastWords(), HasSubstr("Nothing can be marked: gone.mp4 is not in"));
    EXPECT_THAT(cross().timetrials[1].splittimes, IsEmpty());
    press({Qt::Key_Up, Qt::Key_M, Qt::CTRL | Qt::Key_Z});
    EXPECT_THAT(cross().timetrials[0].splittimes, SizeIs(2)) << "the press that waited is undone";
}

TEST_F(CrossMarkingTest, TakesAnAttackWithoutAFilm) {
    press({Qt::CTRL | Qt::Key_2, Qt::Key_A, Qt::Key_3, Qt::Key_1});
    const auto attacks = [this] { return cross().eliphase.at(0).actions; };
    ASSERT_THAT(attacks(), SizeIs(1));
    EXPECT_EQ(attacks()[0].attacker, "Cleo");
    EXPECT_THAT(attacks()[0].defenders, ElementsAre("Ada"));
    EXPECT_THAT(attacks()[0].time, IsEmpty());
    EXPECT_THAT(m_window.findChild<QLabel*>("orderTitle")->text().toStdString(),
                HasSubstr("offered"))
        << "the digits left the gate alone";
    press({Qt::Key_E});
    EXPECT_THAT(lastWords(), HasSubstr("no film"));
    EXPECT_THAT(attacks()[0].time, IsEmpty());
    press({Qt::CTRL | Qt::Key_Z, Qt::CTRL | Qt::Key_Z, Qt::CTRL | Qt::Key_Z});
    EXPECT_THAT(attacks(), IsEmpty());
}

} // namespace
} // namespace kavela::test
