#include "desktop/shell/forms/record_form.h"

#include "desktop/refusals.h"
#include "desktop/shell/number_box.h"
#include "desktop/shell/refused_entry.h"
#include "desktop/shell/typed_number.h"
#include "desktop/shell/typing.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTest>
#include <QUndoStack>
#include <QVBoxLayout>

namespace kavela::test {
namespace {

using namespace desktop;
using namespace std::chrono;
using ::testing::HasSubstr;

enum class Hull { Kayak, Canoe };

struct Boat {
    std::string name = "Otter";
    std::string notes;
    std::int64_t number = 7;
    double weight = 9.26;
    double best = 0; ///< seconds; 0 for none
    ReferenceDate built = referenceDate(2024y / 5 / 11, 3600);
    Hull hull = Hull::Kayak;
    std::string maker = "Alder";
    bool isRented = false;
    std::string remark;
};

/// A form over a record with steps of undo, and a field beside it.
class RecordFormTest : public ::testing::Test {
protected:
    RecordFormTest() {
        m_form.text({.name = "name", .label = "&Name"}, &Boat::name);
        m_form.longText({.name = "notes", .label = "Notes"}, &Boat::notes, 3);
        m_form.whole({.name = "number", .label = "Number"}, {.least = 1, .most = 99},
                     &Boat::number);
        m_form.number({.name = "weight", .label = "Weight", .what = "the weight"},
                      {.least = 5, .most = 30, .decimals = 1, .unit = "kg"}, &Boat::weight);
        m_form.line({.name = "best", .label = "Best"}, &Boat::best, secondsOrNothing,
                    [](const QString& typed) {
                        return typedSecondsOrNone(typed, {0, 3600, {}});
                    });
        m_form.addSection("More");
        m_form.date({.name = "built", .label = "Built"}, &Boat::built);
        m_form.choice<>({.name = "hull", .label = "Hull"},
                        std::vector{std::pair{QString("Kayak"), Hull::Kayak},
                                    std::pair{QString("Canoe"), Hull::Canoe}},
                        &Boat::hull);
        m_form.editableChoice({.name = "maker", .label = "Maker"}, &Boat::maker);
        m_form.check({.name = "rented", .label = "Rented"}, &Boat::isRented);
        m_form.remark({.name = "remark", .label = "Remark"}, &Boat::remark);
        auto* const column = new QVBoxLayout(&m_window);
        column->addWidget(&m_form);
        column->addWidget(m_beside);
        m_form.show(&m_boat, true);
        m_window.show();
        m_window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&m_window));
    }
    ~RecordFormTest() override { m_form.setParent(nullptr); }

    class Step : public QUndoCommand {
    public:
        Step(RecordFormTest& test, const QString& what, Boat after)
            : QUndoCommand(what), m_test(test), m_before(test.m_boat), m_after(std::move(after)) {}
        void undo() override { m_test.setBoat(m_before); }
        void redo() override { m_test.setBoat(m_after); }

    private:
        RecordFormTest& m_test;
        Boat m_before;
        Boat m_after;
    };

    void setBoat(const Boat& boat) {
        m_boat = boat;
        m_form.show(&m_boat);
    }

    template <class Widget>
    Widget& field(const char* name) {
        return *m_form.findChild<Widget*>(name);
    }

    void type(const char* name, const char* text) {
        QWidget& widget = field<QWidget>(name);
        widget.setFocus();
        QTest::keyClick(&widget, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(&widget, text);
    }

    QString lastStep() const { return m_steps.text(m_steps.count() - 1); }

    Boat m_boat;
    QUndoStack m_steps;
    RecordForm<Boat> m_form{[this](const QString& what, const auto& change) {
        Boat after = m_boat;
        change(after);
        m_steps.push(new Step(*this, what, after));
    }};
    QWidget m_window;
    QLineEdit* m_beside = new QLineEdit;
};

TEST_F(RecordFormTest, TakesAFieldWithEnterAndWhenTheFocusLeaves) {
    type("name", "  River   otter ");
    EXPECT_EQ(m_boat.name, "Otter") << "what is half typed is not taken";
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_EQ(m_boat.name, "River otter");
    EXPECT_EQ(lastStep(), "name");
    EXPECT_TRUE(field<QLineEdit>("name").hasFocus()) << "Enter keeps the cursor";
    type("weight", "9,5");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(m_boat.weight, 9.5);
    EXPECT_EQ(lastStep(), "the weight");
    type("best", "1:22.75");
    m_beside->setFocus();
    EXPECT_EQ(m_boat.best, 82.75);
    EXPECT_EQ(field<QLineEdit>("best").text().toStdString(), "82.75") << "as it is shown";
    type("notes", "One");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QTest::keyClicks(QApplication::focusWidget(), "Two");
    EXPECT_EQ(m_boat.notes, "");
    m_beside->setFocus();
    EXPECT_EQ(m_boat.notes, "One\nTwo");
    EXPECT_EQ(m_steps.count(), 4) << "one step each";
    m_steps.undo();
    m_steps.undo();
    EXPECT_EQ(field<QLineEdit>("best").text(), "");
    EXPECT_EQ(field<QPlainTextEdit>("notes").toPlainText(), "");
}

TEST_F(RecordFormTest, WhatIsChosenIsTakenAtOnce) {
    field<QComboBox>("hull").setCurrentIndex(1);
    EXPECT_EQ(m_boat.hull, Hull::Canoe);
    field<QCheckBox>("rented").click();
    EXPECT_TRUE(m_boat.isRented);
    m_form.propose("maker", {"Alder", "Birch", "Cedar"});
    EXPECT_EQ(field<QComboBox>("maker").currentText(), "Alder");
    type("maker", "Elm");
    m_beside->setFocus();
    EXPECT_EQ(m_boat.maker, "Elm") << "proposals are no limits";
    field<QDateEdit>("built").setDate(QDate(2025, 1, 2));
    EXPECT_EQ(m_boat.built, referenceDate(2025y / 1 / 2, 3600)) << "the time of day stays";
    field<QDateEdit>("built").setDate(field<QDateEdit>("built").minimumDate());
    EXPECT_EQ(m_boat.built, ReferenceDate()) << "no day is known";
    EXPECT_EQ(m_steps.count(), 5);
}

TEST_F(RecordFormTest, NothingChangesWhereNothingChanged) {
    for (const char* name : {"name", "number", "weight", "best", "maker", "notes"}) {
        field<QWidget>(name).setFocus();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_End);
    }
    type("name", "Otter ");
    type("weight", "9.3");
    type("best", "0");
    EXPECT_TRUE(m_form.commit());
    EXPECT_EQ(m_steps.count(), 0);
    EXPECT_EQ(m_boat.weight, 9.26) << "with all decimals that the box does not show";
    EXPECT_EQ(field<QLineEdit>("name").text(), "Otter");
}

/// Blanks line up what a coach jots down; in a name they are a slip.
TEST_F(RecordFormTest, ARemarkKeepsTheBlanksBetweenItsWords) {
    type("remark", " gate 4   +0.6   late ");
    QTest::keyClick(&field<QLineEdit>("remark"), Qt::Key_Return);
    EXPECT_EQ(m_boat.remark, "gate 4   +0.6   late");
    type("name", " Big   Otter ");
    QTest::keyClick(&field<QLineEdit>("name"), Qt::Key_Return);
    EXPECT_EQ(m_boat.name, "Big Otter");
}

TEST_F(RecordFormTest, WhatCannotBeTakenStaysAndStopsLeaving) {
    type("best", "fast");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_THAT(refusalIn(m_window), HasSubstr("“fast”"));
    EXPECT_TRUE(field<QLineEdit>("best").hasFocus());
    EXPECT_FALSE(m_form.commit());
    EXPECT_FALSE(takeTyping(m_window));
    setBoat(m_boat); // shown anew meanwhile
    EXPECT_EQ(field<QLineEdit>("best").text(), "fast");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    EXPECT_EQ(field<QLineEdit>("best").text(), "");
    EXPECT_TRUE(m_form.commit());
    type("weight", "900");
    EXPECT_FALSE(m_form.commit());
    EXPECT_THAT(refusalIn(m_window), HasSubstr("from 5 to 30"));
    type("weight", "12");
    EXPECT_TRUE(takeTyping(m_window));
    EXPECT_EQ(m_boat.weight, 12);
    EXPECT_EQ(m_steps.count(), 1);
}

TEST_F(RecordFormTest, AChangeElsewhereShowsInTheFieldsThatAreNotTyped) {
    type("name", "Half");
    Boat other = m_boat;
    other.name = "Beaver";
    other.number = 12;
    other.notes = "Leaks";
    setBoat(other);
    EXPECT_EQ(field<QLineEdit>("name").text(), "Half") << "what is being typed stays";
    EXPECT_EQ(field<WholeBox>("number").value(), 12);
    EXPECT_EQ(field<QPlainTextEdit>("notes").toPlainText(), "Leaks");
    type("number", "30");
    other = m_boat;
    other.number = 13;
    setBoat(other);
    EXPECT_EQ(field<WholeBox>("number").text(), "30") << "numbers as texts";
    EXPECT_TRUE(m_form.commit());
    EXPECT_EQ(m_boat.name, "Half");
    EXPECT_EQ(m_boat.number, 30);
}

TEST_F(RecordFormTest, AnotherRecordGetsNothingOfTheOneBefore) {
    type("name", "Half");
    m_boat = Boat();
    m_boat.name = "Pike";
    m_form.show(&m_boat, true);
    EXPECT_EQ(field<QLineEdit>("name").text(), "Pike");
    m_beside->setFocus();
    EXPECT_EQ(m_boat.name, "Pike");
    m_form.show(nullptr);
    EXPECT_FALSE(m_form.isEnabled());
    EXPECT_EQ(field<QLineEdit>("name").text(), "");
    EXPECT_TRUE(m_form.commit());
    EXPECT_EQ(m_steps.count(), 0);
}

} // namespace
} // namespace kavela::test
