#include "desktop/planning/body/body_panel.h"
#include "desktop/planning/gym/gym_panel.h"

#include "common/json_encode.h"
#include "common/recorders.h"
#include "common/safe_file.h"
#include "common/temp_folder.h"
#include "desktop/charts/series_chart.h"
#include "desktop/planning/body/variability_dialog.h"
#include "desktop/planning/gym/exercise_table.h"
#include "desktop/planning/gym/gym_rows.h"
#include "desktop/refusals.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/workspace.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTableView>
#include <QTest>
#include <QTimer>

namespace kavela::test {
namespace {

using namespace desktop;
using namespace std::chrono;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::SizeIs;

constexpr double Day = 86400;
const ReferenceDate Today = referenceDate(2026y / 3 / 9);

gymdataplanning_v1 squats() {
    return {referenceDate(2026y / 3 / 2),
            {"Squat", "Bench pull"},
            {3, 4},
            {10, 5},
            {100, 60},
            {125.89, 80}};
}

/// A season with a gym session of arrays of different lengths, and another one.
planningdatac_v6 smallPlan() {
    planningdatac_v6 plan;
    yearsplannings_v6 season;
    season.year = 2026;
    season.healthdata = {{referenceDate(2026y / 3 / 1, 25200), 72.4, 11},
                         {referenceDate(2026y / 3 / 3), 72.1, 0}};
    season.gymdata = {squats(),
                      {referenceDate(2026y / 3 / 4), {"squat"}, {5, 5, 5}, {}, {120, 70}, {140}}};
    yearsplannings_v6 before;
    before.year = 2025;
    before.gymdata = {
        {referenceDate(2025y / 11 / 3), {"SQUAT", "Pull-up"}, {3, 3}, {8, 8}, {90}, {0, 30}}};
    plan.athletes.push_back({"ŠTERN Ann", "", "", {}, {"WK1"}, {season, before}});
    return plan;
}

class PlanningPanels : public ::testing::Test {
protected:
    PlanningPanels() { m_workspace.setAlerts(&m_recorder); }

    void open(const planningdatac_v6& plan) {
        const auto path = m_folder.path() / "group.planning";
        writeFileSafely(path, encode(plan));
        ASSERT_TRUE(m_document.open(QString::fromStdString(path.string()), nullptr));
    }

    template <class Panel>
    void show(Panel& panel) {
        QObject::connect(&panel, &SeasonPanel::refused,
                         [this](const QString& reason) { m_refused << reason; });
        panel.resize(1000, 640);
        panel.showSeason(PlannedSeason{0, 0});
        panel.show();
        QApplication::setActiveWindow(&panel);
        QApplication::processEvents();
    }

    static void press(QKeyCombination keys) {
        QTest::keyClick(QApplication::focusWidget(), keys.key(), keys.keyboardModifiers());
        QApplication::processEvents();
    }

    /// Types into the cell that is open, and leaves it with Enter.
    static void typeHere(const QString& text) {
        auto* const field = qobject_cast<QLineEdit*>(QApplication::focusWidget());
        ASSERT_TRUE(field);
        field->selectAll();
        QTest::keyClick(field, Qt::Key_Backspace);
        QTest::keyClicks(field, text);
        QTest::keyClick(field, Qt::Key_Return);
        QApplication::processEvents();
        QApplication::processEvents();
    }

    static void type(QTableView& view, int row, int column, const QString& text) {
        view.setFocus();
        view.setCurrentIndex(view.model()->index(row, column));
        press(Qt::Key_F2);
        typeHere(text);
    }

    static QString cell(const QTableView& view, int row, int column) {
        return view.model()->index(row, column).data().toString();
    }

    const yearsplannings_v6& season() const { return m_document.athletes()[0].year[0]; }

    void undoAll() {
        while (m_document.undoStack().canUndo())
            m_document.undoStack().undo();
    }

    TempFolder m_folder;
    Recorder m_recorder;
    Workspace m_workspace{Preferences(m_folder.path() / "preferences.ini"), m_recorder.log(),
                          [] { return ReferenceDate{Today.seconds + 30000}; }};
    PlanningDocument m_document{
        m_workspace, Autosave(QString::fromStdString((m_folder.path() / "autosave").string()))};
    QStringList m_refused;
};

TEST_F(PlanningPanels, WhatIsTypedLandsInTheRecordAndIsTakenBack) {
    open(smallPlan());
    BodyPanel panel(m_document, m_workspace.clock());
    show(panel);
    QTableView& view = panel.table(BodyPanel::Body);
    ASSERT_EQ(cell(view, 0, 0), "2026-03-03") << "the latest first";
    type(view, 0, 1, "71,85");
    type(view, 1, 0, "2026-03-05");
    EXPECT_EQ(season().healthdata[1].weight, 71.85);
    EXPECT_EQ(season().healthdata[0].date, referenceDate(2026y / 3 / 5, 25200))
        << "the time of day stays";
    EXPECT_EQ(cell(view, 0, 0), "2026-03-05") << "the row goes where its date belongs";
    EXPECT_EQ(panel.table(BodyPanel::Body).currentPlace(), 0) << "and stays the current one";
    for (const auto& [column, wrong] : std::vector<std::pair<int, const char*>>{
             {0, "2026-02-30"}, {0, ""}, {1, "-3"}, {1, "inf"}, {1, "72kg"}, {2, "101"}}) {
        type(view, 0, column, wrong);
        EXPECT_THAT(refusalIn(panel), Not(IsEmpty())) << wrong;
        press(Qt::Key_Escape);
    }
    EXPECT_EQ(m_document.undoStack().count(), 2);
    press(Qt::Key_Insert);
    typeHere("72.9");
    ASSERT_THAT(season().healthdata, SizeIs(3));
    EXPECT_EQ(season().healthdata[2].date, Today);
    EXPECT_EQ(season().healthdata[2].weight, 72.9);
    press(Qt::Key_Delete);
    EXPECT_THAT(season().healthdata, SizeIs(2));
    undoAll();
    EXPECT_EQ(encode(m_document.value()), encode(smallPlan()));
}

TEST_F(PlanningPanels, OddValuesOfAFileAreMarkedAndStay) {
    planningdatac_v6 plan = smallPlan();
    plan.athletes[0].year[0].healthdata = {{{1e300}, -4, 1e200}, {{-1e300}, 70, 0}, {Today, 71, 9}};
    plan.athletes[0].year[0].heartdata.resting = {{{1e300}, 50}, {Today, -1}};
    open(plan);
    BodyPanel panel(m_document, m_workspace.clock());
    show(panel);
    const QTableView& view = panel.table(BodyPanel::Body);
    for (const auto& [row, column] :
         std::vector<std::pair<int, int>>{{0, 0}, {0, 1}, {0, 2}, {2, 0}}) {
        EXPECT_TRUE(cell(view, row, column).startsWith("⚠")) << row << ' ' << column;
        EXPECT_FALSE(view.model()->index(row, column).data(Qt::ToolTipRole).toString().isEmpty());
    }
    EXPECT_EQ(cell(view, 1, 1), "71");
    EXPECT_EQ(panel.chart(BodyPanel::Body).csv(), "Date;Weight;Body fat\n2026-03-09;71;9\n");
    panel.showSection(BodyPanel::Resting);
    EXPECT_FALSE(panel.chart(BodyPanel::Resting).emptyMessage().isEmpty());
    type(panel.table(BodyPanel::Resting), 0, 0, "2026-03-08");
    EXPECT_EQ(season().heartdata.resting[0].date.seconds, Today.seconds - Day);
    undoAll();
    EXPECT_EQ(encode(m_document.value()), encode(plan));
}

TEST_F(PlanningPanels, TheWeekIsHeldAgainstWhatIsUsual) {
    planningdatac_v6 plan = smallPlan();
    auto& resting = plan.athletes[0].year[0].heartdata.resting;
    for (int day = 34; day >= 0; --day)
        resting.push_back({{Today.seconds - day * Day}, day < 7 ? 60.0 : 50.0 + day % 2});
    open(plan);
    BodyPanel panel(m_document, m_workspace.clock());
    show(panel);
    panel.showSection(BodyPanel::Resting);
    SeriesChart& chart = panel.chart(BodyPanel::Resting);
    EXPECT_THAT(chart.csv().toStdString(), HasSubstr("2026-03-09;60;60;49.990825;51.009175\n"));
    const auto words = [&] {
        return chart.parentWidget()->findChild<QLabel*>("standing")->text().toStdString();
    };
    EXPECT_THAT(words(), HasSubstr("Week to 2026-03-09: mean 60 bpm, above what is usual"));
    m_document.editSeason({0, 0}, "rest", [](yearsplannings_v6& edited) {
        edited.heartdata.resting.erase(edited.heartdata.resting.begin(),
                                       edited.heartdata.resting.begin() + 22);
    });
    EXPECT_THAT(words(), HasSubstr("seven measured days"));
}

TEST_F(PlanningPanels, AListIsShownBeforeItIsTakenIn) {
    planningdatac_v6 plan = smallPlan();
    plan.athletes[0].year[0].heartdata.variability = {{Today, 900, 60, 50, 20, 1, 2}};
    open(plan);
    const auto path = m_folder.path() / "variability.csv";
    writeFileSafely(path, "Date;rMSSD;Note\n2026-03-09;77;again\n2026-03-07;48.5;\n"
                          "yesterday;40;\n2026-03-08;-2;\n2026-03-10T07:30;52;late\n");
    BodyPanel panel(m_document, m_workspace.clock());
    show(panel);
    const auto import = [&](bool isTaken) {
        QTimer::singleShot(0, [isTaken] {
            auto* const dialog =
                qobject_cast<VariabilityDialog*>(QApplication::activeModalWidget());
            ASSERT_TRUE(dialog);
            EXPECT_THAT(dialog->findChild<QLabel*>("count")->text().toStdString(),
                        HasSubstr("2 measurements are new. 1 other is"));
            const auto* const lines = dialog->findChild<QTableView*>("lines");
            ASSERT_EQ(lines->model()->rowCount(), 2);
            EXPECT_EQ(cell(*lines, 0, 0), "4");
            EXPECT_THAT(cell(*lines, 1, 1).toStdString(), HasSubstr("\"-2\""));
            isTaken ? dialog->accept() : dialog->reject();
        });
        panel.importVariability(QString::fromStdString(path.string()));
    };
    import(false);
    EXPECT_EQ(encode(m_document.value()), encode(plan));
    import(true);
    const auto& taken = season().heartdata.variability;
    ASSERT_THAT(taken, SizeIs(3));
    EXPECT_EQ(taken[0].rMSSD, 48.5);
    EXPECT_EQ(taken[1].AVNN, 900) << "what was there stays";
    EXPECT_EQ(m_document.undoStack().count(), 1);
    EXPECT_THAT(panel.chart(BodyPanel::Variability).csv().toStdString(),
                HasSubstr("2026-03-10;52;50.166667;;\n"));
    panel.chooseIndex(0);
    EXPECT_THAT(panel.chart(BodyPanel::Variability).csv().toStdString(),
                HasSubstr("2026-03-09;900;900;;\n"));
    EXPECT_THAT(m_refused, IsEmpty());
    panel.importVariability("/no/such/list.csv");
    EXPECT_THAT(m_refused, SizeIs(1));
}

TEST_F(PlanningPanels, TheEstimateIsOfferedAndGivesWayToTheCoach) {
    open(smallPlan());
    GymPanel panel(m_document, m_recorder.log(), m_workspace.clock());
    show(panel);
    panel.chooseSession(0);
    QTableView& view = panel.exercises().table();
    const auto maximum = [&](std::size_t row) { return season().gymdata[0].maxweight[row]; };
    m_recorder.lines.clear();
    type(view, 0, ExerciseTable::WeightColumn, "110");
    EXPECT_EQ(maximum(0), 138.48) << "it was the estimate of the values before";
    EXPECT_EQ(m_document.undoStack().count(), 1);
    EXPECT_THAT(m_recorder.lines,
                ElementsAre(HasSubstr("First estimation: 146.66"), HasSubstr("Epley"),
                            HasSubstr("Brzycki"), HasSubstr("McGlothin"),
                            HasSubstr("Lombardi estimation: 138.4")));
    type(view, 0, ExerciseTable::MaximumColumn, "150");
    type(view, 0, ExerciseTable::RepetitionsColumn, "37");
    EXPECT_EQ(maximum(0), 150) << "what the coach typed stays";
    EXPECT_EQ(cell(view, 0, ExerciseTable::EstimateColumn).toStdString(), "← 157.84");
    EXPECT_THAT(panel.exercises().findChild<QLabel*>("estimates")->text().toStdString(),
                HasSubstr("table – · Epley 245.67 · Brzycki – · "));
    press(Qt::CTRL | Qt::Key_Return);
    EXPECT_EQ(maximum(0), 157.84);
    EXPECT_EQ(maximum(1), 80);
    undoAll();
    EXPECT_EQ(encode(m_document.value()), encode(smallPlan()));
}

TEST_F(PlanningPanels, MissingEntriesBecomeEntriesOnlyWhereTyped) {
    open(smallPlan());
    GymPanel panel(m_document, m_recorder.log(), m_workspace.clock());
    show(panel);
    panel.chooseSession(1);
    QTableView& view = panel.exercises().table();
    ASSERT_EQ(view.model()->rowCount(), 3);
    EXPECT_EQ(cell(view, 2, ExerciseTable::WeightColumn), "⚠ ");
    type(view, 1, ExerciseTable::WeightColumn, "75");
    type(view, 0, ExerciseTable::RepetitionsColumn, "5");
    planningdatac_v6 expected = smallPlan();
    gymdataplanning_v1& uneven = expected.athletes[0].year[0].gymdata[1];
    uneven.weight[1] = 75;
    uneven.rep = {5};
    EXPECT_EQ(encode(m_document.value()), encode(expected)) << "a typed maximum stays, too";
    type(view, 2, ExerciseTable::MaximumColumn, "90");
    EXPECT_THAT(season().gymdata[1].maxweight, ElementsAre(140, 0, 90));
}

TEST_F(PlanningPanels, SessionsComeMoveAndGo) {
    open(smallPlan());
    GymPanel panel(m_document, m_recorder.log(), m_workspace.clock());
    show(panel);
    panel.chooseSession(0);
    panel.duplicateSession();
    ASSERT_EQ(panel.session(), 2U);
    EXPECT_EQ(season().gymdata[2].date, Today);
    EXPECT_EQ(season().gymdata[2].exercise, squats().exercise);
    EXPECT_EQ(panel.exercises().findChild<QLabel*>("totals")->text(),
              "2 exercises · 7 sets · tonnage 4200 kg");
    type(panel.sessions(), 0, 0, "2026-01-05");
    EXPECT_EQ(panel.session(), 2U) << "it stays chosen at its new place";
    EXPECT_EQ(cell(panel.sessions(), 2, 0), "2026-01-05");
    panel.sessions().setFocus();
    press(Qt::Key_Insert);
    typeHere("Deadlift");
    EXPECT_THAT(season().gymdata.back().exercise, ElementsAre("Deadlift"));
    EXPECT_THAT(season().gymdata.back().maxweight, SizeIs(1));
    panel.sessions().setFocus();
    press(Qt::Key_Delete);
    EXPECT_THAT(season().gymdata, SizeIs(3));
    panel.chooseExercise("SQUAT");
    EXPECT_EQ(panel.chart().csv(), "Date;Maximum;Weight\n2025-11-03;;90\n2026-01-05;125.89;100\n"
                                   "2026-03-02;125.89;100\n2026-03-04;140;120\n");
    panel.showSeason(std::nullopt);
    EXPECT_EQ(panel.exercises().table().model()->rowCount(), 0);
    undoAll();
    EXPECT_EQ(encode(m_document.value()), encode(smallPlan()));
}

TEST(GymRows, NeverReachBeyondTheShorterArrays) {
    gymdataplanning_v1 uneven{{}, {}, {3}, {-5, 10}, {1e308, 50, 60}, {0, 0}};
    ASSERT_EQ(gymRowCount(uneven), 3U);
    EXPECT_EQ(gymRow(uneven, 2), (GymRow{{}, {}, {}, 60, {}}));
    EXPECT_EQ(gymRow(uneven, 99), GymRow());
    setWeight(uneven, 0, 20);
    EXPECT_EQ(uneven.maxweight[0], 0) << "minus five repetitions have no estimate";
    setRepetitions(uneven, 2, 4);
    EXPECT_THAT(uneven.maxweight, SizeIs(2)) << "no estimate where there is no entry";
    EXPECT_EQ(addGymRow(uneven), 3U);
    EXPECT_THAT(uneven.rep, ElementsAre(-5, 10, 4, 0));
    EXPECT_THAT(uneven.weight, ElementsAre(20, 50, 60, 0));
    EXPECT_THAT(uneven.exercise, IsEmpty());
    removeGymRow(uneven, 1);
    removeGymRow(uneven, 17);
    EXPECT_THAT(uneven.sets, ElementsAre(3));
    EXPECT_THAT(uneven.rep, ElementsAre(-5, 4, 0));
    EXPECT_EQ(gymTotals(uneven).tonnage, -300) << "of the one row with all three";
}

} // namespace
} // namespace kavela::test
