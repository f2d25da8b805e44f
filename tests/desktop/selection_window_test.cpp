#include "desktop/selection/selection_window.h"

#include "common/recorders.h"
#include "common/temp_folder.h"
#include "desktop/selection/athlete_dialog.h"
#include "desktop/shell/workspace.h"
#include "results/messages.h"
#include "results/selection_file.h"
#include "splittaking/messages.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QTableView>
#include <QTest>

namespace kavela::test {
namespace {

namespace fs = std::filesystem;
using desktop::Autosave;
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
    EXPECT_THAT(names(*window), ElementsAre("ALDER Ann", "CEDAR Cyd", "BIRK Ben"))
        << "one win each, the worse race dropped: the order stays";
    EXPECT_TRUE(type(*window, 1, Time + RankingModel::RaceColumns, "80.5"));
    EXPECT_THAT(names(*window), ElementsAre("CEDAR Cyd", "ALDER Ann", "BIRK Ben"));
    EXPECT_FALSE(type(*window, 0, Time, "80,5"));
    EXPECT_FALSE(type(*window, 0, Penalty, "two"));
    EXPECT_EQ(m_recorder.alerts.size(), 2U);
    window->document().undoStack().undo();
    window->document().undoStack().undo();
    EXPECT_THAT(names(*window), ElementsAre("ALDER Ann", "BIRK Ben", "CEDAR Cyd"));
    EXPECT_TRUE(type(*window, 0, Time, ""));
    EXPECT_EQ(window->model().index(0, Time).data().toString(), "–");
}

TEST_F(SelectionWindowTest, TriesWhatWouldHaveBeenAndKeepsNothingOfIt) {
    const auto window = filledWindow();
    ASSERT_TRUE(window->document().saveAs(QString::fromStdString(file().string()), nullptr));
    window->setWhatIf(true);
    EXPECT_TRUE(type(*window, 2, Time, "70"));
    EXPECT_TRUE(type(*window, 1, Time + RankingModel::RaceColumns, "70"));
    EXPECT_EQ(names(*window).front(), "CEDAR Cyd");
    EXPECT_FALSE(window->document().isDirty());
    window->setWhatIf(false);
    EXPECT_THAT(names(*window), ElementsAre("ALDER Ann", "BIRK Ben", "CEDAR Cyd"));
    EXPECT_FALSE(window->document().isDirty());
}

TEST_F(SelectionWindowTest, SavesWhatItShowsAndOpensItAgain) {
    {
        const auto window = filledWindow();
        ASSERT_TRUE(window->document().saveAs(QString::fromStdString(file().string()), nullptr));
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
        ASSERT_TRUE(window->document().saveAs(QString::fromStdString(file().string()), nullptr));
        EXPECT_TRUE(type(*window, 0, Time, "60"));
    }
    const auto window = makeWindow();
    ASSERT_TRUE(window->open(QString::fromStdString(file().string())));
    EXPECT_THAT(m_questions, ElementsAre(messages::AskToLoadAutosave));
    EXPECT_TRUE(window->document().isDirty());
}

} // namespace
} // namespace kavela::test
