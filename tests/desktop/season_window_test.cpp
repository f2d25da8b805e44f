#include "desktop/season/season_window.h"

#include "common/json_encode.h"
#include "desktop/charts/interval_chart.h"
#include "desktop/charts/series_chart.h"
#include "desktop/season/comparison_panel.h"
#include "desktop/season/figures_panel.h"
#include "desktop/season/progression_panel.h"
#include "desktop/season/season_header.h"
#include "desktop/season/season_reports.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/team_fixture.h"
#include "race_fixture.h"
#include "splitdata/document.h"

#include <QLabel>
#include <QSignalSpy>

#include <chrono>

/// The window of a team's season as a coach uses it.
namespace kavela::test {
namespace {

using namespace kavela::desktop;
using namespace std::chrono_literals;
using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using ::testing::StartsWith;

/// A race of the season: three boats, of which the first two are the team's.
struct SeasonDay {
    const char* place;
    std::chrono::year_month_day day;
    double anna;
    double berta;
    double rival;
};

const std::vector<SeasonDay> SeasonDays{{"Mill", 2025y / 5 / 10, 90, 91, 93.5},
                                        {"Weir", 2025y / 6 / 7, 88.2, 89.9, 90.4},
                                        {"Harbour", 2025y / 7 / 5, 101, 100.1, 104}};

splittakerdata031 finalOf(const SeasonDay& day) {
    splittakerdata031 race;
    race.info.session = "Race";
    race.info.place = day.place;
    race.info.category = "K1W";
    race.info.date = referenceDate(day.day, 9.5 * 3600);
    for (const auto& [name, time] :
         {std::pair("Anna Bell", day.anna), std::pair("Berta Cole", day.berta),
          std::pair("Cleo Dunn", day.rival)}) {
        athletedata031 run;
        run.names = {name};
        run.phase = "Final";
        run.sectioninfo.realtime = time;
        race.athletes.push_back(run);
    }
    return race;
}

myTeamStruct memberOf(const std::string& name, double SeasonDay::*time) {
    mtSeasonStruct season;
    season.year = 2025;
    for (const SeasonDay& day : SeasonDays) {
        mtPhaseStruct run;
        run.phase = "Final";
        run.time = day.*time;
        run.date = referenceDate(day.day, 12 * 3600);
        season.races.push_back({day.place, "ICF", 2, {run}});
    }
    return {name, 2000, {{"WK1", {season}, {}}}, false};
}

myTeamToSaveStruct teamOfTwo() {
    myTeamToSaveStruct team;
    team.realMyTeam = {memberOf("BELL Anna", &SeasonDay::anna),
                       memberOf("COLE Berta", &SeasonDay::berta)};
    return team;
}

QString qtPathOf(const fs::path& path) {
    return QString::fromStdString(path.string());
}

class SeasonWindowTest : public ::testing::Test {
protected:
    SeasonWindowTest() {
        qputenv("XDG_CACHE_HOME", QByteArray::fromStdString((m_folder.path() / "cache").string()));
        m_workspace.setAlerts(&m_recorder);
        m_window.setAttribute(Qt::WA_DeleteOnClose, false);
        fs::create_directories(races());
        for (const SeasonDay& day : SeasonDays)
            fs::rename(m_folder.add(std::string(day.place) + ".kvx", encode(finalOf(day))),
                       races() / (std::string(day.place) + ".kvx"));
        saveTeamFile(teamOfTwo(), team());
        m_window.show();
    }

    ~SeasonWindowTest() override {
        qunsetenv("XDG_CACHE_HOME");
        EXPECT_THAT(m_recorder.alerts, IsEmpty());
    }

    fs::path team() const { return m_folder.path() / "team.kvteam"; }
    fs::path races() const { return m_folder.path() / "races"; }

    static bool settled(const SeasonWindow& window) {
        return QTest::qWaitFor([&] { return !window.isBusy() && window.season(); });
    }

    [[nodiscard]] bool open() {
        m_window.setPaths({qtPathOf(team()), qtPathOf(races())});
        return settled(m_window);
    }

    TempFolder m_folder;
    Recorder m_recorder;
    Workspace m_workspace{Preferences(m_folder.path() / "preferences.ini"), m_recorder.log(),
                          [] { return ReferenceDate{7.8e8}; }};
    SeasonWindow m_window{m_workspace};
};

} // namespace

TEST_F(SeasonWindowTest, DrawsTheWayThroughTheRacesLinkedWithItsTable) {
    ASSERT_TRUE(open());
    ProgressionPanel& way = m_window.progression();
    ASSERT_THAT(way.rows(), SizeIs(3));
    const ChartContent& chart = way.chart().content();
    ASSERT_THAT(chart.categories, SizeIs(3));
    ASSERT_FALSE(chart.series.empty());
    EXPECT_EQ(chart.series[0].name, "Final") << "no label for phases without a run";
    ASSERT_THAT(chart.series[0].points, SizeIs(3));
    EXPECT_NEAR(chart.series[0].points[2].y(), 100 * (101 / 100.1 - 1), 1e-9);
    EXPECT_THAT(chart.subtitle.toStdString(), HasSubstr("too few"));

    emit way.chart().pointActivated(0, 2);
    const int place = way.table().currentPlace();
    ASSERT_EQ(place, 2);
    constexpr int Behind = 9;
    EXPECT_EQ(way.whyOf(place, Behind)->value, chart.series[0].points[2].y());
    EXPECT_EQ(way.rows()[2].race.location, "Harbour");
    emit way.chart().pointActivated(static_cast<int>(chart.series.size()) - 1, 0);
    EXPECT_EQ(way.table().currentPlace(), 2) << "the line of the medals is nobody's run";

    const fs::path csv = m_folder.path() / "way.csv";
    way.chart().save(csv);
    EXPECT_THAT(contentOf(csv), AllOf(StartsWith("Year;Race;Place;Phase;Percent"),
                                      HasSubstr("2025;ICF;Harbour;Final;0.89")));
    std::optional<Place> wanted;
    QObject::connect(&m_window, &ToolWindow::placeRequested, &m_window,
                     [&](const Place& found) { wanted = found; });
    QTest::keyClick(&way.table(), Qt::Key_Return);
    ASSERT_TRUE(wanted);
    EXPECT_EQ(wanted->file.filename(), "Harbour.kvx");
    EXPECT_EQ(wanted->run, 1U) << "Berta won";
}

TEST_F(SeasonWindowTest, EveryPageShowsTheFigureThatItsExplanationComesTo) {
    ASSERT_TRUE(open());
    constexpr int Value = 2;
    for (const auto& [page, unit] :
         {std::pair(SeasonWindow::Spread, 1.0), std::pair(SeasonWindow::Heads, 100.0),
          std::pair(SeasonWindow::Rates, 100.0), std::pair(SeasonWindow::Places, 1.0),
          std::pair(SeasonWindow::Benchmarks, 1.0)}) {
        m_window.showPage(page);
        const FiguresPanel& panel = m_window.figures(page);
        const auto& lines = panel.shown().lines;
        ASSERT_THAT(lines, testing::Not(IsEmpty())) << page;
        EXPECT_FALSE(panel.chart().content().subtitle.isEmpty()) << page;
        for (std::size_t i = 0; i < lines.size(); ++i) {
            const auto reason = panel.whyOf(static_cast<int>(i), Value);
            ASSERT_TRUE(reason) << page << ' ' << i;
            EXPECT_NEAR(unit * reason->value, *lines[i].figure.value, 1e-9) << page << ' ' << i;
        }
        emit panel.chart().markActivated(lines.size() - 1);
        EXPECT_EQ(panel.table().currentPlace(), static_cast<int>(lines.size()) - 1) << page;
        panel.table().choose(0);
        EXPECT_EQ(panel.chart().chosen(), 0U) << page;
    }
    const FiguresPanel& trend = m_window.figures(SeasonWindow::Trend);
    EXPECT_THAT(trend.chart().content().marks, IsEmpty()) << "three runs tell no trend";
    EXPECT_EQ(trend.shown().lines[0].beside[0].text, "too few");
    EXPECT_FALSE(trend.whyOf(0, Value));
}

TEST_F(SeasonWindowTest, ComparesAthletesAndGoesToTheOneOfTheRow) {
    ASSERT_TRUE(open());
    m_window.showPage(SeasonWindow::Compared);
    ComparisonPanel& compared = m_window.compared();
    ASSERT_THAT(compared.chart().content().series, SizeIs(2));
    emit compared.chart().pointActivated(1, 0);
    EXPECT_EQ(compared.current(), 1U);
    EXPECT_TRUE(compared.chart().content().series[1].isStrong);
    constexpr int Median = 2;
    EXPECT_NEAR(compared.whyOf(1, Median)->value,
                compared.chart().content().series[1].points[0].y(), 1e-9);
    m_window.showChosenAthlete();
    EXPECT_EQ(m_window.page(), SeasonWindow::Progression);
    EXPECT_EQ(m_window.header().athleteName(), "COLE Berta");
    EXPECT_THAT(m_window.progression().chart().content().title.toStdString(),
                HasSubstr("COLE Berta"));
}

TEST_F(SeasonWindowTest, ExpectsThePlacesOfAFieldAndNamesWhoIsNotKnown) {
    ASSERT_TRUE(open());
    const FiguresPanel& places = m_window.figures(SeasonWindow::Places);
    EXPECT_THAT(places.shown().lines, SizeIs(3));
    m_window.setField({"Cleo Dunn", " BELL Anna ", "", "Nobody Known"});
    ASSERT_TRUE(settled(m_window));
    EXPECT_THAT(places.shown().lines, SizeIs(2));
    EXPECT_THAT(m_window.status().toStdString(),
                HasSubstr("nobody in these races is called Nobody Known"));
}

TEST_F(SeasonWindowTest, KeepsToTheRacesInWhichTheAthleteStarts) {
    splittakerdata031 race = finalOf({"Brook", 2025y / 8 / 2, 95, 0, 97});
    race.athletes.erase(race.athletes.begin() + 1); // without Berta
    fs::rename(m_folder.add("Brook.kvx", encode(race)), races() / "Brook.kvx");
    ASSERT_TRUE(open());
    const auto runs = [this] { return m_window.season()->season.spread.runs; };
    EXPECT_EQ(runs(), 11U);
    m_window.header().chooseAthlete(1);
    m_window.header().setOwnStarts(true);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !m_window.isBusy() && runs() == 9; }));
    EXPECT_EQ(m_window.header().athleteName(), "COLE Berta") << "who is shown stays";
    EXPECT_THAT(m_window.header().athletes(), SizeIs(2));
    m_window.header().stepAthlete(-1);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !m_window.isBusy() && runs() == 11; }))
        << "the races follow the athlete";

    SeasonWindow again(m_workspace);
    again.setAttribute(Qt::WA_DeleteOnClose, false);
    m_window.header().chooseAthlete(1);
    again.showAgain(m_window.shownView());
    again.setPaths(m_window.paths());
    ASSERT_TRUE(QTest::qWaitFor([&] {
        return again.season() && !again.isBusy() && again.season()->season.spread.runs == 9;
    })) << "also when the window comes back";
}

TEST_F(SeasonWindowTest, FollowsTheTeamOnTheDiskAndKeepsWhoIsShown) {
    ASSERT_TRUE(open());
    m_window.header().chooseAthlete(QStringLiteral("Berta Cole"));
    myTeamToSaveStruct grown = teamOfTwo();
    grown.realMyTeam.insert(grown.realMyTeam.begin(), memberOf("ABLE Dora", &SeasonDay::rival));
    saveTeamFile(grown, team());
    ASSERT_TRUE(QTest::qWaitFor([&] { return m_window.season()->season.athletes.size() == 3U; }));
    EXPECT_EQ(m_window.header().athleteName(), "COLE Berta");

    (void)m_folder.add("team.kvteam", "no team");
    ASSERT_TRUE(QTest::qWaitFor(
        [&] { return m_window.status().contains("the team could not be read again"); }));
    EXPECT_THAT(m_window.season()->season.athletes, SizeIs(3)) << "what was read stays";
}

TEST_F(SeasonWindowTest, TellsWhatWinnersAreKnownWithoutSplitFiles) {
    m_window.setPaths({qtPathOf(team())});
    ASSERT_TRUE(settled(m_window));
    EXPECT_THAT(m_window.findChild<QLabel*>("races")->text().toStdString(),
                HasSubstr("No split files"));
    EXPECT_FALSE(m_window.progression().whyOf(0, 9)) << "no winner is guessed";
    EXPECT_FALSE(m_window.progression().chart().emptyMessage().isEmpty());
    (void)m_window.open(qtPathOf(races()));
    ASSERT_TRUE(QTest::qWaitFor([&] { return m_window.progression().whyOf(0, 9).has_value(); }));
    EXPECT_EQ(m_window.paths(), QStringList({qtPathOf(team()), qtPathOf(races())}));
}

TEST_F(SeasonWindowTest, WritesReportsBesideTheWindowAndNeverOverTheTeam) {
    ASSERT_TRUE(open());
    SeasonReports& reports = m_window.reports();
    QSignalSpy written(&reports, &SeasonReports::written);
    for (const SeasonReports::Whose whose :
         {SeasonReports::Whose(), SeasonReports::Whose(std::size_t{1})}) {
        const fs::path pdf =
            m_folder.path() / SeasonReports::fileName(*m_window.season(), whose).toStdString();
        reports.write(m_window.season(), whose, qtPathOf(pdf), qtPathOf(team()));
        ASSERT_TRUE(written.wait());
        EXPECT_THAT(contentOf(pdf), StartsWith("%PDF"));
    }
    const std::string before = contentOf(team());
    reports.write(m_window.season(), 0, qtPathOf(team()), qtPathOf(team()));
    EXPECT_EQ(contentOf(team()), before);
    EXPECT_THAT(std::exchange(m_recorder.alerts, {}), SizeIs(1));
}

TEST_F(SeasonWindowTest, ComesBackWithItsPageAndAthlete) {
    {
        Desktop program(m_workspace);
        program.openSeason({qtPathOf(team()), qtPathOf(races())});
        program.openSeason({qtPathOf(team())});
        ASSERT_THAT(program.windowsOf<SeasonWindow>(), SizeIs(1)) << "once for each team";
        SeasonWindow& window = *program.windowsOf<SeasonWindow>().front();
        ASSERT_TRUE(settled(window));
        window.header().chooseAthlete(1);
        window.showPage(SeasonWindow::Rates);
        program.rememberSession();
    }
    Desktop next(m_workspace);
    ASSERT_TRUE(next.restoreSession());
    ASSERT_THAT(next.windowsOf<SeasonWindow>(), SizeIs(1));
    SeasonWindow& window = *next.windowsOf<SeasonWindow>().front();
    ASSERT_TRUE(settled(window));
    EXPECT_EQ(window.page(), SeasonWindow::Rates);
    EXPECT_EQ(window.header().athleteName(), "COLE Berta");
    EXPECT_EQ(window.paths(), QStringList({qtPathOf(team()), qtPathOf(races())}));
}

TEST_F(TeamFixture, TellsTheFewFiguresOfASeasonAndOpensItAtTheAthlete) {
    const auto window = openWindow();
    ASSERT_TRUE(window);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !window->isComputingSeason(); }));
    const auto* const label = window->findChild<QLabel*>("season");
    EXPECT_THAT(label->text().toStdString(), HasSubstr("medals 1 of 4 ("));
    QSignalSpy requested(window.get(), &TeamWindow::seasonRequested);
    press(*window, Qt::Key_F6);
    ASSERT_EQ(requested.count(), 1);
    EXPECT_EQ(requested[0][0].toString(), QStringLiteral("ŠTERN Ann Marie"));
    EXPECT_EQ(requested[0][1].toString(), "WK1");
    EXPECT_EQ(requested[0][2].toString(), qtPathOf(file()));
    window->athletes().choose(1);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !window->isComputingSeason(); }));
    EXPECT_THAT(label->text().toStdString(), testing::Not(HasSubstr("medals 1 of 4")));
}

} // namespace kavela::test
