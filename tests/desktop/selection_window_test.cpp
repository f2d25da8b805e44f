#include "desktop/selection/selection_window.h"

#include "common/json_encode.h"
#include "common/recorders.h"
#include "common/temp_folder.h"
#include "desktop/people/found_lines_view.h"
#include "desktop/saving.h"
#include "desktop/selection/athlete_dialog.h"
#include "desktop/selection/take_over_dialog.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/workspace.h"
#include "results/messages.h"
#include "results/selection_file.h"
#include "splitdata/document.h"
#include "splittaking/messages.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QMenu>
#include <QTableView>
#include <QTest>
#include <QTimer>

#include <algorithm>

namespace kavela::test {
namespace {

namespace fs = std::filesystem;
using desktop::Autosave;
using desktop::Belonging;
using desktop::RankingModel;
using desktop::SelectionWindow;
using desktop::Workspace;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

constexpr int FirstRace = RankingModel::LeadingColumns;
constexpr int Time = FirstRace + int{RankingModel::TimeColumn};
constexpr int Penalty = FirstRace + int{RankingModel::PenaltyColumn};

class SelectionWindowTest : public ::testing::Test {
protected:
    SelectionWindowTest() {
        m_workspace.setAlerts(&m_recorder);
        m_workspace.setAnswer([this](const Alert& question) {
            m_questions.push_back(question.text);
            return true;
        });
    }

    /// Two races, one category, and three athletes with results.
    std::unique_ptr<SelectionWindow> filledWindow() {
        auto window = makeWindow();
        window->startNew(QString::fromStdString(file().string()), 2026);
        window->addRace("Riverside");
        window->addRace("Harbour");
        window->addCategory("MK1");
        for (const char* name : {"ALDER Ann", "BIRK Ben", "CEDAR Cyd"})
            window->addAthlete({name, 2004, "Club", {}, {}});
        const double times[] = {90, 91, 95};
        for (std::size_t athlete = 0; athlete < 3; ++athlete)
            window->document().change("results", [&](selectionracesStruct_v3& document) {
                for (std::size_t race = 0; race < 2; ++race)
                    for (std::size_t i = 0; i < 3; ++i)
                        if (document.categories[0].athletes[i].name.front() == "ABC"[athlete])
                            setResult(document, {0, i, race}, times[athlete], 0);
            });
        return window;
    }

    std::unique_ptr<SelectionWindow> makeWindow() {
        auto window = std::make_unique<SelectionWindow>(
            m_workspace, Autosave(QString::fromStdString((m_folder.path() / "kept").string())));
        window->setAttribute(Qt::WA_DeleteOnClose, false);
        return window;
    }

    fs::path file() const { return m_folder.path() / "selection.kvsr"; }

    static std::vector<std::string> names(SelectionWindow& window) {
        std::vector<std::string> names;
        for (int row = 0; row < window.model().rowCount(); ++row)
            names.push_back(window.model()
                                .index(row, RankingModel::NameColumn)
                                .data()
                                .toString()
                                .toStdString());
        return names;
    }

    static QString text(SelectionWindow& window, int row, int column) {
        return window.model().index(row, column).data().toString();
    }

    static bool type(SelectionWindow& window, int row, int column, const char* text) {
        return window.model().setData(window.model().index(row, column), text, Qt::EditRole);
    }

    TempFolder m_folder;
    Recorder m_recorder;
    std::vector<std::string> m_questions;
    Workspace m_workspace{Preferences(m_folder.path() / "preferences.ini"), m_recorder.log(),
                          [] { return ReferenceDate{7e8}; }};
};

TEST_F(SelectionWindowTest, WantsARaceBeforeAthletes) {
    const auto window = makeWindow();
    window->startNew(QString::fromStdString(file().string()), 2026);
    window->addCategory("MK1");
    window->addAthlete({"ALDER Ann", 2004, "", {}, {}});
    EXPECT_THAT(m_recorder.alerts, ElementsAre(messages::AddARaceFirst));
    EXPECT_EQ(window->model().rowCount(), 0);
}

TEST_F(SelectionWindowTest, RanksLiveAndUndoes) {
    const auto window = filledWindow();
    EXPECT_THAT(names(*window), ElementsAre("ALDER Ann", "BIRK Ben", "CEDAR Cyd"));
    EXPECT_TRUE(type(*window, 2, Time, "80.5"));
    window->model().orderAnew();
    EXPECT_THAT(names(*window), ElementsAre("ALDER Ann", "CEDAR Cyd", "BIRK Ben"))
        << "one win each, the worse race dropped: the order stays";
    EXPECT_TRUE(type(*window, 1, Time + RankingModel::RaceColumns, "80.5"));
    window->model().orderAnew();
    EXPECT_THAT(names(*window), ElementsAre("CEDAR Cyd", "ALDER Ann", "BIRK Ben"));
    EXPECT_FALSE(type(*window, 0, Time, "80s"));
    EXPECT_FALSE(type(*window, 0, Penalty, "two"));
    window->document().undoStack().undo();
    window->document().undoStack().undo();
    EXPECT_THAT(names(*window), ElementsAre("ALDER Ann", "BIRK Ben", "CEDAR Cyd"));
    EXPECT_TRUE(type(*window, 0, Time, ""));
    EXPECT_EQ(window->model().index(0, Time).data().toString(), "–");
}

TEST_F(SelectionWindowTest, TriesWhatWouldHaveBeenAndKeepsNothingOfIt) {
    const auto window = filledWindow();
    ASSERT_TRUE(savedAs(window->document(), QString::fromStdString(file().string())));
    window->setWhatIf(true);
    EXPECT_TRUE(type(*window, 2, Time, "70"));
    EXPECT_TRUE(type(*window, 2, Time + RankingModel::RaceColumns, "70"));
    window->model().orderAnew();
    EXPECT_EQ(names(*window).front(), "CEDAR Cyd");
    EXPECT_EQ(text(*window, 0, RankingModel::RankColumn), "1 (was 3)");
    window->table().choose(0, Time);
    EXPECT_THAT(window->findChild<QLabel*>("real")->text().toStdString(),
                HasSubstr("was 3, now 1"));
    EXPECT_EQ(window->model().index(0, Time).data(Qt::ToolTipRole).toString(),
              "Tried only. Really: 95.00");
    EXPECT_FALSE(window->document().isDirty());
    window->setWhatIf(false);
    EXPECT_THAT(names(*window), ElementsAre("ALDER Ann", "BIRK Ben", "CEDAR Cyd"));
    EXPECT_EQ(text(*window, 0, RankingModel::RankColumn), "1");
    EXPECT_FALSE(window->document().isDirty());
}

TEST_F(SelectionWindowTest, KeepsTheCursorInTheRowThatIsTypedInto) {
    const auto window = filledWindow();
    window->show();
    QApplication::setActiveWindow(window.get());
    auto& table = window->table();
    table.setFocus();
    table.choose(2, Time);
    const auto keys = [&](const char* text) {
        for (; *text; ++text)
            QTest::keyClick(QApplication::focusWidget(), *text);
    };
    keys("80.5\t2\t81\t4"); // time and penalty of both races, over the percentages
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QApplication::processEvents(); // then the cell is taken
    const auto& cedar = window->document().value().categories[0].athletes[2];
    EXPECT_EQ(cedar.racedata[0].resultTime, 80.5);
    EXPECT_EQ(cedar.racedata[0].pen, 2);
    EXPECT_EQ(cedar.racedata[1].resultTime, 81);
    EXPECT_EQ(cedar.racedata[1].pen, 4);
    EXPECT_EQ(names(*window).back(), "CEDAR Cyd") << "the row stays while it is typed into";
    EXPECT_EQ(text(*window, 2, RankingModel::RankColumn), "1") << "the place is told at once";
    EXPECT_EQ(table.currentIndex().row(), 2);
    QTest::keyClick(&table, Qt::Key_Up);
    EXPECT_THAT(names(*window), ElementsAre("CEDAR Cyd", "ALDER Ann", "BIRK Ben"));
    EXPECT_EQ(text(*window, table.currentIndex().row(), RankingModel::NameColumn), "BIRK Ben")
        << "the cursor goes with the athlete whom it went to";
    table.setCurrentIndex(table.currentIndex().siblingAtColumn(Time));
    keys("79");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QApplication::processEvents(); // then the cell is taken
    window->findChild<QComboBox*>("times")->setFocus();
    EXPECT_EQ(names(*window).front(), "BIRK Ben") << "leaving the table leaves the row";
}

TEST_F(SelectionWindowTest, LeavesTheResultAloneWhenAnExpectedTimeIsEmptied) {
    const auto window = filledWindow();
    window->document().setTimes(SelectionTimes::Expected);
    EXPECT_EQ(text(*window, 0, Time), "–");
    EXPECT_TRUE(type(*window, 0, Time, "88.5"));
    EXPECT_TRUE(type(*window, 0, Time, ""));
    EXPECT_EQ(window->document().value().categories[0].athletes[0].racedata[0].resultTime, 90);
    EXPECT_EQ(window->document().value().categories[0].athletes[0].racedata[0].xTime, 999.9);
}

TEST_F(SelectionWindowTest, SaysAtEveryStepWhatComesNext) {
    const auto window = makeWindow();
    window->startNew(QString::fromStdString(file().string()), 2026);
    const auto hint = [&] { return window->findChild<QLabel*>("hint")->text().toStdString(); };
    EXPECT_THAT(hint(), HasSubstr("Ctrl+R"));
    window->addRace("Riverside");
    EXPECT_THAT(hint(), HasSubstr("Ctrl+G"));
    window->addCategory("MK1");
    EXPECT_THAT(hint(), HasSubstr("Ctrl+N"));
    window->addAthlete({"ALDER Ann", 2004, "Club", {}, {}});
    EXPECT_EQ(hint(), "");
    EXPECT_EQ(window->table().currentIndex().column(), Time) << "the result is typed next";
}

TEST_F(SelectionWindowTest, TheMenuOfTheTableShowsEachKeyOnce) {
    const auto window = filledWindow();
    QMenu menu;
    window->table().fillMenu(menu);
    QStringList keys;
    for (const QAction* const action : menu.actions())
        if (!action->shortcut().isEmpty())
            keys.append(action->shortcut().toString());
    EXPECT_TRUE(keys.contains("Ctrl+C"));
    EXPECT_EQ(keys.removeDuplicates(), 0);
}

TEST_F(SelectionWindowTest, AsksNoSecondTimeForTheNameOfANewFile) {
    const auto window = filledWindow();
    window->document().setNamed();
    EXPECT_TRUE(saved(*window));
    EXPECT_TRUE(fs::exists(file()));
}

/// A race of split files: one who is in the selection, one nearly, one not at all.
splittakerdata031 splitFile() {
    splittakerdata031 file;
    file.info.category = "K1M";
    for (const auto& [name, time] :
         {std::pair("Ann Alder", 89.0), std::pair("B. Birk", 88.0), std::pair("Eve Roth", 87.0)}) {
        athletedata031 run;
        run.names = {name};
        run.phase = "Final";
        run.sectioninfo.totaltime = time;
        file.athletes.push_back(std::move(run));
    }
    return file;
}

TEST_F(SelectionWindowTest, ShowsWhatAFileWouldChangeAndWhoseRunsAreByHand) {
    const auto window = filledWindow();
    window->document().change("expected", [](selectionracesStruct_v3& document) {
        setResult(document, {0, 0, 0}, 90, 0, 86.5);
    });
    const auto before = encode(window->document().value());
    const QString path =
        QString::fromStdString(m_folder.add("race.kvx", encode(splitFile())).string());
    const auto look = [&](bool isTaken) {
        QTimer::singleShot(0, [&, isTaken] {
            auto* const dialog =
                qobject_cast<desktop::SelectionTakeOverDialog*>(QApplication::activeModalWidget());
            ASSERT_TRUE(dialog);
            auto& lines = dialog->lines();
            const auto cell = [&](int line, int column) {
                return lines.index(line, column).data().toString().toStdString();
            };
            ASSERT_EQ(lines.rowCount(), 5) << "three runs, two athletes without one";
            EXPECT_EQ(cell(0, lines.wasColumn()), "90.00");
            EXPECT_EQ(cell(0, lines.nowColumn()), "89.00");
            EXPECT_THAT(cell(0, lines.remarkColumn()), HasSubstr("xTime 86.50 stays"));
            EXPECT_EQ(cell(1, lines.nowColumn()), "no result");
            EXPECT_EQ(cell(3, lines.remarkColumn()), "perhaps BIRK Ben?");
            const auto choose = [&](int line, const Belonging& whose) {
                const auto choices = lines.choicesFor(line);
                const auto choice = std::ranges::find(choices, whose) - choices.begin();
                lines.setData(lines.index(line, lines.whoseColumn()), int(choice), Qt::EditRole);
            };
            dialog->view().choose(3, lines.whoseColumn());
            choose(3, Belonging::toPerson(1));
            ASSERT_EQ(lines.rowCount(), 4) << "one has a run now";
            EXPECT_EQ(dialog->view().currentPlace(), 2) << "the cursor stays with its line";
            EXPECT_THAT(dialog->view().copiedText().toStdString(), HasSubstr("\t91.00\t88.00\t"));
            EXPECT_EQ(cell(2, lines.wasColumn()), "91.00");
            EXPECT_EQ(cell(2, lines.nowColumn()), "88.00");
            EXPECT_THAT(cell(2, lines.remarkColumn()), HasSubstr("place 1, was 2"));
            choose(3, Belonging::toNewPerson());
            lines.setData(lines.index(1, 0), Qt::Unchecked, Qt::CheckStateRole);
            EXPECT_THAT(dialog->findChild<QLabel*>("note")->text().toStdString(),
                        HasSubstr("result: 3, of them new in the selection: 1"));
            isTaken ? dialog->accept() : dialog->reject();
        });
        window->attachFiles(0, {path});
    };
    look(false);
    EXPECT_EQ(encode(window->document().value()), before);
    look(true);
    const auto& athletes = window->document().value().categories[0].athletes;
    ASSERT_EQ(athletes.size(), 4U);
    EXPECT_EQ(athletes[0].racedata[0].resultTime, 89);
    EXPECT_EQ(athletes[0].racedata[0].xTime, 86.5);
    EXPECT_EQ(athletes[1].racedata[0].resultTime, 88);
    EXPECT_EQ(athletes[2].racedata[0].resultTime, 95) << "kept by hand";
    EXPECT_EQ(athletes[3].name, "Eve Roth");
    window->document().undoStack().undo();
    EXPECT_EQ(encode(window->document().value()), before);
}

TEST_F(SelectionWindowTest, SavesWhatItShowsAndOpensItAgain) {
    {
        const auto window = filledWindow();
        ASSERT_TRUE(savedAs(window->document(), QString::fromStdString(file().string())));
    }
    const auto window = makeWindow();
    ASSERT_TRUE(window->open(QString::fromStdString(file().string())));
    EXPECT_THAT(names(*window), ElementsAre("ALDER Ann", "BIRK Ben", "CEDAR Cyd"));
    const auto& athletes = window->document().value().categories[0].athletes;
    EXPECT_NEAR(athletes[1].result, (91.0 / 90 - 1) * 100 / 3, 1e-9);
    EXPECT_FALSE(makeWindow()->open(
        QString::fromStdString(m_folder.add("broken.kvsr", "{\"year\":").string())));
    EXPECT_EQ(m_recorder.alerts.size(), 1U);
}

TEST_F(SelectionWindowTest, TellsWhichLinesOfAListItCouldNotTake) {
    const auto window = filledWindow();
    window->importAthletesFrom(QString::fromStdString(
        m_folder.add("list.csv", "Cat;Name;Surname;year;club\nWK1;Eve;ROTH;2006;A\nWK1;Eve\n")
            .string()));
    EXPECT_EQ(window->document().value().categories.size(), 2U);
    ASSERT_EQ(m_recorder.alerts.size(), 1U);
    EXPECT_THAT(m_recorder.alerts[0], HasSubstr("Line 3"));
    window->document().undoStack().undo();
    EXPECT_EQ(window->document().value().categories.size(), 1U);
}

TEST(AthleteDialog, OffersOneGroupAndBonusMoreThanThereAreAndAddsThemOnlyWhenUsed) {
    const NewAthlete athlete{"ALDER Ann", 2006, "Club", {true}, {0.5}};
    desktop::AthleteDialog dialog(athlete, 1, 1, nullptr);
    EXPECT_EQ(dialog.athlete().preselected, std::vector<bool>{true});
    EXPECT_EQ(dialog.athlete().bonuses, std::vector<double>{0.5});
    dialog.findChildren<QCheckBox*>().back()->setChecked(true);
    EXPECT_EQ(dialog.athlete().preselected, (std::vector<bool>{true, true}));
    EXPECT_EQ(dialog.findChild<QComboBox*>("ageGroup")->count(), 2) << "Senior and Junior";
}

TEST_F(SelectionWindowTest, OffersUnsavedWork) {
    {
        const auto window = filledWindow();
        ASSERT_TRUE(savedAs(window->document(), QString::fromStdString(file().string())));
        EXPECT_TRUE(type(*window, 0, Time, "60"));
    }
    const auto window = makeWindow();
    ASSERT_TRUE(window->open(QString::fromStdString(file().string())));
    EXPECT_THAT(m_questions, ElementsAre(messages::AskToLoadAutosave));
    EXPECT_TRUE(window->document().isDirty());
}

TEST_F(SelectionWindowTest, AListOfWhichNothingWasTakenIsNoEdit) {
    const auto window = filledWindow();
    const int steps = window->document().undoStack().count();
    const fs::path list = m_folder.add("list.csv", "one line\nthat is no list\n");
    window->importAthletesFrom(QString::fromStdString(list.string()));
    EXPECT_EQ(window->document().undoStack().count(), steps);
    EXPECT_FALSE(m_recorder.alerts.empty()) << "what is wrong with it is told";
}

} // namespace
} // namespace kavela::test
