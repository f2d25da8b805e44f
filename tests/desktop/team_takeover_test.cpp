#include "desktop/team_fixture.h"

#include "desktop/charts/series_chart.h"
#include "desktop/people/found_lines_view.h"
#include "desktop/team/charts/chart_tabs.h"
#include "desktop/team/takeover/take_over.h"
#include "desktop/team/takeover/take_over_dialog.h"
#include "splitdata/document.h"

#include <QComboBox>
#include <QLineEdit>
#include <QTableView>
#include <QTimer>
#include <QTreeView>

/// Results of split files and lists, taken into a team.
namespace kavela::test {
namespace {

namespace fs = std::filesystem;
using desktop::TakeOverDialog;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::SizeIs;

class TeamTakeoverTest : public TeamFixture {
protected:
    /// Looks at the dialog that comes next, and closes it.
    static void whenAsked(std::function<void(TakeOverDialog&)> act) {
        QTimer::singleShot(0, [act = std::move(act)] {
            auto* const dialog = qobject_cast<TakeOverDialog*>(QApplication::activeModalWidget());
            ASSERT_TRUE(dialog);
            act(*dialog);
            dialog->accept();
        });
    }

    static QString text(TakeOverDialog& dialog, int line, int column) {
        return dialog.lines().index(line, column).data().toString();
    }
};

athletedata031 run(const char* name, const char* phase, std::vector<double> times) {
    athletedata031 made;
    made.names = {name};
    made.cat = "K1W";
    made.phase = phase;
    made.sectioninfo.times = times;
    made.sectioninfo.totaltime = times[0] + times[1];
    made.sectioninfo.isfullrun = times[1] > 0;
    return made;
}

/// A race with the names in another order, and no positions.
splittakerdata031 splitFile() {
    splittakerdata031 file;
    file.info.event = "World Cup 3";
    file.info.place = "Praha";
    file.info.date = referenceDate(std::chrono::year(2025) / 6 / 14);
    file.info.totalsplits = 2;
    file.athletes = {run("Zoe Fast", "Heats", {40, 50}), run("Ann Marie Stern", "Heats", {44, 50}),
                     run("Zoe Fast", "Final", {40, 48}), run("Ann Marie Stern", "Final", {41, 48})};
    file.athletes[1].sectioninfo.realtime = 94.03;
    file.athletes[1].sectioninfo.realpen = 2;
    return file;
}

TEST_F(TeamTakeoverTest, TakesResultsOverFromASplitFileAfterShowingThem) {
    const auto window = openWindow();
    ASSERT_TRUE(window);
    const fs::path path = m_folder.add("race.kvx", encode(splitFile()));
    whenAsked([&](TakeOverDialog& dialog) {
        EXPECT_EQ(encode(window->document().value()), encode(smallTeam())) << "nothing yet";
        EXPECT_EQ(dialog.tickedCount(), 3U); // two runs and the final position
        EXPECT_EQ(text(dialog, 0, dialog.lines().whoseColumn()), "ŠTERN Ann Marie");
        EXPECT_EQ(text(dialog, 3, 0), "Zoe Fast");
        EXPECT_EQ(text(dialog, 3, dialog.lines().whoseColumn()), "not in the team");
        dialog.view().selectRow(1);
        QTest::keyClick(&dialog.view(), Qt::Key_Space); // not the run of the final
        EXPECT_EQ(dialog.tickedCount(), 2U);
    });
    window->takeOverFrom({QString::fromStdString(path.string())});
    const mtRaceStruct taken = results(*window).seasons[0].races.at(2);
    EXPECT_EQ(taken.event, "WC3");
    EXPECT_EQ(taken.location, "Praha");
    EXPECT_EQ(taken.finalPos, 2);
    ASSERT_THAT(taken.phases, SizeIs(1));
    EXPECT_EQ(taken.phases[0].phase, "Heats 1");
    EXPECT_EQ(taken.phases[0].time, 94.03);
    EXPECT_EQ(taken.phases[0].pen, 2);
    EXPECT_EQ(taken.phases[0].pos, 2);
    EXPECT_THAT(taken.phases[0].pers, ElementsAre(::testing::DoubleEq((44.0 / 40 - 1) * 100), 0));
    EXPECT_EQ(results(*window).seasons[0].aves.at(0).phase, "Heats 1");
    EXPECT_EQ(window->charts().seasonChart().emptyMessage(), "");
    EXPECT_THAT(window->charts().progressionChart().csv().toStdString(),
                HasSubstr("WC3;Praha;Result;2"));
    press(*window, Qt::CTRL | Qt::Key_Z);
    EXPECT_EQ(encode(window->document().value()), encode(smallTeam()));
}

TEST(TeamTakeover, TakesNoPlaceholderForATime) {
    splittakerdata031 file = splitFile();
    file.athletes[1].sectioninfo.realtime = 999.9;
    file.athletes[2] = run("Zoe Fast", "Final", {999.9, 48});
    const desktop::FoundRace race = desktop::foundInSplitFile(file);
    EXPECT_EQ(race.results[1].run->time, 94) << "that of the video";
    EXPECT_EQ(race.results[1].fault, "");
    EXPECT_EQ(race.results[2].fault, "the run was not finished");
    EXPECT_EQ(race.results[3].run->pos, 1);
}

TEST_F(TeamTakeoverTest, AListReplacesTheResultButKeepsTheSplits) {
    myTeamToSaveStruct team = smallTeam();
    mtPhaseStruct final;
    final.phase = "Final";
    final.time = 100;
    final.splits = {50, 50};
    final.pers = {1, 2};
    team.realMyTeam[0].cats[0].seasons[0].races[0].phases.push_back(final);
    saveTeamFile(team, file());
    const auto window = openWindow();
    ASSERT_TRUE(window);
    const fs::path list = m_folder.add("final.csv", "pos;bib;name;nationality;time;pen\n"
                                                    "4;7;Ann Marie STERN;SLO;99.5;2\n"
                                                    "5;8;Tom Oakes;SLO;101;0\n");
    whenAsked([](TakeOverDialog& dialog) {
        dialog.findChild<QComboBox*>("event")->setCurrentText("WC1");
        dialog.findChild<QLineEdit*>("location")->setText("TACEN");
        EXPECT_EQ(text(dialog, 0, dialog.lines().wasColumn()), "100.00");
        EXPECT_EQ(text(dialog, 0, dialog.lines().nowColumn()), "4. 99.50 (2)");
        EXPECT_EQ(dialog.tickedCount(), 2U) << "none of the athlete of another boat";
    });
    window->takeOverFrom({QString::fromStdString(list.string())});
    ASSERT_THAT(results(*window).seasons[0].races, SizeIs(2)) << "the race is the one there";
    const mtRaceStruct& taken = results(*window).seasons[0].races[0];
    EXPECT_EQ(taken.finalPos, 4);
    EXPECT_EQ(taken.phases.at(0).time, 99.5);
    EXPECT_THAT(taken.phases.at(0).splits, ElementsAre(50, 50));
}

TEST_F(TeamTakeoverTest, GivesCrewsToAthletesByHandAndAddsThem) {
    const auto window = openWindow();
    ASSERT_TRUE(window);
    splittakerdata031 file = splitFile();
    for (athletedata031& run : file.athletes)
        if (run.names[0].starts_with("Ann"))
            run.names[0] = "A. Stern";
    const fs::path path = m_folder.add("race.kvx", encode(file));
    whenAsked([&](TakeOverDialog& dialog) {
        EXPECT_EQ(dialog.tickedCount(), 0U);
        ASSERT_EQ(text(dialog, 0, 0), "A. Stern") << "whose name is like one of the team";
        EXPECT_EQ(text(dialog, 0, dialog.lines().remarkColumn()), "perhaps ŠTERN Ann Marie?");
        auto& view = dialog.view();
        const auto choose = [&](int row, int down) {
            view.setFocus();
            view.choose(row, dialog.lines().whoseColumn());
            QTest::keyClick(&view, Qt::Key_F2);
            const auto combos = view.findChildren<QComboBox*>("whose");
            ASSERT_FALSE(combos.isEmpty());
            QComboBox* const combo = combos.last(); // the one before may still be on its way out
            for (int i = 0; i < down; ++i)          // leave out, add, then the likest
                QTest::keyClick(combo, Qt::Key_Down);
            QTest::keyClick(combo, Qt::Key_Return);
            QApplication::processEvents();
        };
        choose(0, 2);
        EXPECT_EQ(text(dialog, 0, dialog.lines().whoseColumn()), "ŠTERN Ann Marie");
        EXPECT_EQ(dialog.tickedCount(), 3U) << "both runs and the final position";
        ASSERT_EQ(text(dialog, 3, 0), "Zoe Fast");
        choose(3, 1);
        EXPECT_EQ(dialog.tickedCount(), 6U);
        EXPECT_EQ(text(dialog, 3, dialog.lines().whoseColumn()), "new: Zoe Fast");
    });
    window->takeOverFrom({QString::fromStdString(path.string())});
    EXPECT_EQ(results(*window).seasons[0].races.at(2).finalPos, 2);
    ASSERT_THAT(window->document().athletes(), SizeIs(3));
    const myTeamStruct& added = window->document().athletes()[2];
    EXPECT_EQ(added.name, "Zoe Fast");
    EXPECT_EQ(added.cats.at(0).cat, "WK1");
    EXPECT_EQ(added.cats[0].seasons.at(0).races.at(0).finalPos, 1);
}

} // namespace
} // namespace kavela::test
