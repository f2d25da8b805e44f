#include "desktop/planning/planning_window.h"

#include "common/json_encode.h"
#include "common/recorders.h"
#include "common/safe_file.h"
#include "common/temp_folder.h"
#include "common/text_file.h"
#include "desktop/closing.h"
#include "desktop/planning/athlete_list.h"
#include "desktop/planning/body/body_panel.h"
#include "desktop/planning/plan/plan_view.h"
#include "desktop/planning/plan/session_dialog.h"
#include "desktop/planning/plan/week_form.h"
#include "desktop/planning/plan/year_strip.h"
#include "desktop/planning/planning_handouts.h"
#include "desktop/saving.h"
#include "desktop/shell/command_palette.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/workspace.h"
#include "planning/calendar_day.h"
#include "planning/planning_file.h"
#include "planning/weeks.h"

#include <gmock/gmock.h>

#include <QAction>
#include <QApplication>
#include <QBuffer>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFileDialog>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QTabWidget>
#include <QTableView>
#include <QTest>
#include <QTimer>

namespace kavela::test {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;
using desktop::Autosave;
using desktop::DayCell;
using desktop::PlanningWindow;
using desktop::SessionDialog;
using desktop::Workspace;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

constexpr std::size_t ThisWeek = 10; ///< that of 2026-03-09, in a season from 2025-12-29

sessioninmicro_v5 session(std::int64_t day, std::int64_t hour, const char* title) {
    sessioninmicro_v5 made;
    made.dateinInts = {2026, 3, day};
    made.trainingtimeInt = {hour, 30};
    made.trainingtimezones = "Europe/Prague";
    made.trainingtime = {midnightOf(2026y / 3 / std::chrono::day(unsigned(day))).seconds +
                         (static_cast<double>(hour) - 0.5) * 3600};
    made.titleanddes = {title, ""};
    made.data = {40, 0, 12};
    return made;
}

planningdatac_v6 planOfThisWeek() {
    planningdatac_v6 plan;
    plan.coach = "Ida Strömland";
    athletesplanning_v6 athlete;
    athlete.name = "Jana Nováková";
    yearsplannings_v6 season;
    season.year = 2026;
    season.micros = newSeason(2026y / 1 / 1);
    season.micros[ThisWeek].sessions = {session(10, 9, "Gates"), session(12, 16, "Gym")};
    season.micros[ThisWeek].percentaje = 80;
    season.micros[ThisWeek].totalq = {60};
    athlete.year.push_back(season);
    plan.athletes.push_back(athlete);
    return plan;
}

class PlanningWindowTest : public ::testing::Test {
protected:
    PlanningWindowTest() {
        m_workspace.setAlerts(&m_recorder);
        m_workspace.setAnswer([this](const Alert& question) {
            m_questions.push_back(question.title);
            return m_answer;
        });
        write(planOfThisWeek());
    }

    fs::path file() const { return m_folder.path() / "season.planning"; }
    void write(const planningdatac_v6& plan) {
        ASSERT_TRUE(savePlanningFile(plan, file(), m_recorder.log()));
    }
    planningdatac_v6 stored() const { return recognisePlanningFile(file(), m_quiet).document; }

    std::unique_ptr<PlanningWindow> makeWindow() {
        auto window = std::make_unique<PlanningWindow>(
            m_workspace, Autosave(QString::fromStdString((m_folder.path() / "autosave").string())));
        window->setAttribute(Qt::WA_DeleteOnClose, false);
        return window;
    }

    std::unique_ptr<PlanningWindow> openWindow() {
        auto window = makeWindow();
        if (!window->open(QString::fromStdString(file().string())))
            return nullptr;
        window->show();
        QApplication::setActiveWindow(window.get());
        QApplication::processEvents();
        return window;
    }

    static const microsplanning_v5& weekAt(const PlanningWindow& window, std::size_t index) {
        return window.document().athletes().front().year.front().micros[index];
    }

    static void press(PlanningWindow& window, QKeyCombination keys) {
        if (QApplication::activeWindow() != &window)
            QApplication::setActiveWindow(&window); // no window manager does
        QWidget* const focus = window.focusWidget() ? window.focusWidget() : &window;
        QTest::keyClick(focus, keys.key(), keys.keyboardModifiers());
        QApplication::processEvents();
    }

    /// Fills the session dialog that the next action opens.
    static void answerDialog(const std::function<void(SessionDialog&)>& fill) {
        QTimer::singleShot(0, [fill] {
            auto* const dialog = qobject_cast<SessionDialog*>(QApplication::activeModalWidget());
            ASSERT_TRUE(dialog);
            fill(*dialog);
            dialog->accept();
        });
    }

    TempFolder m_folder;
    Recorder m_recorder;
    DiagnosticLog m_quiet = [](std::string_view) {};
    std::vector<std::string> m_questions;
    bool m_answer = true;
    Workspace m_workspace{Preferences(m_folder.path() / "preferences.ini"), m_recorder.log(),
                          [] { return midnightOf(2026y / 3 / 11); }};
};

TEST_F(PlanningWindowTest, OpensAtTheWeekOfToday) {
    auto window = openWindow();
    ASSERT_TRUE(window);
    EXPECT_EQ(window->plan().block().current, ThisWeek);
    EXPECT_EQ(window->plan().strip().weekCount(), WeeksOfSeason);
}

TEST_F(PlanningWindowTest, StaysAtAWeekWhoseFormHoldsWhatIsRefused) {
    planningdatac_v6 two = planOfThisWeek();
    two.athletes.push_back(two.athletes.front());
    write(two);
    const auto window = openWindow();
    ASSERT_TRUE(window);
    auto* const dates = window->findChild<QLineEdit*>("waterdates");
    dates->setFocus();
    QTest::keyClicks(dates, "soon");
    window->plan().stepWeek(1);
    QApplication::processEvents();
    EXPECT_EQ(dates->text(), "soon");
    EXPECT_EQ(window->plan().block().current, ThisWeek);
    QListWidget& athletes = window->athletes().list();
    athletes.setFocus();
    athletes.setCurrentRow(1);
    QApplication::processEvents();
    EXPECT_EQ(dates->text(), "soon");
    EXPECT_EQ(athletes.currentRow(), 0);
    EXPECT_EQ(window->athletes().athlete(), 0U);
    QTest::keyClick(dates, Qt::Key_Escape);
    athletes.setCurrentRow(1);
    EXPECT_EQ(window->athletes().athlete(), 1U);
    window->plan().stepWeek(1);
    EXPECT_EQ(window->plan().block().current, ThisWeek + 1);
}

TEST_F(PlanningWindowTest, TellsWhereSessionsAreFromTheOtherTabs) {
    const auto window = openWindow();
    ASSERT_TRUE(window);
    auto* const where = window->findChild<QAction*>("showPlan");
    ASSERT_TRUE(where);
    EXPECT_FALSE(where->isVisible());
    window->tabs().setCurrentIndex(2);
    EXPECT_TRUE(where->isVisible() && where->isEnabled());
    where->trigger();
    EXPECT_EQ(window->tabs().currentIndex(), 0);
    EXPECT_FALSE(where->isVisible());
}

TEST_F(PlanningWindowTest, AddsASessionByKeysIntoTheChosenCell) {
    auto window = openWindow();
    window->plan().grid().setFocus();
    window->plan().grid().chooseCell({3, DayPart::Evening});
    answerDialog([](SessionDialog& dialog) {
        QTest::keyClicks(dialog.focusWidget(), "Sprints");
        dialog.findChild<QDoubleSpinBox*>("value3")->setValue(8);
    });
    press(*window, Qt::Key_Insert);
    ASSERT_THAT(weekAt(*window, ThisWeek).sessions, SizeIs(3));
    const sessioninmicro_v5& added = weekAt(*window, ThisWeek).sessions.back();
    EXPECT_THAT(added.titleanddes, Contains("Sprints"));
    EXPECT_THAT(added.dateinInts, ElementsAre(2026, 3, 12));
    EXPECT_THAT(added.trainingtimeInt, ElementsAre(18, 0));
    EXPECT_EQ(added.data.at(3), 8);
    press(*window, Qt::CTRL | Qt::Key_Z);
    EXPECT_THAT(weekAt(*window, ThisWeek).sessions, SizeIs(2));
}

TEST_F(PlanningWindowTest, DragsASessionToAnotherDayAndPart) {
    auto window = openWindow();
    desktop::WeekGrid& grid = window->plan().grid();
    const QPoint from = grid.cardOf(0)->center();
    const QPoint to = grid.placeOf({4, DayPart::Afternoon}).center();
    QTest::mousePress(&grid, Qt::LeftButton, {}, from);
    QMouseEvent move(QEvent::MouseMove, to, grid.mapToGlobal(to), Qt::NoButton, Qt::LeftButton, {});
    QApplication::sendEvent(&grid, &move);
    QTest::mouseRelease(&grid, Qt::LeftButton, {}, to);
    const sessioninmicro_v5& moved = weekAt(*window, ThisWeek).sessions.back();
    EXPECT_THAT(moved.titleanddes, Contains("Gates"));
    EXPECT_THAT(moved.dateinInts, ElementsAre(2026, 3, 13));
    EXPECT_THAT(moved.trainingtimeInt, ElementsAre(15, 0));
    EXPECT_EQ(moved.trainingtime.seconds, midnightOf(2026y / 3 / 13).seconds + 14 * 3600);
}

TEST_F(PlanningWindowTest, KeepsWhatASessionDialogWasOnlyLookedAt) {
    planningdatac_v6 plan = planOfThisWeek();
    sessioninmicro_v5& odd = plan.athletes[0].year[0].micros[ThisWeek].sessions[0];
    odd.trainingtimezones = "Mars/Olympus";
    odd.titleanddes = {"Gates", "two\nlines", "third"};
    odd.data = {40.123456, -3, 0, 0, 0, 0, 0, 0, 7};
    odd.trainingtime.seconds += 12345;
    const std::string before = encode(odd);
    SessionDialog dialog(odd, 2026y / 3 / 9, {}, {}, nullptr);
    EXPECT_EQ(encode(dialog.session()), before);
}

TEST_F(PlanningWindowTest, CopiesAWeekAndRepeatsABlock) {
    auto window = openWindow();
    window->plan().copyWeek();
    window->plan().stepWeek(1);
    window->plan().pasteWeek();
    EXPECT_THAT(weekAt(*window, ThisWeek + 1).sessions, SizeIs(2));
    EXPECT_THAT(weekAt(*window, ThisWeek + 1).sessions[0].dateinInts, ElementsAre(2026, 3, 17));
    window->plan().chooseBlock({ThisWeek, ThisWeek + 1});
    window->plan().repeatChosen(2);
    EXPECT_THAT(weekAt(*window, ThisWeek + 5).sessions[1].dateinInts, ElementsAre(2026, 4, 16));
    press(*window, Qt::CTRL | Qt::Key_Z);
    press(*window, Qt::CTRL | Qt::Key_Z);
    EXPECT_EQ(encode(window->document().value()), encode(planOfThisWeek()));
}

TEST_F(PlanningWindowTest, WritesCyclesIntoAllChosenWeeksButEventsIntoOne) {
    auto window = openWindow();
    window->plan().chooseBlock({ThisWeek - 2, ThisWeek});
    auto* const cycle = window->plan().form().findChild<QComboBox*>("mesocycle");
    cycle->lineEdit()->setFocus();
    QTest::keyClicks(cycle->lineEdit(), "Build");
    QTest::keyClick(cycle->lineEdit(), Qt::Key_Return);
    auto* const event = window->plan().form().findChild<QLineEdit*>("event");
    event->setFocus();
    QTest::keyClicks(event, "Spring cup");
    window->athletes().list().setFocus();
    EXPECT_EQ(weekAt(*window, ThisWeek - 2).mesocycle, "Build");
    EXPECT_EQ(weekAt(*window, ThisWeek - 1).mesocycle, "Build");
    EXPECT_EQ(weekAt(*window, ThisWeek - 1).event, "");
    EXPECT_EQ(weekAt(*window, ThisWeek).event, "Spring cup");
}

TEST_F(PlanningWindowTest, ComparesTotalsWithThePlanAndTakesAPlan) {
    auto window = openWindow();
    auto& totals = window->plan().totals();
    const auto cell = [&](desktop::TotalsColumn column) {
        return totals.index(0, static_cast<int>(column));
    };
    const QModelIndex planned = cell(desktop::TotalsColumn::PlannedQuantity);
    EXPECT_EQ(cell(desktop::TotalsColumn::Quantity).data().toString(), "80");
    EXPECT_THAT(cell(desktop::TotalsColumn::Done).data().toString().toStdString(),
                HasSubstr("133 %"));
    EXPECT_FALSE(totals.setData(planned, "-4", Qt::EditRole));
    EXPECT_EQ(planned.data().toString(), "60");
    EXPECT_EQ(weekAt(*window, ThisWeek).totalq.at(0), 60);
    EXPECT_TRUE(totals.setData(planned, "80,5", Qt::EditRole));
    EXPECT_EQ(weekAt(*window, ThisWeek).totalq.at(0), 80.5);
}

TEST_F(PlanningWindowTest, AsksBeforeItReplacesTheFile) {
    auto window = openWindow();
    window->plan().clearWeek();
    m_answer = false;
    EXPECT_FALSE(saved(*window));
    EXPECT_EQ(encode(stored()), encode(planOfThisWeek()));
    m_answer = true;
    EXPECT_TRUE(saved(*window));
    EXPECT_THAT(stored().athletes[0].year[0].micros[ThisWeek].sessions, IsEmpty());
    EXPECT_THAT(m_questions, ElementsAre("Careful!", "Careful!"));
}

TEST_F(PlanningWindowTest, WhatIsTypedInACellIsInTheFileWhenTheWindowSavesAndCloses) {
    planningdatac_v6 plan = planOfThisWeek();
    plan.athletes[0].year[0].healthdata = {{midnightOf(2026y / 3 / 3), 71, 9}};
    write(plan);
    const auto weight = [this] { return stored().athletes[0].year[0].healthdata.at(0).weight; };
    auto window = openWindow();
    for (int tab = 0; tab < window->tabs().count(); ++tab)
        if (window->tabs().widget(tab)->isAncestorOf(&window->body()))
            window->tabs().setCurrentIndex(tab);
    QTableView& table = window->body().table(desktop::BodyPanel::Body);
    const auto type = [&](const char* text) {
        table.setFocus();
        table.setCurrentIndex(table.model()->index(0, 1));
        for (const char* key = text; *key; ++key)
            QTest::keyClick(QApplication::focusWidget(), *key);
    };
    type("70.2");
    EXPECT_TRUE(saved(*window));
    EXPECT_EQ(weight(), 70.2);
    type("69x");
    EXPECT_FALSE(window->close());
    EXPECT_EQ(weight(), 70.2);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backspace);
    EXPECT_TRUE(closes(*window));
    EXPECT_EQ(weight(), 69);
}

TEST_F(PlanningWindowTest, LeavesThePlanAsItWasWhenAFileDoesNotDecode) {
    auto window = openWindow();
    const fs::path other = m_folder.path() / "other.planning";
    writeFileSafely(other, R"({"coach": 3})");
    EXPECT_FALSE(window->open(QString::fromStdString(other.string())));
    EXPECT_THAT(m_recorder.alerts, SizeIs(1));
    EXPECT_EQ(encode(window->document().value()), encode(planOfThisWeek()));
    EXPECT_EQ(window->document().path().toStdString(), file().string());
}

TEST_F(PlanningWindowTest, ShowsOddWeeksAndLeavesThemAlone) {
    planningdatac_v6 plan = planOfThisWeek();
    std::vector<microsplanning_v5>& weeks = plan.athletes[0].year[0].micros;
    weeks[ThisWeek].percentaje = -12.345;
    weeks[ThisWeek].monday.seconds += 86400;
    weeks[ThisWeek].health = 77;
    weeks[1].monday.seconds = 1e300;
    weeks[2].sessions.emplace_back().dateinInts = {2026, 99, 1};
    weeks[3].total = {1, 2, 3};
    write(plan);
    auto window = openWindow();
    for (std::size_t i = 0; i < 12; ++i) {
        window->plan().chooseBlock({i, i});
        window->plan().grid().grab();
    }
    window->plan().strip().grab();
    window->plan().commit();
    EXPECT_EQ(encode(window->document().value()), encode(plan));
    EXPECT_FALSE(window->document().isDirty());
}

TEST_F(PlanningWindowTest, WritesAWeekAsCalendarFile) {
    auto window = openWindow();
    const fs::path calendar = m_folder.path() / "week.ics";
    window->handouts().writeCalendar(QString::fromStdString(calendar.string()));
    const std::string text = readTextFile(calendar);
    EXPECT_THAT(text, HasSubstr("SUMMARY:Gates"));
    EXPECT_THAT(text, HasSubstr("DTSTART:20260310T093000"));
}

TEST_F(PlanningWindowTest, KeepsTheFileOfAnOlderVersionWhenItSaves) {
    fs::copy_file(fs::path(KAVELA_EXAMPLES) / "older" / "planning_v1.planning", file(),
                  fs::copy_options::overwrite_existing);
    const std::string before = readTextFile(file());
    auto window = openWindow();
    ASSERT_TRUE(window);
    window->addSeason();
    EXPECT_TRUE(saved(*window));
    EXPECT_EQ(readTextFile(m_folder.path() / "season_old.planning"), before);
    EXPECT_TRUE(recognisePlanningFile(file(), m_quiet).isCurrent());
}

TEST_F(PlanningWindowTest, SearchingFindsTheImportOfVariability) {
    const auto window = openWindow();
    ASSERT_TRUE(window);
    const desktop::Commands commands = desktop::menuCommands(*window);
    const auto found = desktop::matching(commands, "variability");
    ASSERT_THAT(found, SizeIs(1));
    bool isAsked = false;
    QTimer::singleShot(0, [&] {
        if (auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget())) {
            isAsked = true;
            dialog->reject();
        }
    });
    found.front()->run();
    EXPECT_TRUE(isAsked) << "for the list";
    EXPECT_TRUE(window->body().isVisible()) << "where it will stand";
}

/// A picture of some megabytes takes long to read, and every edit shows the athlete afresh.
TEST_F(PlanningWindowTest, ReadsThePictureOfAnAthleteOnlyWhenItIsAnother) {
    const auto picture = [](QColor colour) {
        QImage image(90, 120, QImage::Format_RGB32);
        image.fill(colour);
        QByteArray bytes;
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::WriteOnly);
        EXPECT_TRUE(image.save(&buffer, "PNG"));
        return Blob{std::vector<unsigned char>(bytes.begin(), bytes.end())};
    };
    planningdatac_v6 plan = planOfThisWeek();
    plan.athletes.front().photo = picture(Qt::red);
    write(plan);
    const auto window = openWindow();
    ASSERT_TRUE(window);
    const auto shown = [&] {
        (void)window->grab();
        for (const QLabel* const label : window->athletes().findChildren<QLabel*>())
            if (!label->pixmap().isNull())
                return label->pixmap();
        return QPixmap();
    };
    const auto edit = [&](const std::function<void(athletesplanning_v6&)>& change) {
        window->document().editAthlete(0, "athlete", change);
    };
    const auto* const bytes = window->document().athletes().front().photo.bytes.data();
    const QPixmap first = shown();
    ASSERT_FALSE(first.isNull());
    for (int i = 0; i < 3; ++i) {
        edit([i](athletesplanning_v6& athlete) { athlete.phone = std::to_string(i); });
        EXPECT_EQ(shown().cacheKey(), first.cacheKey()) << "read again";
    }
    EXPECT_EQ(window->document().athletes().front().photo.bytes.data(), bytes)
        << "the steps of undo have it together";
    edit([&](athletesplanning_v6& athlete) { athlete.photo = picture(Qt::blue); });
    EXPECT_EQ(shown().toImage().pixel(1, 1), qRgb(0, 0, 255));
    edit([](athletesplanning_v6& athlete) { athlete.photo = {}; });
    EXPECT_TRUE(shown().isNull());
}

} // namespace
} // namespace kavela::test
