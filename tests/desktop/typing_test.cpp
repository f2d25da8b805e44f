#include "desktop/saving.h"
#include "desktop/selection/selection_window.h"
#include "desktop/shell/number_box.h"
#include "desktop/shell/refused_entry.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/wheel_guard.h"

#include "common/recorders.h"
#include "common/temp_folder.h"
#include "desktop/refusals.h"
#include "desktop/shell/workspace.h"
#include "results/selection_edit.h"

#include <gmock/gmock.h>

#include <QComboBox>
#include <QLineEdit>
#include <QMenuBar>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabBar>
#include <QTableView>
#include <QTest>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <filesystem>

namespace kavela::test {
namespace {

using desktop::NumberBox;
using desktop::RankingModel;
using desktop::WholeBox;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

/// The numbers of the windows are those of a country until the end of a test.
class Country {
public:
    explicit Country(QLocale::Language language) { QLocale::setDefault(QLocale(language)); }
    ~Country() { QLocale::setDefault(m_before); }
    Country(const Country&) = delete;
    Country& operator=(const Country&) = delete;

private:
    QLocale m_before;
};

/// A form with a box of each kind, and a field to go on to.
class BoxesTest : public ::testing::Test {
protected:
    BoxesTest() {
        auto* column = new QVBoxLayout(&m_form);
        for (QWidget* const part : std::initializer_list<QWidget*>{m_score, m_count, m_next})
            column->addWidget(part);
        m_score->setRange(0, 100);
        m_score->setDecimals(2);
        m_score->setValue(4);
        m_count->setRange(1, 50);
        m_form.show();
        m_form.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&m_form));
    }

    static void type(QAbstractSpinBox& box, const char* text) {
        box.setFocus();
        box.selectAll();
        QTest::keyClicks(&box, text);
    }
    void typeAndGoOn(QAbstractSpinBox& box, const char* text) {
        type(box, text);
        QTest::keyClick(&box, Qt::Key_Tab);
    }

    QWidget m_form;
    NumberBox* m_score = new NumberBox;
    WholeBox* m_count = new WholeBox;
    QLineEdit* m_next = new QLineEdit;
};

TEST_F(BoxesTest, ReadBothSignsWhateverTheSystemWrites) {
    for (const auto& [language, shown] : {std::pair{QLocale::German, "7,50"},
                                          {QLocale::English, "7.50"},
                                          {QLocale::Arabic, "7.50"}}) {
        const Country country(language);
        for (const char* text : {"7.5", "7,5", " 7,500 "}) {
            m_score->setValue(4);
            typeAndGoOn(*m_score, text);
            EXPECT_EQ(m_score->value(), 7.5) << text;
            EXPECT_EQ(m_score->text().toStdString(), shown);
        }
    }
    m_score->setIsTime(true);
    m_score->setSuffix(" s");
    typeAndGoOn(*m_score, "1:22.75");
    EXPECT_EQ(m_score->value(), 82.75);
    EXPECT_FALSE(m_score->hasFocus());
}

TEST_F(BoxesTest, KeepWhatTheyCannotTakeAndSayWhy) {
    for (const auto& [text, expected] : {std::pair{"1e5", "“1e5”"},
                                         {"250", "from 0 to 100"},
                                         {"7.5.2", "“7.5.2”"},
                                         {"", "from 0 to 100"}}) {
        SCOPED_TRACE(text);
        type(*m_score, text);
        QTest::keyClick(m_score, *text ? Qt::Key_Tab : Qt::Key_Delete);
        QTest::keyClick(m_score, Qt::Key_Return);
        EXPECT_THAT(refusalIn(m_form), HasSubstr(expected));
        EXPECT_EQ(m_score->text().toStdString(), text);
        EXPECT_TRUE(m_score->hasFocus()) << "the cursor stays";
        EXPECT_TRUE(desktop::showRefusedEntry(m_form)) << "nothing is saved over it";
        QTest::keyClick(m_score, Qt::Key_Escape);
        EXPECT_EQ(m_score->value(), 4);
        EXPECT_EQ(m_score->cleanText(), "4.00");
        EXPECT_FALSE(desktop::showRefusedEntry(m_form));
        EXPECT_THAT(refusalIn(m_form), IsEmpty());
    }
    typeAndGoOn(*m_count, "7.5");
    EXPECT_EQ(m_count->text(), "7.5") << "neither 7 nor 75";
    EXPECT_THAT(refusalIn(m_form), HasSubstr("whole number from 1 to 50"));
    typeAndGoOn(*m_count, "8");
    EXPECT_EQ(m_count->value(), 8);
    EXPECT_FALSE(desktop::isRefused(*m_count));
    EXPECT_TRUE(m_next->hasFocus());
}

TEST_F(BoxesTest, AreNotOverwrittenWhileANumberIsTyped) {
    m_score->setKeyboardTracking(false);
    type(*m_score, "5");
    m_score->showValue(4); // the document was shown anew
    EXPECT_EQ(m_score->text(), "5");
    m_score->showValue(6); // another value is there now
    EXPECT_EQ(m_score->text(), "6.00");
}

/// A page that is longer than its window, with boxes on it.
class WheelTest : public ::testing::Test {
protected:
    WheelTest() {
        qApp->installEventFilter(&m_guard);
        auto* content = new QWidget;
        auto* column = new QVBoxLayout(content);
        m_choice->addItems({"Stern pivot", "Bow draw", "Punt"});
        m_number->setValue(5);
        m_own->setEditable(true);
        m_own->addItems({"Flat water", "Fast water"});
        for (QWidget* const part : std::initializer_list<QWidget*>{m_choice, m_number, m_own})
            column->addWidget(part);
        column->addSpacing(2000);
        m_page.setWidget(content);
        m_page.setWidgetResizable(true);
        m_page.resize(300, 200);
        m_page.show();
        m_page.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&m_page));
        m_page.setFocus();
    }

    static void turn(QWidget& part, int clicks) {
        const QPointF place = part.rect().center();
        QWheelEvent event(place, part.mapToGlobal(place), {}, {0, 120 * clicks}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QSpontaneKeyEvent::setSpontaneous(&event); // as the mouse's own, it goes on to the page
        qApp->notify(&part, &event);
    }

    desktop::WheelGuard m_guard;
    QScrollArea m_page;
    QComboBox* m_choice = new QComboBox;
    NumberBox* m_number = new NumberBox;
    QComboBox* m_own = new QComboBox;
};

TEST_F(WheelTest, ScrollsThePageAndChangesNothing) {
    for (QWidget* const part : std::initializer_list<QWidget*>{m_choice, m_number, m_own}) {
        const int before = m_page.verticalScrollBar()->value();
        turn(*part, -2);
        EXPECT_GT(m_page.verticalScrollBar()->value(), before);
        EXPECT_NE(part->focusPolicy(), Qt::WheelFocus) << "the wheel would bring the focus";
    }
    EXPECT_EQ(m_choice->currentIndex(), 0);
    EXPECT_EQ(m_number->value(), 5);
    EXPECT_EQ(m_own->currentIndex(), 0);
    m_choice->setFocus();
    turn(*m_choice, -1);
    EXPECT_EQ(m_choice->currentIndex(), 1);
    m_number->setFocus();
    turn(*m_number, 1);
    EXPECT_EQ(m_number->value(), 6);
}

/// A selection with a race and two athletes, in front.
class CellsTest : public ::testing::Test {
protected:
    CellsTest() {
        m_workspace.setAlerts(&m_recorder);
        m_window.setAttribute(Qt::WA_DeleteOnClose, false);
        m_window.startNew(path(), 2026);
        m_window.addRace("Riverside");
        m_window.addCategory("MK1");
        m_window.addAthlete({"ALDER Ann", 2004, "Club", {}, {}});
        m_window.addAthlete({"BIRK Ben", 2004, "Club", {}, {}});
        EXPECT_TRUE(savedAs(m_window.document(), path()));
        m_window.show();
        m_window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&m_window));
        m_table->setFocus();
        m_table->setCurrentIndex(cell(0));
    }

    [[nodiscard]] QString path() const {
        return QString::fromStdString((m_folder.path() / "selection.kvsr").string());
    }
    [[nodiscard]] QModelIndex cell(int row) {
        return m_window.table().cellAt(row, RankingModel::LeadingColumns);
    }
    [[nodiscard]] double timeOf(std::size_t athlete) {
        return m_window.document().value().categories[0].athletes[athlete].racedata[0].resultTime;
    }
    static void press(const char* keys) {
        for (const char* key = keys; *key; ++key)
            QTest::keyClick(QApplication::focusWidget(), *key);
    }
    static void press(Qt::Key key, Qt::KeyboardModifiers with = Qt::NoModifier) {
        QTest::keyClick(QApplication::focusWidget(), key, with);
        QApplication::processEvents();
    }
    [[nodiscard]] QLineEdit* editor() const { return m_table->viewport()->findChild<QLineEdit*>(); }

    TempFolder m_folder;
    Recorder m_recorder;
    desktop::Workspace m_workspace{Preferences(m_folder.path() / "preferences.ini"),
                                   m_recorder.log(), [] { return ReferenceDate{7e8}; }};
    desktop::SelectionWindow m_window{m_workspace, desktop::Autosave(QString::fromStdString(
                                                       (m_folder.path() / "kept").string()))};
    QTableView* m_table = m_window.findChild<QTableView*>("ranking");
};

TEST_F(CellsTest, TakeTheCommaUnderTheThumbAndShowIt) {
    const Country country(QLocale::German);
    press("82,75");
    press(Qt::Key_Return);
    EXPECT_EQ(timeOf(0), 82.75);
    EXPECT_EQ(cell(0).data().toString(), "82,75");
    EXPECT_EQ(cell(0).data(Qt::EditRole).toString(), "82,75");
    m_table->setCurrentIndex(cell(1));
    press("1:23.5");
    press(Qt::Key_Return);
    EXPECT_EQ(timeOf(1), 83.5);
    m_table->setCurrentIndex(cell(1));
    press("x");
    press(Qt::Key_Return);
    EXPECT_THAT(refusalIn(m_window), HasSubstr("such as 92,34"));
    press(Qt::Key_Escape);
    EXPECT_THAT(m_recorder.alerts, IsEmpty());
}

TEST_F(CellsTest, KeepWhatTheyCannotTakeWithTheCursorInIt) {
    const int before = m_window.document().undoStack().count();
    press("82x5");
    press(Qt::Key_Return);
    EXPECT_THAT(refusalIn(m_window), HasSubstr("“82x5”"));
    EXPECT_THAT(m_recorder.alerts, IsEmpty()) << "no box in front of the table";
    ASSERT_TRUE(editor());
    EXPECT_TRUE(editor()->hasFocus());
    press(Qt::Key_Tab);
    QTest::mouseClick(m_table->viewport(), Qt::LeftButton, {},
                      m_table->visualRect(cell(1)).center());
    EXPECT_THAT(refusalIn(m_window), HasSubstr("“82x5”")) << "neither Tab nor a click leave it";
    ASSERT_TRUE(editor());
    EXPECT_EQ(editor()->text(), "82x5");
    EXPECT_TRUE(editor()->hasFocus());
    editor()->setCursorPosition(3);
    press(Qt::Key_Backspace);
    EXPECT_THAT(refusalIn(m_window), IsEmpty()) << "it goes as soon as something is typed";
    press(Qt::Key_Return);
    EXPECT_EQ(timeOf(0), 825);
    EXPECT_EQ(m_window.document().undoStack().count(), before + 1) << "one step, not two";
}

TEST_F(CellsTest, AreTakenBeforeATabShowsOthersAndHoldItWhereTheyCannotBe) {
    m_window.addCategory("WK1");
    auto& tabs = *m_window.findChild<QTabBar*>("categories");
    tabs.setCurrentIndex(0);
    m_table->setFocus();
    m_table->setCurrentIndex(cell(0));
    press("82x5");
    const auto clickTab = [&](int tab) {
        QTest::mouseClick(&tabs, Qt::LeftButton, {}, tabs.tabRect(tab).center());
    };
    clickTab(1);
    EXPECT_THAT(refusalIn(m_window), HasSubstr("“82x5”"));
    EXPECT_EQ(tabs.currentIndex(), 0);
    ASSERT_TRUE(editor());
    EXPECT_EQ(editor()->text(), "82x5");
    editor()->setText("82.5");
    clickTab(1);
    EXPECT_EQ(tabs.currentIndex(), 1);
    EXPECT_EQ(timeOf(0), 82.5);
}

TEST_F(CellsTest, AreNotSavedOverAndEscBringsTheOldValueBack) {
    press("95");
    press(Qt::Key_Return);
    m_table->setCurrentIndex(cell(0));
    press("9:99");
    EXPECT_FALSE(saved(m_window));
    EXPECT_FALSE(m_window.close());
    EXPECT_TRUE(m_window.isVisible());
    EXPECT_THAT(refusalIn(m_window), HasSubstr("“9:99”"));
    ASSERT_TRUE(editor());
    EXPECT_TRUE(editor()->hasFocus());
    press(Qt::Key_Escape);
    EXPECT_FALSE(editor() && editor()->isVisible());
    EXPECT_EQ(timeOf(0), 95);
    EXPECT_TRUE(saved(m_window));
    m_table->setCurrentIndex(cell(0));
    press("96");
    EXPECT_TRUE(saved(m_window)) << "with what is being typed";
    EXPECT_EQ(timeOf(0), 96);
    EXPECT_TRUE(m_table->hasFocus());
}

} // namespace
} // namespace kavela::test
