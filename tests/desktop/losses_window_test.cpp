#include "desktop/losses/losses_window.h"

#include "common/json_encode.h"
#include "common/recorders.h"
#include "common/temp_folder.h"
#include "desktop/charts/chart_plot.h"
#include "desktop/charts/interval_chart.h"
#include "desktop/desktop.h"
#include "desktop/film/clip_pair.h"
#include "desktop/losses/athlete_page_dialog.h"
#include "desktop/losses/athlete_pages.h"
#include "desktop/losses/heat_map_chart.h"
#include "desktop/losses/loss_charts_panel.h"
#include "desktop/losses/loss_header.h"
#include "desktop/losses/loss_rows.h"
#include "desktop/losses/loss_tables.h"
#include "desktop/losses/run_picker.h"
#include "desktop/losses/season_page.h"
#include "desktop/losses/waterfall_chart.h"
#include "desktop/page/phone_pages.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/workspace.h"
#include "performance/loss_races.h"

#include <gmock/gmock.h>

#include <QComboBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>

#include <numeric>

/// The window of losses: what it shows adds up, and all its parts show the same.
namespace kavela::test {
namespace {

namespace fs = std::filesystem;
using namespace kavela::desktop;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

splittakerdata031 threeRuns() {
    return lossRace(3, {lossRun({"Ada Sample"}, {10.004, 20.004, 30.004}),
                        lossRun({"Bea Sample"}, {11, 20.5, 29.8}),
                        lossRun({"Ondřej Skalboř"}, {10.4, 22.224, 31.008})});
}

class LossesWindowTest : public ::testing::Test {
protected:
    LossesWindowTest() {
        m_workspace.setAlerts(&m_recorder);
        m_window.setAttribute(Qt::WA_DeleteOnClose, false);
        m_window.show();
    }
    ~LossesWindowTest() override { EXPECT_THAT(m_recorder.alerts, IsEmpty()); }

    QString add(const std::string& name, const splittakerdata031& race) {
        return QString::fromStdString(m_folder.add(name, encode(race)).string());
    }

    [[nodiscard]] bool open(const QStringList& paths, std::optional<std::size_t> run = {}) {
        m_window.setPaths(paths, run);
        return QTest::qWaitFor([this] { return !m_window.facts().isReading(); }) &&
               QTest::qWaitFor([this] { return m_window.state().hasRun(); });
    }

    static QString cell(const ColumnTable& table, int place, int column) {
        return table.cellAt(place, column).data().toString();
    }

    LossState& state() { return m_window.state(); }

    TempFolder m_folder;
    Recorder m_recorder;
    Workspace m_workspace{Preferences(m_folder.path() / "preferences.ini"), m_recorder.log(),
                          [] { return ReferenceDate{7e8}; }};
    LossesWindow m_window{m_workspace};
};

} // namespace

TEST_F(LossesWindowTest, ShowsASumThatAddsUpToTheHundredth) {
    ASSERT_TRUE(open({add("race.kvx", threeRuns())}, 2));
    EXPECT_EQ(m_window.header().sentence(), "Ondřej Skalboř, Final  +3.62 on winner");
    const WaterfallChart& chart = m_window.charts().waterfall();
    ASSERT_THAT(chart.bars(), SizeIs(5)) << "no penalties, no timing";
    EXPECT_EQ(chart.valueOf(0), "60.01");
    EXPECT_EQ(chart.valueOf(4), "63.63");
    EXPECT_EQ(chart.bars()[3].to, chart.bars()[4].to) << "the last part ends at the total";
    const ColumnTable& table = m_window.tables().stretches();
    double sum = 0;
    for (int place = 0; place < 3; ++place) {
        EXPECT_EQ(cell(table, place, 2), chart.valueOf(static_cast<std::size_t>(place) + 1));
        sum += cell(table, place, 2).toDouble();
    }
    EXPECT_NEAR(sum, 3.62, 1e-9);
    EXPECT_THAT(m_window.charts().waterfall().plot().subtitle().toStdString(),
                HasSubstr("Most was lost in S2: 2.22 s of +3.62."));
}

TEST_F(LossesWindowTest, TheFirstKeysAreNotTypedIntoTheRun) {
    ASSERT_TRUE(open({add("race.kvx", threeRuns())}, 2));
    EXPECT_EQ(m_window.focusWidget(), m_window.tables().currentWidget());
    m_window.header().findRun();
    EXPECT_EQ(m_window.focusWidget(), &m_window.header().picker());
}

TEST_F(LossesWindowTest, ComesBackWithEachWindowsRunAndReference) {
    const Autosave autosave(QString::fromStdString((m_folder.path() / "kept").string()));
    const QString first = add("first.kvx", threeRuns());
    const QString second = add("second.kvx", threeRuns());
    const auto isRead = [](LossesWindow& window) {
        return QTest::qWaitFor([&] { return !window.facts().isReading(); }) &&
               QTest::qWaitFor([&] { return window.state().hasRun(); });
    };
    {
        Desktop program(m_workspace, autosave);
        program.openLosses({first}, 1);
        program.openLosses({first, second}, 2);
        const auto windows = program.windowsOf<LossesWindow>();
        ASSERT_THAT(windows, SizeIs(2));
        for (LossesWindow* const window : windows)
            ASSERT_TRUE(isRead(*window));
        windows[0]->setSeasonShown(true);
        windows[1]->state().setReference({LossReferenceKind::Run, 1});
        windows[1]->state().chooseSection(2);
        program.rememberSession();
    }
    Desktop program(m_workspace, autosave);
    ASSERT_TRUE(program.restoreSession());
    const auto windows = program.windowsOf<LossesWindow>();
    ASSERT_THAT(windows, SizeIs(2));
    for (LossesWindow* const window : windows)
        ASSERT_TRUE(isRead(*window));
    EXPECT_EQ(windows[0]->paths(), QStringList(first));
    EXPECT_EQ(windows[0]->state().run(), 1U);
    EXPECT_TRUE(windows[0]->isSeasonShown());
    EXPECT_EQ(windows[1]->paths(), QStringList({first, second}));
    EXPECT_EQ(windows[1]->state().run(), 2U);
    EXPECT_EQ(windows[1]->state().losses().referenceRun, 1U);
    EXPECT_EQ(windows[1]->state().section(), 2U);
    EXPECT_FALSE(windows[1]->isSeasonShown());
}

TEST_F(LossesWindowTest, LinksTablesChartsAndReference) {
    ASSERT_TRUE(open({add("race.kvx", threeRuns())}, 2));
    m_window.tables().stretches().choose(1);
    EXPECT_EQ(state().section(), 2U);
    EXPECT_EQ(m_window.charts().waterfall().barAt({-1, -1}), 2U);
    HeatMapChart& map = m_window.charts().heatMap();
    EXPECT_EQ(map.placeAt({-1, -1}), (HeatMapChart::Place{2, 2}));

    m_window.tables().runs().choose(1);
    EXPECT_EQ(state().run(), 1U);
    EXPECT_EQ(state().section(), 2U) << "the same section of the other run";
    emit map.cellActivated(2, 3);
    EXPECT_EQ(state().run(), 2U);
    EXPECT_EQ(m_window.tables().runs().currentPlace(), 2);
    EXPECT_EQ(m_window.tables().stretches().currentPlace(), 2);

    map.toggleSeries(1); // a click on the second name
    EXPECT_EQ(state().losses().referenceRun, 1U);
    EXPECT_EQ(m_window.header().sentence(), "Ondřej Skalboř, Final  +2.33 on Bea Sample, Final");
    EXPECT_EQ(m_window.header().references().currentData(), "run:1");
    const QModelIndex tick = m_window.tables().runs().cellAt(0, 3);
    m_window.tables().runs().model()->setData(tick, Qt::Checked, Qt::CheckStateRole);
    EXPECT_EQ(state().losses().referenceRun, 0U);
}

TEST_F(LossesWindowTest, PaintsTheMapByTheScaleAndSaysTheNumbers) {
    ASSERT_TRUE(open({add("race.kvx", threeRuns())}));
    HeatMapChart& map = m_window.charts().heatMap();
    EXPECT_EQ(map.textOf(0, 0), "0.0") << "the winner";
    EXPECT_EQ(map.textOf(2, 1), "+11.1");
    const auto green = map.tintOf(0, 0);
    ASSERT_TRUE(green);
    EXPECT_NE(green, map.tintOf(2, 1));
    state().setScale(ColourScale::BlueOrange);
    ASSERT_TRUE(map.tintOf(0, 0));
    EXPECT_NE(map.tintOf(0, 0), green);
    EXPECT_THAT(map.csv().toStdString(), HasSubstr("Ondřej Skalboř"));
}

TEST_F(LossesWindowTest, FindsARunByItsLettersWhateverTheirAccents) {
    ASSERT_TRUE(open({add("race.kvx", threeRuns())}));
    RunPicker& picker = m_window.header().picker();
    EXPECT_EQ(picker.found("SKALBOR final"), 2U);
    EXPECT_FALSE(picker.found("nobody"));
    picker.setEditText("skalb");
    emit picker.lineEdit()->editingFinished();
    EXPECT_EQ(state().run(), 2U);
    EXPECT_EQ(picker.currentText(), "Ondřej Skalboř, Final · K1M");
}

TEST_F(LossesWindowTest, EveryNumberOfTheSumTellsWhy) {
    ASSERT_TRUE(open({add("race.kvx", threeRuns())}, 2));
    const StretchLine line = stretchLines(state()).at(1);
    const auto lost = whyOf(state(), line, 2, 1);
    ASSERT_TRUE(lost);
    EXPECT_EQ(lost->value, line.stretch.loss);
    EXPECT_THAT(lost->inputs, SizeIs(2));
    EXPECT_FALSE(whyOf(state(), line, 1, 1)) << "a word is no number";
    const auto gap = state().why(LossNumber::Gap);
    ASSERT_TRUE(gap);
    EXPECT_EQ(gap->value, state().losses().sum->gap);
    EXPECT_TRUE(whyOf(state(), runLines(state()).at(1), 6)) << "paddling of another run";
    const RunLine last = runLines(state()).at(2);
    const auto place = whyOf(state(), last, 0);
    ASSERT_TRUE(place);
    EXPECT_EQ(place->value, 3);
    EXPECT_THAT(place->inputs, SizeIs(3)) << "its total and the two in front";
    EXPECT_EQ(whyOf(state(), last, 4)->value, *last.total);
    const auto penalty = whyOf(state(), line, 10, 1);
    ASSERT_TRUE(penalty);
    EXPECT_EQ(penalty->inputs.front().place->split, 2U);
}

TEST_F(LossesWindowTest, SaysThatThereIsNoFilm) {
    ASSERT_TRUE(open({add("race.kvx", threeRuns())}, 2));
    m_window.playChosen();
    EXPECT_THAT(m_window.status().toStdString(), HasSubstr("Choose a section"));
    emit m_window.charts().waterfall().stretchActivated(1);
    EXPECT_EQ(state().section(), 2U);
    EXPECT_THAT(m_window.status().toStdString(), HasSubstr("No film"));
    EXPECT_FALSE(m_window.clips().isVisible());
}

TEST_F(LossesWindowTest, StaysWithTheCrewWhenTheFileChanges) {
    splittakerdata031 race = threeRuns();
    const QString path = add("race.kvx", race);
    ASSERT_TRUE(open({path}, 2));
    state().setReference({LossReferenceKind::Run, 1});
    FactStore changed;
    race.athletes.insert(race.athletes.begin(), lossRun({"New One"}, {12, 22, 32}));
    changed.add(race, std::string(state().facts().text(state().file().path)));
    state().setFacts(std::make_shared<const FactStore>(std::move(changed)));
    EXPECT_EQ(state().run(), 3U);
    EXPECT_EQ(state().losses().referenceRun, 2U) << "still Bea Sample";
}

TEST_F(LossesWindowTest, ShowsWhereAnAthleteLosesTimeOverASeason) {
    QStringList paths;
    for (int day = 0; day < 4; ++day) {
        auto race = lossRace(2, {lossRun({"Best One"}, {40, 50}),
                                 lossRun({"Ada Sample"}, {42 + 0.1 * day, 50.1 - 0.1 * day})});
        race.info.gates = 2;
        race.info.upGates = {1};
        race.info.definedsections = {{1}, {2}};
        paths << add("race" + std::to_string(day) + ".kvx", race);
    }
    ASSERT_TRUE(open(paths));
    m_window.showSeasonOf("SAMPLE Ada");
    ASSERT_TRUE(QTest::qWaitFor([this] { return !m_window.season().season().rows.empty(); }));
    EXPECT_THAT(m_window.season().summary().toStdString(), HasSubstr("4 whole runs in 4 files"));
    EXPECT_THAT(m_window.season().advice().toStdString(), HasSubstr("upstream"));
    ASSERT_GT(m_window.season().clips().model()->rowCount(), 0);
    const auto& rows = m_window.season().season().rows;
    const auto& marks = m_window.season().chart().content().marks;
    ASSERT_EQ(marks.size(), rows.size());
    for (std::size_t i = 0; i < rows.size(); ++i) {
        ASSERT_TRUE(rows[i].interval && marks[i].hasInterval) << rows[i].text;
        EXPECT_EQ(marks[i].low, rows[i].interval->low);
        EXPECT_EQ(marks[i].isBold, rows[i].verdict == LossVerdict::Losing);
    }
    emit m_window.season().chart().markActivated(1);
    EXPECT_EQ(m_window.season().table().currentPlace(), 1);
    state().setRun(1);
    state().setRun(0); // another crew than that of the run before
    EXPECT_THAT(m_window.season().summary().toStdString(), HasSubstr("Best One"));
}

TEST_F(LossesWindowTest, TellsWhenTheRunOrItsRivalIsGone) {
    splittakerdata031 race = threeRuns();
    const QString path = add("race.kvx", race);
    ASSERT_TRUE(open({path}, 2));
    state().setReference({LossReferenceKind::Run, 1});
    const auto follows = [&](const std::string& words) {
        m_window.facts().readAgain();
        return QTest::qWaitFor(
            [&] { return m_window.status().toStdString().find(words) != std::string::npos; });
    };
    race.athletes.erase(race.athletes.begin() + 1);
    (void)add("race.kvx", race);
    EXPECT_TRUE(follows("Bea Sample, Final is not in the files any more"));
    EXPECT_EQ(state().reference().kind, LossReferenceKind::Winner);
    EXPECT_EQ(m_window.header().sentence(), "Ondřej Skalboř, Final  +3.62 on winner");
    race.athletes.pop_back();
    (void)add("race.kvx", race);
    EXPECT_TRUE(follows("Ondřej Skalboř, Final is not in the files any more"));
    EXPECT_TRUE(state().hasRun()) << "another one of the race";
}

TEST_F(LossesWindowTest, WritesThePageForATelephoneFromTheSavedFiles) {
    const QString first = add("first.kvx", threeRuns());
    splittakerdata031 second = threeRuns();
    second.info.comments = "The day after.";
    ASSERT_TRUE(open({first, add("second.kvx", second)}, 1));
    m_window.askForPhonePage();
    auto* const dialog = m_window.findChild<PhonePageDialog*>();
    ASSERT_TRUE(dialog);
    ASSERT_TRUE(dialog->crew());
    EXPECT_EQ(dialog->crew()->name, "Bea Sample") << "whose run is shown";
    EXPECT_EQ(dialog->crew()->races.size(), 2);
    PhonePageJob job{dialog->crew()->races, dialog->request().shown, first, false};
    job.choice.crewKey = dialog->crew()->key;
    dialog->findChild<QComboBox*>("crew")->setEditText("nobody");
    EXPECT_FALSE(dialog->crew());
    EXPECT_FALSE(dialog->findChild<QPushButton*>("save")->isEnabled());
    dialog->reject();

    QStringList failed;
    QStringList written;
    QObject::connect(&m_window.phonePages(), &PhonePages::failed, &m_window,
                     [&](const QString& path) { failed.append(path); });
    QObject::connect(&m_window.phonePages(), &PhonePages::written, &m_window,
                     [&](const QString& path) { written.append(path); });
    const std::string race = contentOf(first.toStdString());
    m_window.phonePages().write(job);
    EXPECT_EQ(failed, QStringList(first)) << "a race is no page";
    EXPECT_EQ(contentOf(first.toStdString()), race);
    ASSERT_THAT(m_recorder.alerts, SizeIs(1));
    EXPECT_THAT(m_recorder.alerts.front(), HasSubstr(".html"));
    m_recorder.alerts.clear();
    const fs::path page = m_folder.path() / "page.html";
    job.target = QString::fromStdString(page.string());
    m_window.phonePages().write(job);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !written.isEmpty(); }));
    EXPECT_NE(contentOf(page).find("<h1><bdi>Bea Sample</bdi></h1>"), std::string::npos);
    EXPECT_TRUE(m_window.findChild<QMessageBox*>("pageWritten"));
}

TEST_F(LossesWindowTest, EnterWritesThePageThatADialogIsFor) {
    ASSERT_TRUE(open({add("first.kvx", threeRuns())}, 1));
    m_window.askForPhonePage();
    auto* const asked = m_window.findChild<PhonePageDialog*>();
    ASSERT_TRUE(asked);
    PhonePageDialog telephone(asked->request(), &m_window);
    asked->reject();
    telephone.show();
    QTest::keyClick(&telephone, Qt::Key_Return);
    EXPECT_EQ(telephone.result(), QDialog::Accepted);
    AthletePageDialog paper(state(), m_window.season().query(), &m_window);
    const QSignalSpy saves(&paper, &AthletePageDialog::saveRequested);
    paper.show();
    QTest::keyClick(&paper, Qt::Key_Return);
    EXPECT_EQ(saves.count(), 1);
}

TEST_F(LossesWindowTest, WritesTheAthletesPageOfOneRaceOrOfAll) {
    const QString first = add("first.kvx", threeRuns());
    splittakerdata031 second = threeRuns();
    second.info.comments = "The day after.";
    ASSERT_TRUE(open({first, add("second.kvx", second)}, 1));
    const AthletePageDialog dialog(state(), m_window.season().query(), &m_window);
    auto* const scope = dialog.findChild<QComboBox*>("scope");
    auto* const crews = dialog.findChild<QComboBox*>("crew");
    EXPECT_EQ(crews->count(), 3) << "each crew once";
    ASSERT_TRUE(dialog.choice());
    EXPECT_EQ(dialog.choice()->crew, "Bea Sample") << "whose run is shown";
    EXPECT_FALSE(dialog.choice()->file);
    scope->setCurrentIndex(1);
    EXPECT_EQ(dialog.choice()->file, 0U);
    EXPECT_EQ(dialog.choice()->crew, "Bea Sample");
    crews->setEditText("nobody");
    EXPECT_FALSE(dialog.choice());
    crews->setEditText("ada sample · k1m");
    ASSERT_TRUE(dialog.choice());

    auto* const open = m_window.findChild<QPushButton*>("openPage");
    const fs::path pdf = m_folder.path() / "page.pdf";
    m_window.athletePages().write(*dialog.choice(), QString::fromStdString(pdf.string()));
    EXPECT_TRUE(QTest::qWaitFor([&] { return open->isVisible(); }));
    EXPECT_TRUE(fs::file_size(pdf) > 1000);

    const auto size = fs::file_size(first.toStdString());
    m_window.athletePages().write(*dialog.choice(), first);
    EXPECT_EQ(fs::file_size(first.toStdString()), size) << "never over a race";
    ASSERT_THAT(m_recorder.alerts, SizeIs(1));
    EXPECT_THAT(m_recorder.alerts.front(), HasSubstr("written over a race"));
    m_recorder.alerts.clear();
}

TEST_F(LossesWindowTest, OpensOnceForTheSameFiles) {
    Desktop program(m_workspace);
    const QString path = add("race.kvx", threeRuns());
    program.openLosses({path}, 1);
    program.openLosses({path}, 2);
    ASSERT_THAT(program.windowsOf<LossesWindow>(), SizeIs(1));
    LossesWindow& window = *program.windowsOf<LossesWindow>().front();
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return window.state().hasRun() && window.state().run() == 2; }));
    program.openLosses({});
    EXPECT_THAT(program.windowsOf<LossesWindow>(), SizeIs(1)) << "nothing was chosen";
}

} // namespace kavela::test
