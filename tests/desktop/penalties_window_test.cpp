#include "desktop/path_text.h"
#include "desktop/penalties/penalties_window.h"

#include "common/json_encode.h"
#include "desktop/charts/interval_chart.h"
#include "desktop/charts/series_chart.h"
#include "desktop/facts/failed_files.h"
#include "desktop/penalties/cost_panel.h"
#include "desktop/penalties/course_panel.h"
#include "desktop/penalties/details_panel.h"
#include "desktop/penalties/drawn_rates.h"
#include "desktop/penalties/penalty_filter.h"
#include "desktop/penalties/rates_panel.h"
#include "desktop/penalties/trade_off_panel.h"
#include "desktop/shell/tables/column_table.h"
#include "race_fixture.h"
#include "report/course_picture.h"
#include "splitdata/document.h"

#include <QBuffer>
#include <QComboBox>
#include <QImage>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTableView>

#include <cmath>

/// The window of penalties as a coach uses it.
namespace kavela::test {
namespace {

using namespace kavela::desktop;
using ::testing::AllOf;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using ::testing::StartsWith;

athletedata031 paddled(const std::string& name, double second, std::vector<std::int64_t> pens,
                       const char* category = "K1W") {
    athletedata031 run;
    run.names = {name};
    run.phase = "Final";
    run.cat = category;
    run.sectioninfo.times = {40, second};
    run.sectioninfo.pens = std::move(pens);
    for (const std::int64_t pen : run.sectioninfo.pens)
        run.sectioninfo.totalpen += pen;
    return run;
}

/// Four gates in two sections, the third one upstream.
splittakerdata031 raceOf(std::vector<athletedata031> runs) {
    splittakerdata031 document;
    document.info.session = "Race";
    document.info.gates = 4;
    document.info.upGates = {3};
    document.info.definedsections = {{1, 2}, {3, 4}};
    document.info.totalsplits = 2;
    document.athletes = std::move(runs);
    return document;
}

/// Eight boats a second apart. The second has two touches, the fifth missed a gate.
splittakerdata031 final() {
    std::vector<athletedata031> runs;
    for (int i = 0; i < 8; ++i)
        runs.push_back(paddled("Crew " + std::to_string(i), 41 + i, {0, 0, 0, 0}));
    runs[1].sectioninfo.pens = {0, 0, 2, 2};
    runs[1].sectioninfo.totalpen = 4;
    runs[4].sectioninfo.pens = {50, 0, 0, 0};
    runs[4].sectioninfo.totalpen = 50;
    pendata030 noted;
    noted.gate = {3, 4};
    noted.polekind = {1, 1};
    runs[1].sectioninfo.pendetails = {noted};
    return raceOf(std::move(runs));
}

/// Thirty of forty touched the third gate.
splittakerdata031 touchedAtThree() {
    std::vector<athletedata031> runs;
    for (int i = 0; i < 40; ++i)
        runs.push_back(paddled("Crew " + std::to_string(i), 41 + i, {0, 0, i < 30 ? 2 : 0, 0},
                               i % 2 == 0 ? "K1W" : "C1M"));
    return raceOf(std::move(runs));
}

/// What is kept of files that were read goes into a folder of the test's own.
struct OwnCache {
    explicit OwnCache(const fs::path& folder) {
        qputenv("XDG_CACHE_HOME", QByteArray::fromStdString((folder / "cache").string()));
    }
    ~OwnCache() { qunsetenv("XDG_CACHE_HOME"); }
};

QString textIn(const ColumnTable& table, int row, const QString& title) {
    const QAbstractItemModel& model = *table.model();
    for (int column = 0; column < model.columnCount(); ++column)
        if (model.headerData(column, Qt::Horizontal).toString() == title)
            return model.index(row, column).data().toString();
    ADD_FAILURE() << "no column " << title.toStdString();
    return {};
}

class PenaltiesWindowTest : public ::testing::Test {
protected:
    PenaltiesWindowTest() {
        m_workspace.setAlerts(&m_recorder);
        m_window.setAttribute(Qt::WA_DeleteOnClose, false);
        m_window.show();
    }

    ~PenaltiesWindowTest() override { EXPECT_THAT(m_recorder.alerts, IsEmpty()); }

    fs::path add(const char* name, const splittakerdata031& document) {
        return m_folder.add(name, encode(document));
    }

    [[nodiscard]] bool settled() {
        return QTest::qWaitFor([this] { return !m_window.isBusy() && m_window.figures(); });
    }

    [[nodiscard]] bool open(const QStringList& paths) {
        m_window.setPaths(paths);
        return settled();
    }

    /// That every number of a table is the one that its explanation comes to.
    template <class Panel>
    static int explainedIn(const Panel& panel) {
        int explained = 0;
        const QAbstractItemModel& model = *panel.table().model();
        for (int row = 0; row < model.rowCount(); ++row)
            for (int column = 0; column < model.columnCount(); ++column) {
                const QModelIndex cell = model.index(row, column);
                const auto reason = panel.whyOf(panel.table().placeAt(cell), column);
                explained += reason.has_value();
                EXPECT_TRUE(!reason || reason->rule) << row << ' ' << column;
            }
        return explained;
    }

    TempFolder m_folder;
    OwnCache m_cache{m_folder.path()};
    Recorder m_recorder;
    Workspace m_workspace{Preferences(m_folder.path() / "preferences.ini"), m_recorder.log(),
                          [] { return ReferenceDate{7e8}; }};
    PenaltiesWindow m_window{m_workspace};
};

} // namespace

TEST_F(PenaltiesWindowTest, DrawsTheCourseAndSaysWhatStandsOut) {
    ASSERT_TRUE(open({pathText(add("cup.kvx", touchedAtThree()))}));
    IntervalChart& chart = m_window.course().chart();
    const IntervalChartContent& course = chart.content();
    ASSERT_THAT(course.marks, SizeIs(4));
    EXPECT_TRUE(course.marks[2].isBold && course.marks[2].isUpstream);
    EXPECT_FALSE(course.marks[1].isBold || course.marks[1].isUpstream);
    EXPECT_EQ(course.marks[2].section, 2U);
    EXPECT_THAT(course.subtitle.toStdString(), StartsWith("Gate 3 (30 of 40) stands out"));
    EXPECT_THAT(chart.readOutOf(2).toStdString(),
                AllOf(HasSubstr("Gate 3, upstream"), HasSubstr("30 of 40 touched")));
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&m_window));
    (void)m_window.grab(); // lays the chart out
    for (std::size_t gate = 0; gate < 4; ++gate)
        EXPECT_EQ(chart.markAt(chart.placeOf(gate)), gate);

    const fs::path table = m_folder.path() / "course.csv";
    chart.save(table);
    EXPECT_THAT(contentOf(table), AllOf(StartsWith("Gate;Upstream;Section;Passages;Touches"),
                                        HasSubstr("\n3;1;2;40;30;0;")));
    chart.save(m_folder.path() / "course.svg");
    EXPECT_THAT(contentOf(m_folder.path() / "course.svg"), HasSubstr("<svg"));

    ASSERT_TRUE(open({pathText(add("final.kvx", final()))}));
    EXPECT_EQ(course.subtitle, "Too few to tell: 2 touches in 32 passages.");
    EXPECT_FALSE(chart.content().marks[2].isBold);
}

TEST_F(PenaltiesWindowTest, TellsWhatATouchCostAndOpensItsRun) {
    ASSERT_TRUE(open({pathText(add("final.kvx", final()))}));
    ColumnTable& costs = m_window.costs().table();
    ASSERT_EQ(costs.model()->rowCount(), 3);
    EXPECT_EQ(textIn(costs, 0, "Crew"), "Crew 1") << "a medal comes first";
    EXPECT_EQ(textIn(costs, 0, "Without it"), "Without this touch: 3rd. A medal.");
    EXPECT_EQ(textIn(costs, 0, "Rank"), "4");
    EXPECT_EQ(textIn(costs, 2, "Without it"), "Without this missed gate: 4th.");
    EXPECT_EQ(m_window.costs().sentence(), "Of 3 penalties 3 cost places, 2 of them a medal.");

    std::optional<Place> wanted;
    QObject::connect(&m_window, &ToolWindow::placeRequested, &m_window,
                     [&](const Place& place) { wanted = place; });
    m_window.showPage(PenaltiesWindow::Costs);
    costs.choose(2);
    QTest::keyClick(&costs, Qt::Key_Return);
    ASSERT_TRUE(wanted);
    EXPECT_EQ(wanted->file.filename(), "final.kvx");
    EXPECT_EQ(wanted->run, 4U);
    EXPECT_EQ(wanted->gate, 1U);
    EXPECT_EQ(wanted->split, 1U) << "no film says when the section begins";

    emit m_window.course().chart().markActivated(2);
    EXPECT_EQ(m_window.page(), PenaltiesWindow::Costs);
    ASSERT_EQ(costs.model()->rowCount(), 1) << "of the third gate alone";
    EXPECT_EQ(textIn(costs, 0, "Gate"), "3");
    m_window.findChild<QPushButton*>("allCosts")->click();
    EXPECT_EQ(costs.model()->rowCount(), 3);
}

TEST_F(PenaltiesWindowTest, EveryNumberTellsWhy) {
    ASSERT_TRUE(open({pathText(add("final.kvx", final()))}));
    EXPECT_EQ(explainedIn(m_window.rates()), 4 * 10) << "all but the names";
    const RatesPanel& rates = m_window.rates();
    const auto at = [&](int column) {
        return rates.table().model()->index(0, column).data().toString().toDouble();
    };
    for (const int column : {3, 5, 7, 9})
        EXPECT_NEAR(at(column), 100 * rates.whyOf(0, column)->value, 0.05) << column;
    EXPECT_EQ(explainedIn(m_window.costs()), 3 * 7);
    EXPECT_EQ(m_window.costs().whyOf(0, 9)->value, 1) << "fourth, and third without it";
    EXPECT_GT(explainedIn(m_window.details()), 0);
    EXPECT_EQ(explainedIn(m_window.details()), m_window.details().table().model()->rowCount() * 4);
    const auto& marks = m_window.details().chart().content().marks;
    ASSERT_FALSE(marks.empty());
    m_window.showPage(PenaltiesWindow::Details);
    emit m_window.details().chart().markActivated(marks.size() - 1);
    const int place = m_window.details().table().currentPlace();
    ASSERT_GE(place, static_cast<int>(marks.size()) - 1) << "behind rows of what was not noted";
    EXPECT_NEAR(m_window.details().whyOf(place, 4)->value * 100, marks.back().value, 1e-9);
    EXPECT_EQ(explainedIn(m_window.tradeOff()), 3 * 6);
    EXPECT_NEAR(m_window.tradeOff().whyOf(0, 2)->value, 2 / 3.0, 1e-9) << "two of three runs";
    for (const RateBy by : {RateBy::Type, RateBy::Crew, RateBy::Hand, RateBy::File}) {
        m_window.rates().setBy(by);
        ASSERT_TRUE(settled());
        EXPECT_EQ(explainedIn(m_window.rates()), m_window.rates().table().model()->rowCount() * 10)
            << nameOf(by);
    }
}

TEST_F(PenaltiesWindowTest, DrawsTheCourseOverItsPictureWhereTheFileHoldsOne) {
    QByteArray png;
    QBuffer buffer(&png);
    QImage drawn(40, 20, QImage::Format_RGB32);
    drawn.fill(Qt::red);
    ASSERT_TRUE(drawn.save(&buffer, "PNG"));
    splittakerdata031 race = final();
    race.info.coursedesign.bytes = std::vector<unsigned char>(png.begin(), png.end());
    ASSERT_TRUE(open({pathText(add("drawn.kvx", race))}));
    const IntervalChart& chart = m_window.course().chart();
    EXPECT_TRUE(QTest::qWaitFor([&] { return chart.content().backdrop.size() == QSize(40, 20); }));
    const auto* const remark = m_window.findChild<QLabel*>("pictureRemark");
    EXPECT_FALSE(remark->isVisibleTo(&m_window.course()));

    race.info.coursedesign.bytes = std::vector<unsigned char>{1, 2, 3};
    ASSERT_TRUE(open({pathText(add("broken.kvx", race))}));
    EXPECT_TRUE(QTest::qWaitFor([&] { return remark->isVisibleTo(&m_window.course()); }));
    EXPECT_TRUE(chart.content().backdrop.isNull()) << "that of the file before is gone";
    EXPECT_THAT(chart.content().marks, SizeIs(4));
}

TEST_F(PenaltiesWindowTest, ShowsTheRatesAtTheGatesOfACourseThatWasDrawn) {
    splittakerdata031 race = final();
    coursedesign001 design;
    design.gates = {{1, {0.2, 0.1}, {0.2, 0.2}}, {3, {0.6, 0.3}, {0.6, 0.4}}};
    race.info.coursedesign = report::coursePicture(report::CoursePainting(design, 0.5, {}));
    ASSERT_TRUE(open({pathText(add("drawn.kvx", race))}));
    desktop::DrawnRates& drawn = m_window.course().drawn();
    ASSERT_TRUE(QTest::qWaitFor([&] { return drawn.isVisibleTo(&m_window.course()); }));
    EXPECT_TRUE(m_window.course().chart().content().backdrop.isNull()) << "it is there once";
    EXPECT_THAT(drawn.tellOf(3).toStdString(), StartsWith("Gate 3: "));
    EXPECT_FALSE(drawn.placeOf(2)) << "nobody drew it";
    QSignalSpy chosen(&m_window.course(), &desktop::CoursePanel::gateActivated);
    drawn.resize(400, 300);
    QTest::mouseClick(&drawn, Qt::LeftButton, {}, drawn.placeOf(3).value().toPoint());
    ASSERT_EQ(chosen.size(), 1);
    EXPECT_EQ(chosen[0][1].toLongLong(), 3);
}

TEST_F(PenaltiesWindowTest, FiltersByCategoryAndCrewAndSaysWhatSpeedPays) {
    ASSERT_TRUE(open({pathText(add("cup.kvx", touchedAtThree()))}));
    EXPECT_THAT(m_window.findChild<QLabel*>("clean")->text().toStdString(),
                StartsWith("10 of 40 whole runs without a penalty: 25.0 %"));
    EXPECT_EQ(m_window.tradeOff().breakEven().text(), "1 % of speed pays for 0.50 touches a run.");
    auto* const categories = m_window.findChild<QComboBox*>("category");
    ASSERT_EQ(categories->count(), 3);
    categories->setCurrentText("C1M");
    ASSERT_TRUE(settled());
    EXPECT_EQ(m_window.figures()->rates.runs, 20U);
    auto* const crews = m_window.findChild<QComboBox*>("crew");
    crews->setCurrentText("Crew 1");
    ASSERT_TRUE(settled());
    EXPECT_EQ(m_window.figures()->rates.runs, 1U);
    EXPECT_EQ(m_window.figures()->costs.front().of, 20U) << "she is ranked among all";

    // Her file goes, and with it the choice.
    ASSERT_TRUE(open({pathText(add("final.kvx", final()))}));
    EXPECT_EQ(categories->currentText(), "All");
    m_window.filter().clear();
    ASSERT_TRUE(settled());
    EXPECT_EQ(m_window.figures()->rates.runs, 8U);
}

TEST_F(PenaltiesWindowTest, ReadsAFolderAndTellsWhatItCouldNotRead) {
    const fs::path season = m_folder.path() / "season";
    fs::create_directories(season / "spring");
    fs::rename(add("cup.kvx", touchedAtThree()), season / "spring" / "cup.kvx");
    fs::rename(add("final.kvx", final()), season / "final.kvx");
    fs::rename(m_folder.add("broken.kvx", "no split file"), season / "broken.kvx");
    ASSERT_TRUE(open({pathText(season)}));
    EXPECT_THAT(m_window.status().toStdString(),
                AllOf(StartsWith("2 files · 48 runs"), HasSubstr("1 file could not be read")));
    m_window.findChild<QPushButton*>("failed")->click();
    const auto* const list = m_window.findChild<desktop::FailedFiles*>();
    ASSERT_TRUE(list);
    const auto* const rows = list->findChild<QTableView*>()->model();
    ASSERT_EQ(rows->rowCount(), 1);
    EXPECT_EQ(rows->index(0, 0).data().toString(), "broken.kvx");

    auto* const courses = m_window.findChild<QComboBox*>("course");
    ASSERT_EQ(courses->count(), 2);
    const QString first = m_window.course().chart().content().title;
    m_window.course().showNext(1);
    EXPECT_NE(m_window.course().chart().content().title, first);
    EXPECT_EQ(explainedIn(m_window.rates()), 8 * 10) << "gates of two files";
    EXPECT_GT(explainedIn(m_window.costs()), 0) << "runs of two files";
}

/// From the analyzer, from home, and at the next start.
TEST_F(RaceWindowTest, OpensThePenaltiesOfItsRaceOnceAndAgainAtTheNextStart) {
    const OwnCache cache(m_folder.path());
    RaceWindow* const race = open(Examples / "races" / "riverside_cup.kvx");
    ASSERT_TRUE(race);
    trigger(*race, QKeySequence("Ctrl+Shift+P"));
    trigger(*race, QKeySequence("Ctrl+Shift+P"));
    ASSERT_THAT(m_desktop.windowsOf<PenaltiesWindow>(), SizeIs(1));
    PenaltiesWindow& window = *m_desktop.windowsOf<PenaltiesWindow>().front();
    EXPECT_EQ(window.paths(), race->paths());
    ASSERT_TRUE(QTest::qWaitFor([&] { return !window.isBusy() && window.figures(); }));
    EXPECT_GT(window.figures()->rates.runs, 0U);
    race->close();

    Desktop next(m_workspace);
    EXPECT_TRUE(next.restoreSession());
    EXPECT_THAT(next.windowsOf<PenaltiesWindow>(), SizeIs(1));
}

} // namespace kavela::test
