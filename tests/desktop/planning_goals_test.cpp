#include "common/json_encode.h"
#include "common/recorders.h"
#include "common/temp_folder.h"
#include "desktop/planning/goals/goals_panel.h"
#include "desktop/planning/intervals/interval_form.h"
#include "desktop/planning/intervals/interval_texts.h"
#include "desktop/planning/intervals/intervals_panel.h"
#include "desktop/planning/intervals/timer_dialog.h"
#include "desktop/planning/intervals/timer_face.h"
#include "desktop/planning/ranking/races_section.h"
#include "desktop/planning/ranking/ranking_panel.h"
#include "desktop/planning/ranking/ranking_section.h"
#include "desktop/planning/ranking/statistics_dialog.h"
#include "desktop/refusals.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/workspace.h"
#include "desktop/team/typed_values.h"
#include "planning/planning_file.h"
#include "planning/season_statistics.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>

#include <functional>

namespace kavela::test {
namespace {

namespace fs = std::filesystem;
using namespace desktop;
using Kind = GoalPlace::Kind;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

/// Acts on the dialog once what it asks about is read.
void whenShown(const std::function<void(StatisticsDialog*)>& act) {
    auto* const look = new QTimer(qApp);
    QObject::connect(look, &QTimer::timeout, look, [look, act] {
        auto* const dialog = qobject_cast<StatisticsDialog*>(QApplication::activeModalWidget());
        if (!dialog)
            return;
        look->stop();
        look->deleteLater();
        act(dialog);
    });
    look->start(5);
}

QByteArray bytesOf(const fs::path& path) {
    QFile file(QString::fromStdString(path.string()));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Nothing in it is as long as anything else.
planningdatac_v6 unevenPlanning() {
    planningdatac_v6 plan;
    athletesplanning_v6& athlete = plan.athletes.emplace_back();
    athlete.name = "Mateo Arribalza";
    yearsplannings_v6& season = athlete.year.emplace_back();
    season.year = 2026;
    season.seasongoalgroups = {"Results"};
    season.seasongoals = {{"Final"}, {"Clean gates"}};
    season.seasonsubgoals = {{"Semifinal", "Medal"}, {"No misses"}};
    season.seasonsubgoalsstatus = {{"in doubt"}};
    season.icfdata = {{1, 2}, {80}, {}};
    season.statisticsdata.racedata.event = {"Cup", "Open"};
    season.statisticsdata.racedata.time = {90};
    season.statisticsdata.pendata.touches = {1, 2, 3};
    season.statisticsdata.pendata.date = {{8e8}};
    favInvervalSessions_v2 session;
    session.title = "Fifteens";
    session.sets = 2;
    session.reps = 3;
    session.worktime = 15;
    session.workrest = 45;
    session.setrest = 240;
    plan.favintses = {session};
    return plan;
}

class PlanningGoals : public testing::Test {
protected:
    explicit PlanningGoals(planningdatac_v6 plan = unevenPlanning()) {
        m_workspace.setAlerts(&m_recorder);
        const fs::path path = m_folder.path() / "group.planning";
        EXPECT_TRUE(savePlanningFile(plan, path, m_recorder.log()));
        EXPECT_TRUE(m_document.open(QString::fromStdString(path.string()), nullptr));
    }

    const yearsplannings_v6& season() const { return *m_document.seasonAt({0, 0}); }
    int steps() { return m_document.undoStack().count(); }

    template <class Panel>
    void show(Panel& panel) {
        if constexpr (std::is_base_of_v<SeasonPanel, Panel>)
            panel.showSeason(PlannedSeason{0, 0});
        panel.resize(1000, 700);
        panel.show();
        QApplication::setActiveWindow(&panel);
        QApplication::processEvents();
    }

    void undoAll() {
        while (m_document.undoStack().canUndo())
            m_document.undoStack().undo();
        EXPECT_EQ(encode(m_document.value()), encode(unevenPlanning()));
    }

    /// Types into the editor that is open.
    static void type(const QString& text) {
        auto* const field = qobject_cast<QLineEdit*>(QApplication::focusWidget());
        ASSERT_TRUE(field);
        field->selectAll();
        QTest::keyClicks(field, text);
        QTest::keyClick(field, Qt::Key_Return);
        QApplication::processEvents();
    }

    static QString cell(const QTableView& table, int row, int column) {
        return table.model()->index(row, column).data().toString();
    }

    static void typeInto(IntervalForm& form, const char* name, const QString& text) {
        auto* const field = form.findChild<QLineEdit*>(name);
        ASSERT_TRUE(field) << name;
        field->setFocus();
        type(text);
    }

    TempFolder m_folder;
    Recorder m_recorder;
    Workspace m_workspace{Preferences(m_folder.path() / "preferences.ini"), m_recorder.log(),
                          [] { return ReferenceDate{8e8}; }};
    PlanningDocument m_document{
        m_workspace, Autosave(QString::fromStdString((m_folder.path() / "autosave").string()))};
};

} // namespace

TEST_F(PlanningGoals, AreEditedInPlaceOneStepEach) {
    GoalsPanel panel(m_document);
    show(panel);
    EXPECT_EQ(panel.tree().topLevelItemCount(), 2) << "the group without a name too";
    panel.choose({Kind::Subgoal, 0, 1});
    panel.tree().setFocus();
    QTest::keyClick(&panel.tree(), Qt::Key_F2);
    type("Medal at home");
    EXPECT_THAT(season().seasonsubgoals[0], ElementsAre("Semifinal", "Medal at home"));
    EXPECT_EQ(panel.current(), (GoalPlace{Kind::Subgoal, 0, 1}));
    QTest::keyClick(&panel.tree(), Qt::Key_Up, Qt::AltModifier);
    EXPECT_THAT(season().seasonsubgoals[0], ElementsAre("Medal at home", "Semifinal"));
    EXPECT_THAT(season().seasonsubgoalsstatus, ElementsAre(ElementsAre("", "in doubt")));
    QTest::keyClick(&panel.tree(), Qt::Key_Insert);
    type("Start fast");
    EXPECT_EQ(season().seasonsubgoals[0].back(), "Start fast");
    QTest::keyClick(&panel.tree(), Qt::Key_Delete);
    EXPECT_THAT(season().seasonsubgoals[0], SizeIs(2));
    EXPECT_EQ(steps(), 5) << "text, order, new, its text, removal";
    undoAll();
}

TEST_F(PlanningGoals, AStatusIsChosenAndAForeignWordStaysToChoose) {
    GoalsPanel panel(m_document);
    show(panel);
    QTreeWidgetItem* const item = panel.tree().topLevelItem(0)->child(1);
    EXPECT_EQ(item->text(1), "in doubt");
    panel.tree().setCurrentItem(item, 1);
    panel.tree().editItem(item, 1);
    auto* const box = panel.tree().findChild<QComboBox*>();
    ASSERT_TRUE(box);
    EXPECT_EQ(box->currentText(), "in doubt");
    EXPECT_EQ(box->count(), 5);
    box->setCurrentIndex(box->findText("reached"));
    emit box->activated(box->currentIndex());
    QApplication::processEvents();
    EXPECT_THAT(season().seasonsubgoalsstatus, ElementsAre(ElementsAre("reached")));
    EXPECT_EQ(item->text(1), "reached");
    panel.setStatus({Kind::Subgoal, 1, 0}, "open");
    EXPECT_EQ(season().seasonsubgoalsstatus.size(), 2U);
    EXPECT_EQ(steps(), 2);
    undoAll();
}

TEST_F(PlanningGoals, RankingListsOfUnequalLengthAreShownAndEdited) {
    RankingPanel panel(m_document, m_workspace);
    show(panel);
    ColumnTable& table = panel.ranking().table();
    ASSERT_EQ(table.model()->rowCount(), 2);
    EXPECT_EQ(cell(table, 1, 1), "");
    table.edit(1, 2);
    type("eighth");
    EXPECT_THAT(refusalIn(panel), HasSubstr("eighth"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    EXPECT_EQ(cell(table, 1, 2), "");
    EXPECT_EQ(steps(), 0);
    table.model()->setData(table.model()->index(0, 2), "8");
    EXPECT_THAT(season().icfdata.pos, ElementsAre(8));
    EXPECT_THAT(season().icfdata.points, ElementsAre(80));
    panel.ranking().addRelease();
    type("91,5");
    EXPECT_THAT(season().icfdata.release, ElementsAre(1, 2, 3));
    EXPECT_THAT(season().icfdata.points, ElementsAre(80, 0, 91.5));
    panel.ranking().removeCurrent();
    EXPECT_THAT(season().icfdata.release, ElementsAre(1, 2));
    EXPECT_EQ(panel.races().table().model()->rowCount(), 2);
    EXPECT_EQ(cell(panel.races().table(), 1, 5), "–") << "the times end before";
    EXPECT_THAT(panel.findChild<QLabel*>("penaltySummary")->text().toStdString(),
                HasSubstr("<b>3</b> runs"));
    undoAll();
}

TEST_F(PlanningGoals, StatisticsAreTakenFromSplitFilesAfterAYes) {
    const fs::path folder = m_folder.path() / "season";
    fs::create_directories(folder);
    fs::copy(fs::path(KAVELA_EXAMPLES) / "races", folder);
    fs::copy(fs::path(KAVELA_EXAMPLES) / "older" / "release_0.11.kvx", folder);
    const QByteArray older = bytesOf(folder / "release_0.11.kvx");
    RankingPanel panel(m_document, m_workspace);
    show(panel);
    const auto answer = [&](bool agrees) {
        bool isAsked = false;
        whenShown([&, agrees](StatisticsDialog* dialog) {
            isAsked = true;
            EXPECT_GT(dialog->findChild<QTableView*>("runs")->model()->rowCount(), 0);
            QStringList leftOut;
            auto* const table = dialog->findChild<QTableView*>("leftOut");
            for (int row = 0; row < table->model()->rowCount(); ++row)
                leftOut << cell(*table, row, 0) + ' ' + cell(*table, row, 1);
            EXPECT_THAT(leftOut.join('\n').toStdString(), HasSubstr("release_0.11.kvx is of 20"));
            dialog->findChild<QPushButton*>("replace")->isEnabled() && agrees ? dialog->accept()
                                                                              : dialog->reject();
        });
        panel.takeFrom({QString::fromStdString(folder.string())});
        QTRY_VERIFY(isAsked);
    };
    answer(false);
    EXPECT_EQ(steps(), 0);
    answer(true);
    EXPECT_EQ(steps(), 1);
    const racedataplanning_v3& races = season().statisticsdata.racedata;
    EXPECT_GT(races.date.size(), 2U);
    EXPECT_EQ(panel.races().table().model()->rowCount(), static_cast<int>(races.date.size()));
    EXPECT_EQ(bytesOf(folder / "release_0.11.kvx"), older) << "only read";
    EXPECT_THAT(m_recorder.alerts, IsEmpty());
    undoAll();
}

TEST_F(PlanningGoals, NothingIsReplacedWhereNothingWasFound) {
    RankingPanel panel(m_document, m_workspace);
    show(panel);
    bool isAsked = false;
    whenShown([&](StatisticsDialog* dialog) {
        isAsked = true;
        EXPECT_FALSE(dialog->findChild<QPushButton*>("replace")->isEnabled());
        dialog->reject();
    });
    panel.takeFrom({m_document.path()});
    QTRY_VERIFY(isAsked);
    EXPECT_EQ(steps(), 0);
}

TEST_F(PlanningGoals, IntervalSessionsAreTypedMovedAndCopied) {
    IntervalsPanel panel(m_document);
    show(panel);
    EXPECT_EQ(cell(panel.table(), 0, 2), "8:30");
    EXPECT_EQ(cell(panel.table(), 0, 3), "1:30");
    typeInto(panel.form(), "worktime", "1:30");
    EXPECT_EQ(m_document.value().favintses[0].worktime, 90);
    EXPECT_EQ(cell(panel.table(), 0, 3), "9:00");
    typeInto(panel.form(), "reps", "many");
    EXPECT_THAT(refusalIn(panel), HasSubstr("many"));
    EXPECT_EQ(panel.form().findChild<QLineEdit*>("reps")->text(), "many");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    EXPECT_EQ(panel.form().findChild<QLineEdit*>("reps")->text(), "3");
    EXPECT_EQ(steps(), 1);
    panel.duplicate();
    type("Copied");
    panel.move(true);
    EXPECT_EQ(m_document.value().favintses[0].title, "Copied");
    EXPECT_EQ(panel.current(), 0U);
    panel.removeCurrent();
    panel.removeCurrent();
    EXPECT_THAT(m_document.value().favintses, IsEmpty());
    EXPECT_FALSE(panel.form().isEnabled());
    panel.add();
    EXPECT_EQ(m_document.value().favintses[0].reps, 10);
    undoAll();
}

/// Twice the session of the plan.
TEST_F(PlanningGoals, AnIntervalSessionStaysInFrontWhileItsFormHoldsWhatIsRefused) {
    IntervalsPanel panel(m_document);
    show(panel);
    panel.duplicate();
    auto* const reps = panel.form().findChild<QLineEdit*>("reps");
    reps->setFocus();
    reps->selectAll();
    QTest::keyClicks(reps, "many");
    const auto click = [&](int row) {
        panel.table().setFocus();
        QTest::mouseClick(panel.table().viewport(), Qt::LeftButton, {},
                          panel.table().visualRect(panel.table().cellAt(row, 0)).center());
        QApplication::processEvents();
    };
    click(0);
    EXPECT_THAT(refusalIn(panel), HasSubstr("many"));
    EXPECT_EQ(panel.current(), 1U);
    EXPECT_EQ(reps->text(), "many");
    EXPECT_EQ(QApplication::focusWidget(), reps);
    panel.add();
    EXPECT_THAT(m_document.value().favintses, SizeIs(2));
    QTest::keyClick(reps, Qt::Key_Escape);
    click(0);
    EXPECT_EQ(panel.current(), 0U);
}

TEST_F(PlanningGoals, AbsurdIntervalSessionsAreToldAndNotTimed) {
    IntervalsPanel panel(m_document);
    std::string refusal;
    QObject::connect(&panel, &IntervalsPanel::refused,
                     [&](const QString& reason) { refusal = reason.toStdString(); });
    show(panel);
    m_document.edit("", [](planningdatac_v6& plan) {
        plan.favintses[0].reps = 1000000000;
        plan.favintses[0].sets = INT64_MAX;
        plan.favintses[0].workrest = -1e308;
    });
    EXPECT_EQ(cell(panel.table(), 0, 2), "–");
    EXPECT_FALSE(panel.findChild<QPushButton*>("timer")->isEnabled());
    panel.startTimer();
    EXPECT_NE(refusal, "");
    EXPECT_FALSE(panel.findChild<IntervalTimerDialog*>());
}

TEST(IntervalTimerDialogTest, CountsDownAndIsHeardAndObeysItsKeys) {
    favInvervalSessions_v2 session = unevenPlanning().favintses[0];
    double now = 1000;
    std::string heard;
    IntervalTimerDialog dialog(
        "Fifteens", *IntervalPlan::of(session), [&] { return now; },
        [&](TimerSignal signal) { heard += signal == TimerSignal::NextPhase ? 'N' : 'c'; });
    dialog.show();
    const auto advance = [&](double seconds) {
        for (const double end = now + seconds; now < end - 1e-6;) {
            now += 0.125;
            dialog.tick();
        }
    };
    advance(5);
    EXPECT_EQ(dialog.face().timeText(), "0:10") << "not started";
    QTest::keyClick(&dialog, Qt::Key_Space);
    advance(9.875);
    EXPECT_EQ(heard, "ccc");
    EXPECT_EQ(dialog.face().timeText(), "0:01");
    advance(0.125);
    EXPECT_EQ(heard, "cccN");
    EXPECT_EQ(dialog.face().phaseText(), "Work");
    EXPECT_EQ(dialog.face().placeText(), "Set 1 of 2   ·   Repetition 1 of 3");
    EXPECT_EQ(dialog.face().nextText(), "Next: Rest 0:45");
    QTest::keyClick(&dialog, Qt::Key_Space);
    advance(60);
    EXPECT_EQ(dialog.face().timeText(), "0:15") << "paused";
    QTest::keyClick(&dialog, Qt::Key_Right);
    QTest::keyClick(&dialog, Qt::Key_Right);
    EXPECT_EQ(dialog.face().placeText(), "Set 1 of 2   ·   Repetition 2 of 3");
    QTest::keyClick(&dialog, Qt::Key_Left);
    EXPECT_EQ(dialog.face().timeText(), "0:45");
    QTest::keyClick(&dialog, Qt::Key_Space);
    advance(2000);
    EXPECT_FALSE(dialog.run().isRunning());
    EXPECT_EQ(dialog.face().phaseText(), "Finished");
    EXPECT_EQ(std::ranges::count(heard, 'N'), 11) << "each stretch once";
}

TEST(IntervalTexts, DurationsAreReadAsTheyAreWritten) {
    for (const double seconds : {0.0, 5.0, 59.5, 60.0, 754.0, 3600.0, 86400.0})
        EXPECT_EQ(typedDuration(durationText(seconds)), seconds);
    EXPECT_EQ(typedDuration("90"), 90);
    EXPECT_EQ(typedDuration(" 0:12,5 "), 12.5);
    for (const char* bad :
         {"-1", "1:60", "1:2:3:4", "nan", "inf", "1e9", "1.5:10", ":", "24:00:01"})
        EXPECT_THROW((void)typedDuration(bad), RefusedEntry) << bad;
    EXPECT_EQ(durationText(-5), "-5");
    EXPECT_THAT(durationText(1e300).toStdString(), HasSubstr("e+300"));
}

} // namespace kavela::test
