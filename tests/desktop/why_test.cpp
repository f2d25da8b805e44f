#include "common/number_text.h"
#include "desktop/film/film_stage.h"
#include "desktop/motion/motion_window.h"
#include "desktop/race/run_panel.h"
#include "desktop/race_fixture.h"
#include "desktop/selection/ranking_model.h"
#include "desktop/selection/selection_window.h"
#include "desktop/shell/key_list.h"
#include "desktop/taking/split_mode.h"
#include "desktop/taking/taking_window.h"
#include "desktop/team_fixture.h"
#include "desktop/why/why_label.h"
#include "desktop/why/why_window.h"

#include <QClipboard>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>

#include <array>

/// A number is asked why, and answers with what the window shows.
namespace kavela::test {
namespace {

using desktop::ColumnTable;
using desktop::RankingModel;
using desktop::SelectionWindow;
using desktop::TakingWindow;
using desktop::WhyWindow;
using ::testing::HasSubstr;
using ::testing::SizeIs;

const QKeySequence WhyKey(Qt::SHIFT | Qt::Key_F1);

WhyWindow* answerOf(const QWidget& window) {
    return window.findChild<WhyWindow*>();
}

std::string shownBy(const QWidget& window) {
    const WhyWindow* const why = answerOf(window);
    return why ? why->findChild<QLabel*>("shown")->text().toStdString() : "no answer";
}

void pressWhy(QWidget& window) {
    QApplication::setActiveWindow(&window);
    QApplication::processEvents();
    QWidget* const focus = window.focusWidget() ? window.focusWidget() : &window;
    QTest::keyClick(focus, Qt::Key_F1, Qt::ShiftModifier);
    QApplication::processEvents();
}

bool isListed(const QMainWindow& window, const QKeySequence& key) {
    for (const desktop::KeyGroup& group : desktop::keyGroups(window))
        for (const desktop::ListedKey& listed : group.keys)
            if (listed.action->shortcut() == key)
                return true;
    return false;
}

class WhyTest : public RaceWindowTest {
protected:
    /// The sample race with a cell in front.
    RaceWindow* openAt(int row, int column) {
        m_file = copyOf(Examples / "races" / "riverside_cup.kvx");
        RaceWindow* const window = open(m_file);
        if (!window)
            return nullptr;
        window->show();
        QApplication::processEvents();
        QTableView& table = tableOf(*window);
        table.setFocus();
        table.setCurrentIndex(window->model().index(row, column));
        return window;
    }

    static desktop::FrozenTable& tableOf(const RaceWindow& window) {
        return *window.findChild<desktop::FrozenTable*>("splitTable");
    }

    fs::path m_file;
};

TEST_F(WhyTest, TheKeyShowsWhyACellIsWhatItIsAndEscapeClosesIt) {
    RaceWindow* const window = openAt(2, FirstTime + 1);
    ASSERT_TRUE(window);
    EXPECT_TRUE(isListed(*window, WhyKey));
    pressWhy(*window);
    EXPECT_EQ(shownBy(*window),
              cell(*window, 2, FirstTime + 1, Qt::DisplayRole).toString().toStdString());
    ASSERT_TRUE(answerOf(*window));
    QTest::keyClick(answerOf(*window), Qt::Key_Escape);
    QTRY_VERIFY(!answerOf(*window));
}

/// Whatever the cells say, and in the columns that stay in view as well.
TEST_F(WhyTest, AltClickAnswersForTheCellUnderTheMouse) {
    RaceWindow* const window = openAt(0, FirstTime);
    ASSERT_TRUE(window);
    trigger(*window, QKeySequence(Qt::CTRL | Qt::Key_4)); // percent behind
    const desktop::FrozenTable& table = tableOf(*window);
    const int total = window->model().columnCount() - SplitTableModel::ClosingColumns;
    for (const auto& [view, column] :
         {std::pair<const QTableView*, int>{&table, FirstTime}, {table.backView(), total}}) {
        const QModelIndex index = window->model().index(4, column);
        QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::AltModifier,
                          view->visualRect(index).center());
        EXPECT_EQ(shownBy(*window), index.data().toString().toStdString()) << column;
        delete answerOf(*window);
    }
    EXPECT_EQ(table.currentIndex().row(), 0) << "the click is the question's alone";
}

TEST_F(WhyTest, APlaceOpensTheRunAtTheMark) {
    RaceWindow* const window = openAt(3, FirstTime + 1);
    ASSERT_TRUE(window);
    pressWhy(*window);
    ASSERT_TRUE(answerOf(*window));
    auto* const tree = answerOf(*window)->findChild<QTreeWidget*>("inputs");
    EXPECT_THAT(tree->currentItem()->text(2).toStdString(), HasSubstr("split 2"));
    QTest::keyClick(tree, Qt::Key_Return);
    const auto taking = m_desktop.windowsOf<TakingWindow>();
    ASSERT_THAT(taking, SizeIs(1));
    const auto run = window->model().runOfRow(3);
    ASSERT_TRUE(run);
    EXPECT_EQ(taking[0]->currentRun(), window->document().shownSet().alldata[*run].athleteInt);
    EXPECT_EQ(taking[0]->splits().selectedMark(), std::optional<std::size_t>(2));
    QTRY_VERIFY(!answerOf(*window));
}

TEST_F(WhyTest, TellsWhenTheFileMovedOrTheRunIsGone) {
    RaceWindow* const window = openAt(0, FirstTime);
    ASSERT_TRUE(window);
    Place place;
    place.file = m_file;
    place.run = 400;
    emit window->placeRequested(place);
    ASSERT_THAT(m_recorder.alerts, SizeIs(1));
    EXPECT_THAT(m_recorder.alerts[0], HasSubstr("Run 400 is not in split taking any more"));
    place.file = m_folder.path() / "elsewhere" / "cup.kvx";
    emit window->placeRequested(place);
    ASSERT_THAT(m_recorder.alerts, SizeIs(2));
    EXPECT_THAT(m_recorder.alerts[1], HasSubstr("It was in"));
}

TEST_F(WhyTest, CopiesTheWholeReasonAsText) {
    RaceWindow* const window = openAt(1, FirstTime);
    ASSERT_TRUE(window);
    trigger(*window, QKeySequence(Qt::CTRL | Qt::Key_2)); // gaps
    pressWhy(*window);
    ASSERT_TRUE(answerOf(*window));
    answerOf(*window)->findChild<QPushButton*>("copy")->click();
    const std::string copied = QApplication::clipboard()->text().toStdString();
    EXPECT_THAT(copied, HasSubstr("own − reference;  shown "));
    EXPECT_THAT(copied, HasSubstr("riverside_cup.kvx · run"));
    EXPECT_THAT(copied, HasSubstr("mark − mark before")) << "the numbers on the way, too";
}

/// Names are not computed, and where nothing answers there is no such key.
TEST_F(WhyTest, IsSilentWhereNothingWasComputed) {
    RaceWindow* const window = openAt(0, SplitTableModel::NameColumn);
    ASSERT_TRUE(window);
    pressWhy(*window);
    EXPECT_FALSE(answerOf(*window));
    desktop::MotionWindow motion(m_workspace);
    motion.setAttribute(Qt::WA_DeleteOnClose, false);
    motion.show();
    EXPECT_FALSE(isListed(motion, WhyKey));
}

TEST_F(WhyTest, ARankingExplainsScoresAsThePanelBesideItDoes) {
    m_desktop.open(
        QString::fromStdString(copyOf(Examples / "selection" / "spring_selection.kvsr").string()));
    const auto windows = m_desktop.windowsOf<SelectionWindow>();
    ASSERT_THAT(windows, SizeIs(1));
    auto* const table = windows[0]->findChild<ColumnTable*>("ranking");
    table->setFocus();
    for (const int column : {int{RankingModel::ScoreColumn},
                             RankingModel::LeadingColumns + int{RankingModel::PercentColumn}}) {
        table->choose(1, column);
        pressWhy(*windows[0]);
        EXPECT_EQ(shownBy(*windows[0]),
                  windows[0]->model().index(1, column).data().toString().toStdString());
        delete answerOf(*windows[0]);
    }
}

TEST_F(WhyTest, SplitTakingExplainsTheExpectedTimeOfTheRun) {
    TakingWindow* const window = m_desktop.openTaking(
        QString::fromStdString(copyOf(Examples / "races" / "riverside_cup.kvx").string()));
    ASSERT_TRUE(window);
    window->selectRun(7);
    pressWhy(*window);
    EXPECT_EQ(shownBy(*window),
              QString::number(window->document().expectedTime(7), 'f', 2).toStdString());
}

TEST_F(WhyTest, TheRunsPanelAnswersForEachOfItsNumbers) {
    RaceWindow* const window = openAt(2, FirstTime);
    ASSERT_TRUE(window);
    auto* const panel = window->findChild<desktop::RunPanel*>();
    auto* const sections = panel->findChild<ColumnTable*>();
    QTRY_VERIFY(sections->isVisible());
    sections->setFocus();
    for (const int column : {1, 3, 4}) { // time, place, gap
        sections->choose(0, column);
        pressWhy(*window);
        EXPECT_EQ(shownBy(*window), sections->cellAt(0, column).data().toString().toStdString());
        delete answerOf(*window);
    }
    const analyzerdata& run = window->document().shownSet().alldata[*window->model().runOfRow(2)];
    QStringList asked;
    for (auto* const label : panel->findChildren<desktop::WhyLabel*>()) {
        if (!label->isVisible())
            continue;
        asked << label->text();
        label->setFocus();
        pressWhy(*window);
        EXPECT_THAT(label->text().toStdString(), HasSubstr(shownBy(*window)));
        delete answerOf(*window);
    }
    EXPECT_THAT(asked.join(' ').toStdString(),
                HasSubstr(hundredthsText(run.sectioninfo.totaltime)));
    EXPECT_GE(asked.size(), 4) << "total, penalties and those of the list";
}

TEST_F(WhyTest, SplitTakingExplainsTotalAndPenalties) {
    TakingWindow* const window = m_desktop.openTaking(
        QString::fromStdString(copyOf(Examples / "races" / "riverside_cup.kvx").string()));
    ASSERT_TRUE(window);
    window->selectRun(7);
    const sectiondata030& timing = window->document().run(7).sectioninfo;
    const std::array expected{hundredthsText(timing.totaltime), std::to_string(timing.totalpen)};
    const auto labels = window->findChildren<desktop::WhyLabel*>();
    ASSERT_GE(labels.size(), 2);
    for (const std::size_t i : {0U, 1U}) {
        labels[static_cast<qsizetype>(i)]->setFocus();
        pressWhy(*window);
        EXPECT_EQ(shownBy(*window), expected[i]);
        ASSERT_TRUE(answerOf(*window));
        EXPECT_THAT(answerOf(*window)->text().toStdString(), HasSubstr("run 7"));
        delete answerOf(*window);
    }
}

class TeamWhyTest : public TeamFixture {};

TEST_F(TeamWhyTest, TheCategorizationNamesTheRacesItCounted) {
    const auto window = openWindow();
    ASSERT_TRUE(window);
    pressWhy(*window);
    EXPECT_EQ(shownBy(*window), window->findChild<QLabel*>("label")->text().toStdString());
    delete answerOf(*window);
    auto* const counts = window->findChild<QLabel*>("counts");
    QTest::mouseClick(counts, Qt::LeftButton, Qt::AltModifier,
                      QPoint(2, counts->height() - 2)); // the last line
    EXPECT_EQ(shownBy(*window), "International events: 3");
    ASSERT_TRUE(answerOf(*window));
    EXPECT_EQ(answerOf(*window)->findChild<QTreeWidget*>("inputs")->topLevelItem(0)->text(0),
              "2025, WC1, Tacen");
}

} // namespace
} // namespace kavela::test
