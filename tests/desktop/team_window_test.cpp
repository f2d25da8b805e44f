#include "desktop/team_fixture.h"

#include "desktop/charts/series_chart.h"
#include "desktop/refusals.h"
#include "desktop/team/charts/chart_tabs.h"
#include "desktop/team/results_view.h"
#include "desktop/team/typed_values.h"
#include "results/phase_averages.h"
#include "splittaking/messages.h"

#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QTabBar>
#include <QTableView>
#include <QTimer>
#include <QTreeView>

namespace kavela::test {
namespace {

namespace fs = std::filesystem;
using desktop::SeasonModel;
using desktop::SeasonPlace;
using desktop::TeamWindow;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::SizeIs;

class TeamWindowTest : public TeamFixture {
protected:
    /// Opens the current cell of a view, types and leaves it with Enter.
    static void type(TeamWindow& window, QAbstractItemView& view, const QString& text) {
        view.setFocus();
        press(window, Qt::Key_F2);
        auto* const field = qobject_cast<QLineEdit*>(QApplication::focusWidget());
        ASSERT_TRUE(field);
        field->selectAll();
        QTest::keyClicks(field, text);
        QTest::keyClick(field, Qt::Key_Return);
        QApplication::processEvents(); // the cell closes,
        QApplication::processEvents(); // then a refusal is told
    }

    static QString label(const TeamWindow& window, const char* name) {
        return window.findChild<QLabel*>(name)->text();
    }

    /// Types into the view that has the focus, wherever the keys go.
    static void keys(TeamWindow& window, const char* text) {
        for (; *text; ++text) {
            QApplication::setActiveWindow(&window);
            QTest::keyClick(QApplication::focusWidget(), *text);
        }
    }
};

TEST_F(TeamWindowTest, EditsByKeysAloneAndTakesEveryStepBack) {
    const auto window = openWindow();
    ASSERT_TRUE(window);
    auto& view = window->results();
    view.tree().setFocus();
    press(*window, Qt::Key_Up);
    ASSERT_EQ(view.place(), (SeasonPlace{0, {}}));
    press(*window, Qt::Key_Down); // from the season to its first race
    ASSERT_EQ(view.place(), (SeasonPlace{0, 0}));
    press(*window, Qt::Key_Right);
    press(*window, Qt::Key_Right);
    type(*window, view.tree(), "2");
    EXPECT_EQ(results(*window).seasons[0].races[0].finalPos, 2);
    press(*window, Qt::Key_Insert);
    ASSERT_EQ(view.place(), (SeasonPlace{0, 2}));
    view.runs().setCurrentIndex(view.runs().model()->index(3, desktop::PhaseModel::TimeColumn));
    type(*window, view.runs(), "1:32.34");
    press(*window, Qt::Key_Right);
    type(*window, view.runs(), "2");
    const mtPhaseStruct final = results(*window).seasons[0].races[2].phases.at(0);
    EXPECT_EQ(final.phase, "Final");
    EXPECT_EQ(final.time, 92.34);
    EXPECT_EQ(final.pen, 2);
    EXPECT_THAT(results(*window).aves, SizeIs(1)) << "averages follow";
    press(*window, Qt::CTRL | Qt::Key_S);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !window->document().isSaving(); }));
    EXPECT_EQ(encode(readTeamFile(file())), encode(window->document().value()));
    while (window->document().undoStack().canUndo())
        press(*window, Qt::CTRL | Qt::Key_Z);
    EXPECT_EQ(encode(window->document().value()), encode(smallTeam()));
    EXPECT_THAT(m_recorder.alerts, IsEmpty());
}

TEST_F(TeamWindowTest, TabGoesOnToTheNextCellThatTakesText) {
    const auto window = openWindow();
    ASSERT_TRUE(window);
    auto& view = window->results();
    view.choose({0, 1}, SeasonModel::LocationColumn);
    view.tree().setFocus();
    keys(*window, "Bled\t3\t"); // a race has a place behind its location, then comes a season
    EXPECT_EQ(results(*window).seasons[0].races[1].location, "Bled");
    EXPECT_EQ(results(*window).seasons[0].races[1].finalPos, 3);
    EXPECT_EQ(view.place(), (SeasonPlace{1, {}}));
    keys(*window, "2022\t17\t"); // over the cells of a season that only tell
    EXPECT_EQ(results(*window).seasons[1].year, 2022);
    EXPECT_EQ(results(*window).seasons[1].icfrankingpos, 17);
    EXPECT_EQ(results(*window).seasons[0].races[1].finalPos, 3);
    press(*window, Qt::Key_Escape);
    press(*window, Qt::SHIFT | Qt::Key_Tab); // with no cell open
    EXPECT_EQ(view.tree().currentIndex().column(), SeasonModel::RankingColumn);

    view.choose({0, 0});
    view.runs().setFocus();
    view.runs().setCurrentIndex(view.runs().model()->index(2, desktop::PhaseModel::TimeColumn));
    keys(*window, "92.5\t2\t7\t2025-06-14\t93\t");
    const mtRaceStruct& race = results(*window).seasons[0].races[0];
    ASSERT_THAT(race.phases, SizeIs(2));
    EXPECT_EQ(race.phases[0].phase, "Semifinal");
    EXPECT_EQ(race.phases[0].pen, 2);
    EXPECT_EQ(race.phases[0].pos, 7);
    EXPECT_EQ(race.phases[1].time, 93) << "on to the final, not into the total";
    EXPECT_THAT(m_recorder.alerts, IsEmpty());
}

TEST_F(TeamWindowTest, ShowsTheFirstAthleteWithEverythingFromTheBeginning) {
    const auto window = makeWindow();
    ASSERT_TRUE(window->open(QString::fromStdString(file().string())));
    show(*window);
    auto* const tabs = window->results().findChild<QTabBar*>("categories");
    ASSERT_EQ(tabs->count(), 1);
    EXPECT_EQ(tabs->tabText(0), window->results().category().c_str());
    EXPECT_GT(tabs->width(), tabs->fontMetrics().horizontalAdvance(tabs->tabText(0)));
    EXPECT_GT(tabs->height(), tabs->fontMetrics().height());
}

TEST_F(TeamWindowTest, HeadsEveryColumnOfItsOwnAndFollowsTheNameOfARace) {
    const auto window = openWindow();
    ASSERT_TRUE(window);
    const auto* const model = window->results().tree().model();
    QStringList titles;
    for (int column = 0; column < SeasonModel::Columns; ++column)
        titles.append(model->headerData(column, Qt::Horizontal).toString());
    EXPECT_EQ(titles.removeDuplicates(), 0) << titles.join(' ').toStdString();
    window->results().choose({0, 0});
    auto& tree = window->results().tree();
    const auto heading = [&] {
        return window->results().findChild<QLabel*>("race")->text().toStdString();
    };
    EXPECT_EQ(heading(), "WC1  Tacen  2025");
    tree.model()->setData(tree.currentIndex(), "EUROS");
    EXPECT_EQ(heading(), "EUROS  Tacen  2025");
}

TEST_F(TeamWindowTest, TheOrderOfTheSeasonsDecidesTheLabel) {
    const auto window = openWindow();
    ASSERT_TRUE(window);
    EXPECT_EQ(label(*window, "label"), "Categorization: Senior development");
    EXPECT_THAT(label(*window, "summary").toStdString(), HasSubstr("Medals in SP or EP: 1"));
    window->results().choose({2, {}});
    window->results().tree().setFocus();
    press(*window, Qt::ALT | Qt::Key_Up);
    EXPECT_EQ(results(*window).seasons[1].year, 2023);
    EXPECT_EQ(window->results().place(), (SeasonPlace{1, {}})) << "the season stays chosen";
    EXPECT_EQ(label(*window, "label"), "Categorization: Medalist");
    EXPECT_EQ(label(*window, "countedSeasons"), "Counted: 2025 and 2023");
    press(*window, Qt::CTRL | Qt::Key_Z);
    EXPECT_EQ(label(*window, "label"), "Categorization: Senior development");

    auto* const model = window->results().tree().model(); // the same by dragging
    const std::unique_ptr<QMimeData> dragged(model->mimeData({model->index(2, 0)}));
    EXPECT_TRUE(model->dropMimeData(dragged.get(), Qt::MoveAction, 0, 0, {}));
    EXPECT_EQ(results(*window).seasons[0].year, 2023);
    EXPECT_EQ(results(*window).seasons[2].year, 2024);
    EXPECT_EQ(label(*window, "label"), "Categorization: Medalist");
}

TEST_F(TeamWindowTest, RefusesWhatIsNoResult) {
    struct Case {
        SeasonPlace place;
        int seasonColumn; ///< of the table of seasons; -1: the column of the runs
        int runColumn;
        const char* typed;
        const char* reason;
    };
    const SeasonPlace first{0, 0};
    using Runs = desktop::PhaseModel;
    const Case cases[] = {
        {first, -1, Runs::TimeColumn, "92x", "“92x”"},
        {first, -1, Runs::TimeColumn, "-3", "“-3”"},
        {first, -1, Runs::TimeColumn, "nan", "“nan”"},
        {first, -1, Runs::PositionColumn, "2.5", "position"},
        {first, -1, Runs::DateColumn, "2025-02-30", "day of the calendar"},
        {first, SeasonModel::FinalColumn, 0, "first", "position"},
        {{0, {}}, SeasonModel::TitleColumn, 0, "2024", "2024 already"},
        {{0, {}}, SeasonModel::PointsColumn, 0, "1e999", "points"},
    };
    const auto window = openWindow();
    ASSERT_TRUE(window);
    auto& view = window->results();
    for (const Case& wrong : cases) {
        SCOPED_TRACE(wrong.typed);
        view.choose(wrong.place, std::max(wrong.seasonColumn, 0));
        if (wrong.seasonColumn < 0) {
            view.runs().setCurrentIndex(view.runs().model()->index(0, wrong.runColumn));
            type(*window, view.runs(), wrong.typed);
        } else {
            type(*window, view.tree(), wrong.typed);
        }
        EXPECT_THAT(refusalIn(*window), HasSubstr(wrong.reason));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        EXPECT_THAT(refusalIn(*window), IsEmpty());
        EXPECT_EQ(encode(window->document().value()), encode(smallTeam()));
    }
    EXPECT_FALSE(window->document().isDirty());
}

TEST_F(TeamWindowTest, LeavesNoAthleteWithACellThatIsRefused) {
    const auto window = openWindow();
    ASSERT_TRUE(window);
    auto& view = window->results();
    auto& athletes = window->findChild<desktop::AthletePanel*>()->table();
    const int before = athletes.currentPlace();
    view.choose({0, 0}, 0);
    view.runs().setCurrentIndex(view.runs().model()->index(0, desktop::PhaseModel::TimeColumn));
    view.runs().setFocus();
    keys(*window, "92x");
    QTest::mouseClick(athletes.viewport(), Qt::LeftButton, {},
                      athletes.visualRect(athletes.cellAt(1 - before, 0)).center());
    EXPECT_THAT(refusalIn(*window), HasSubstr("“92x”"));
    EXPECT_EQ(athletes.currentPlace(), before);
    EXPECT_THAT(athletes.selectedPlaces(), ElementsAre(before));
}

TEST(TypedValues, AreReadAsCoachesWriteThem) {
    using namespace desktop;
    EXPECT_EQ(typedTime(" 92,34 "), 92.34);
    EXPECT_EQ(typedTime("1:02.5"), 62.5);
    EXPECT_EQ(typedTime(""), 0);
    EXPECT_EQ(dayShown(typedDay("14.6.2025", {})), "2025-06-14");
    const ReferenceDate evening = referenceDate(std::chrono::year(2025) / 6 / 1, 68400);
    EXPECT_EQ(typedDay("2025-06-14", evening).seconds, evening.seconds + 13 * 86400);
    EXPECT_EQ(typedDay("", evening), ReferenceDate());
    EXPECT_THROW((void)typedTime("1:60"), RefusedEntry);
    EXPECT_THROW((void)typedTime("3600"), RefusedEntry);
    EXPECT_THROW((void)typedBirthYear("98"), RefusedEntry);
}

TEST_F(TeamWindowTest, RefusesBadFilesAndLosesNothing) {
    const auto window = openWindow();
    ASSERT_TRUE(window);
    window->results().addSeason(2026);
    const std::string before = encode(window->document().value());
    const fs::path damaged = m_folder.add(
        "bad.kvteam",
        R"({"realMyTeam":[{"name":"A","birthYear":"x","cats":[],"isretired":false}]})");
    EXPECT_FALSE(window->open(QString::fromStdString(damaged.string())));
    EXPECT_THAT(m_recorder.alerts, ElementsAre(HasSubstr("realMyTeam[0].birthYear")));
    m_recorder.alerts.clear();
    for (const auto& [name, content] : {std::pair("bad.kvx", "{}"), std::pair("bad.csv", "a;b\n1")})
        window->takeOverFrom({QString::fromStdString(m_folder.add(name, content).string())});
    EXPECT_THAT(m_recorder.alerts, SizeIs(2));
    EXPECT_EQ(encode(window->document().value()), before);
    EXPECT_TRUE(window->document().isDirty());
}

TEST_F(TeamWindowTest, OffersTheWorkOfASessionThatWasCutOff) {
    {
        const auto window = openWindow();
        window->results().addSeason(2026);
    } // goes without being closed
    EXPECT_EQ(encode(readTeamFile(file())), encode(smallTeam())) << "never over the original";
    const auto window = openWindow();
    EXPECT_THAT(m_questions, ElementsAre(messages::AskToLoadAutosave));
    EXPECT_EQ(results(*window).seasons[0].year, 2026);
    EXPECT_TRUE(window->document().isDirty());
}

TEST_F(TeamWindowTest, BuildsATeamFromNothing) {
    const auto window = makeWindow();
    window->startNew(QString::fromStdString(m_folder.path().string()));
    show(*window);
    EXPECT_EQ(window->document().path().toStdString(), (m_folder.path() / "Team.kvteam").string());
    EXPECT_THAT(label(*window, "hint").toStdString(), HasSubstr("Ctrl+N"));
    QTimer::singleShot(0, [] {
        auto* const dialog = QApplication::activeModalWidget();
        ASSERT_TRUE(dialog);
        dialog->findChild<QLineEdit*>("surname")->insert("müller");
        QTest::keyClicks(dialog->findChild<QLineEdit*>("givenName"), "Eva");
        QTest::keyClicks(dialog->findChild<QLineEdit*>("birthYear"), "1999");
        QTest::keyClick(dialog->findChild<QWidget*>("WK1"), Qt::Key_Space);
        QTest::keyClick(dialog, Qt::Key_Return);
    });
    press(*window, Qt::CTRL | Qt::Key_N);
    ASSERT_THAT(window->document().athletes(), SizeIs(1));
    EXPECT_EQ(window->document().athletes()[0].name, "MÜLLER Eva");
    EXPECT_EQ(window->document().athletes()[0].birthYear, 1999);
    press(*window, Qt::CTRL | Qt::SHIFT | Qt::Key_N);
    press(*window, Qt::Key_Insert);
    EXPECT_EQ(results(*window).seasons.at(0).year, 2025);
    EXPECT_THAT(results(*window).seasons.at(0).races, SizeIs(1));
    press(*window, Qt::Key_Delete);
    press(*window, Qt::Key_Delete);
    EXPECT_THAT(results(*window).seasons, IsEmpty());
    window->athletes().table().setFocus();
    press(*window, Qt::Key_Delete);
    EXPECT_THAT(window->document().athletes(), IsEmpty());
    EXPECT_THAT(m_recorder.alerts, IsEmpty());
}

TEST_F(TeamWindowTest, SavesChartsAsPicturesAndData) {
    const auto window = openWindow();
    ASSERT_TRUE(window);
    auto& chart = window->charts().progressionChart();
    for (const auto& [name, start] :
         {std::pair("chart.png", "\x89PNG"), std::pair("chart.svg", "<?xml"),
          std::pair("chart.csv", "Event;Location;Phase;Position\n")}) {
        chart.save(m_folder.path() / name);
        EXPECT_THAT(contentOf(m_folder.path() / name), ::testing::StartsWith(start));
    }
    EXPECT_THROW(chart.save(m_folder.path() / "chart.doc"), FileError);
    EXPECT_THAT(m_folder.names(), Not(Contains("chart.doc")));
}

} // namespace
} // namespace kavela::test
