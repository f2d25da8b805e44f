#include "desktop/shell/tables/column_model.h"
#include "desktop/shell/tables/column_table.h"

#include "common/recorders.h"
#include "common/temp_folder.h"
#include "desktop/refusals.h"
#include "desktop/shell/refused_entry.h"
#include "desktop/shell/shown_number.h"
#include "desktop/shell/typed_number.h"
#include "desktop/shell/typing.h"
#include "desktop/shell/workspace.h"

#include <gmock/gmock.h>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>

#include <algorithm>

namespace kavela::test {
namespace {

using namespace desktop;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

struct Paddle {
    int id = 0;
    std::string maker;
    double length = 0; ///< centimetres; 0 for not measured
    bool isTaken = false;
};

/// A dash for what was not measured.
Cell lengthOf(const Paddle& paddle) {
    if (paddle.length == 0)
        return {.text = "–", .typed = ""};
    return {.text = shownNumber(paddle.length, 1),
            .number = paddle.length,
            .typed = shownNumber(paddle.length)};
}

/// A table of paddles that are changed as a document would change them.
template <class Key>
class PaddleTable {
public:
    static constexpr int Maker = 0;
    static constexpr int Length = 1;
    static constexpr int Taken = 2;

    explicit PaddleTable(typename ColumnModel<Paddle, Key>::KeyOf keyOf = {})
        : model(columns(), std::move(keyOf)), table(model, "paddles") {
        table.setAdd("Add", [this] {
            paddles.push_back({static_cast<int>(paddles.size()) + 10, "New", 0, false});
            model.show(paddles);
            table.edit(static_cast<int>(paddles.size()) - 1, Maker);
        });
        table.setRemove("Remove", [this](const std::vector<int>& places) {
            for (auto place = places.rbegin(); place != places.rend(); ++place)
                paddles.erase(paddles.begin() + *place);
            model.show(paddles);
        });
        table.keepOneChosen();
        table.resize(500, 300);
        model.show(paddles);
        table.show();
        QApplication::setActiveWindow(&table);
        table.setFocus();
        QApplication::processEvents();
    }

    typename ColumnModel<Paddle, Key>::Columns columns() {
        Column<Paddle, Key> maker;
        maker.title = "Maker";
        maker.show = [](const Paddle& row) { return Cell{QString::fromStdString(row.maker)}; };
        maker.take = [this](const Key& key, const Paddle&, const QString& typed) {
            change(key, [&](Paddle& row) { row.maker = typed.toStdString(); });
        };
        maker.proposals = [](const Paddle&) { return QStringList{"Alder", "Birch"}; };
        Column<Paddle, Key> length;
        length.title = "Length";
        length.unit = "cm";
        length.tip = "From tip to grip";
        length.kind = ColumnKind::Number;
        length.show = lengthOf;
        length.take = [this](const Key& key, const Paddle&, const QString& typed) {
            const double entry = typedReal(typed, {100, 250, {}});
            change(key, [&](Paddle& row) { row.length = entry; });
        };
        Column<Paddle, Key> taken;
        taken.title = "Taken";
        taken.show = [](const Paddle& row) { return Cell{.isTicked = row.isTaken}; };
        taken.tick = [this](const Key& key, const Paddle&, bool isTicked) {
            change(key, [&](Paddle& row) { row.isTaken = isTicked; });
        };
        return {maker, length, taken};
    }

    void change(const Key& key, const std::function<void(Paddle&)>& act) {
        ++changes;
        act(paddles.at(static_cast<std::size_t>(model.placeOfKey(key))));
        model.show(paddles);
    }

    QStringList makers() const {
        QStringList texts;
        for (int row = 0; row < table.model()->rowCount(); ++row)
            texts.append(table.model()->index(row, Maker).data().toString());
        return texts;
    }

    void choose(int row, int column) { table.setCurrentIndex(table.model()->index(row, column)); }

    int changes = 0;
    std::vector<Paddle> paddles{
        {1, "Cedar", 196.25, false}, {2, "alder 10", 0, false}, {3, "Alder 9", 204, true}};
    ColumnModel<Paddle, Key> model;
    ColumnTable table;
};

/// By their numbers, as records that have one.
class NumberedPaddles : public PaddleTable<int> {
public:
    NumberedPaddles() : PaddleTable([](const Paddle& row) { return row.id; }) {}
};

void press(QKeyCombination keys) {
    QTest::keyClick(QApplication::focusWidget(), keys.key(), keys.keyboardModifiers());
    QApplication::processEvents();
}

void typeText(const char* text) {
    for (const char* key = text; *key != 0; ++key) { // the first one may open a cell
        QTest::keyClick(QApplication::focusWidget(), *key);
        QApplication::processEvents();
    }
}

QLineEdit* openCell() {
    return qobject_cast<QLineEdit*>(QApplication::focusWidget());
}

/// The numbers of the windows are those of a country until the end of a test.
class German {
public:
    German() { QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany)); }
    ~German() { QLocale::setDefault(m_before); }
    German(const German&) = delete;
    German& operator=(const German&) = delete;

private:
    QLocale m_before;
};

TEST(ColumnTable, IsTypedThroughWithTheKeyboardAlone) {
    NumberedPaddles paddles;
    paddles.choose(0, 0);
    typeText("Elm");
    press(Qt::Key_Tab);
    EXPECT_EQ(paddles.paddles[0].maker, "Elm");
    ASSERT_TRUE(openCell()) << "the next cell that takes text is open";
    openCell()->selectAll();
    typeText("201,5");
    press(Qt::Key_Tab);
    EXPECT_EQ(paddles.paddles[0].length, 201.5);
    EXPECT_EQ(paddles.table.currentIndex(), paddles.table.model()->index(1, 0))
        << "the column of ticks is passed over";
    press(Qt::Key_Escape);
    press(Qt::Key_Space);
    EXPECT_TRUE(paddles.paddles[1].isTaken) << "Space ticks the row whatever cell is chosen";
    press(Qt::Key_F2);
    press(Qt::Key_Return);
    EXPECT_EQ(paddles.changes, 3) << "what is left as it was is no change";
}

TEST(ColumnTable, KeepsWhatACellCannotTakeAndSaysWhy) {
    NumberedPaddles paddles;
    paddles.choose(0, PaddleTable<int>::Length);
    typeText("19x");
    press(Qt::Key_Tab);
    EXPECT_THAT(refusalIn(paddles.table), HasSubstr("from 100 to 250"));
    ASSERT_TRUE(openCell());
    EXPECT_EQ(openCell()->text(), "19x");
    EXPECT_FALSE(takeTyping(paddles.table)) << "nothing is saved over it";
    openCell()->selectAll();
    typeText("199");
    EXPECT_TRUE(takeTyping(paddles.table));
    EXPECT_EQ(paddles.paddles[0].length, 199);
    EXPECT_EQ(paddles.changes, 1);
}

TEST(ColumnTable, AnEditElsewhereLeavesTheOpenCellItsTextAndItsRow) {
    NumberedPaddles paddles;
    paddles.choose(2, PaddleTable<int>::Length);
    typeText("210");
    ASSERT_TRUE(openCell());
    paddles.paddles.erase(paddles.paddles.begin());                              // rows go,
    paddles.paddles.insert(paddles.paddles.begin() + 1, {7, "Fir", 150, false}); // come,
    std::swap(paddles.paddles[0], paddles.paddles[2]); // and change their places
    paddles.paddles[0].length = 205;
    paddles.model.show(paddles.paddles);
    ASSERT_TRUE(openCell());
    EXPECT_EQ(openCell()->text(), "210");
    press(Qt::Key_Return);
    EXPECT_EQ(paddles.paddles[0].length, 210);
    EXPECT_EQ(paddles.makers(), QStringList({"Alder 9", "Fir", "alder 10"}));
    EXPECT_EQ(paddles.table.currentPlace(), 0);
}

TEST(ColumnTable, AnotherRecordClosesTheOpenCell) {
    NumberedPaddles paddles;
    paddles.choose(0, PaddleTable<int>::Length);
    typeText("210");
    paddles.model.show({{1, "Cedar of another", 170, false}}, true);
    EXPECT_TRUE(QTest::qWaitFor([] { return !openCell(); }));
    EXPECT_EQ(paddles.changes, 0);
    EXPECT_EQ(paddles.table.currentPlace(), 0) << "one row is the current one";
}

TEST(ColumnTable, RowsWithoutANumberAreKnownByWhatTheyShow) {
    PaddleTable<std::size_t> paddles;
    paddles.choose(2, 0);
    paddles.paddles.insert(paddles.paddles.begin(), {4, "Larch", 180, false});
    paddles.model.show(paddles.paddles);
    EXPECT_EQ(paddles.table.currentPlace(), 3);
    paddles.paddles.erase(paddles.paddles.begin() + 1);
    paddles.model.show(paddles.paddles);
    EXPECT_EQ(paddles.table.currentPlace(), 2);
    paddles.paddles[2].maker = "Oak";
    paddles.model.show(paddles.paddles);
    EXPECT_EQ(paddles.table.currentPlace(), 2) << "changed, it is the same row";
    paddles.paddles.clear();
    paddles.model.show(paddles.paddles);
    EXPECT_EQ(paddles.table.currentPlace(), -1);
}

TEST(FollowedRows, FindTheirPlacesAmongThoseOfNow) {
    const auto follow = [](const QString& before, const QString& now) {
        return followedRows(static_cast<int>(before.size()), static_cast<int>(now.size()),
                            [&](int was, int is) { return before[was] == now[is]; });
    };
    EXPECT_THAT(follow("abc", "abc"), ElementsAre(0, 1, 2));
    EXPECT_THAT(follow("abc", "aXc"), ElementsAre(0, 1, 2)) << "changed";
    EXPECT_THAT(follow("abc", "ac"), ElementsAre(0, -1, 1));
    EXPECT_THAT(follow("abc", "1a2b3c4"), ElementsAre(1, 3, 5)) << "a list was taken in";
    EXPECT_THAT(follow("abcd", "Xd"), ElementsAre(-1, -1, -1, 1));
    EXPECT_THAT(follow("aa", "a"), ElementsAre(0, -1));
    EXPECT_THAT(follow("", "ab"), IsEmpty());
}

TEST(ColumnTable, SortsByNumbersAndAsPeopleDoAndKeepsWhatIsChosen) {
    NumberedPaddles paddles;
    paddles.choose(0, 0);
    QHeaderView& header = *paddles.table.horizontalHeader();
    const auto click = [&](int column) {
        const QPoint at(header.sectionViewportPosition(column) + header.sectionSize(column) / 2,
                        header.height() / 2);
        QTest::mouseClick(header.viewport(), Qt::LeftButton, Qt::NoModifier, at);
    };
    click(PaddleTable<int>::Maker);
    EXPECT_EQ(paddles.makers(), QStringList({"Alder 9", "alder 10", "Cedar"}));
    EXPECT_EQ(paddles.table.currentPlace(), 0);
    click(PaddleTable<int>::Length);
    EXPECT_EQ(paddles.makers(), QStringList({"Cedar", "Alder 9", "alder 10"}));
    click(PaddleTable<int>::Length);
    EXPECT_EQ(paddles.makers(), QStringList({"Alder 9", "Cedar", "alder 10"}))
        << "what was not measured is last whichever way";
    paddles.paddles[1].length = 230;
    paddles.model.show(paddles.paddles);
    EXPECT_EQ(paddles.makers(), QStringList({"alder 10", "Alder 9", "Cedar"})) << "it stays sorted";
    EXPECT_EQ(paddles.table.currentPlace(), 0);
    click(PaddleTable<int>::Length);
    EXPECT_EQ(paddles.makers(), QStringList({"Cedar", "alder 10", "Alder 9"}))
        << "a third click brings the order of the file";
}

TEST(ColumnTable, InsertAddsAndDeleteRemovesWhatIsSelected) {
    NumberedPaddles paddles;
    paddles.table.sortBy(PaddleTable<int>::Maker, Qt::DescendingOrder);
    press(Qt::Key_Insert);
    ASSERT_TRUE(openCell());
    typeText("Yew");
    press(Qt::Key_Return);
    EXPECT_EQ(paddles.makers().constFirst(), "Yew");
    paddles.choose(1, 0);
    press(Qt::SHIFT | Qt::Key_Down);
    press(Qt::Key_Delete);
    EXPECT_EQ(paddles.makers(), QStringList({"Yew", "Alder 9"})) << "Cedar and alder 10 went";
    EXPECT_GE(paddles.table.currentPlace(), 0);
    press(Qt::Key_F2);
    press(Qt::Key_Insert);
    press(Qt::Key_Escape);
    EXPECT_EQ(paddles.paddles.size(), 2U) << "in a cell the keys are those of its text";
}

TEST(ColumnTable, TellsOnceThatAnotherRowIsTheCurrentOne) {
    NumberedPaddles paddles;
    paddles.choose(0, 0);
    const QSignalSpy spy(&paddles.table, &ColumnTable::chosen);
    paddles.choose(0, 1);
    EXPECT_EQ(spy.count(), 0);
    paddles.choose(1, 1);
    EXPECT_EQ(spy.count(), 1);
    paddles.paddles = {{9, "Other", 0, false}, {8, "Rows", 0, false}};
    paddles.model.show(paddles.paddles);
    EXPECT_EQ(spy.count(), 2);
    paddles.paddles.clear();
    paddles.model.show(paddles.paddles);
    EXPECT_EQ(spy.count(), 3);
}

TEST(ColumnTable, IsCopiedWithTheDecimalSignOfTheSystem) {
    const German german;
    NumberedPaddles paddles;
    paddles.table.selectAll();
    press(QKeyCombination(Qt::CTRL, Qt::Key_C));
    EXPECT_EQ(QApplication::clipboard()->text().toStdString(),
              "Maker\tLength (cm)\tTaken\nCedar\t196,25\t\nalder 10\t\t\nAlder 9\t204\tyes\n");
    paddles.paddles[0].maker = "Cedar; \"old\"";
    paddles.model.show(paddles.paddles);
    EXPECT_EQ(paddles.table.csv().toStdString(), "Maker;Length (cm);Taken\n"
                                                 "\"Cedar; \"\"old\"\"\";196.25;\nalder 10;;\n"
                                                 "Alder 9;204;yes\n")
        << "the same file on every computer";
    paddles.table.choose(2, 0);
    EXPECT_EQ(paddles.table.copiedText(), "Maker\tLength (cm)\tTaken\nAlder 9\t204\tyes\n");
    paddles.table.setSelectionBehavior(QAbstractItemView::SelectItems);
    paddles.table.choose(0, 1);
    EXPECT_EQ(paddles.table.copiedText(), "196,25") << "a cell alone is its value";
}

TEST(ColumnTable, ColumnsStayHiddenAndMoved) {
    const TempFolder folder;
    Recorder recorder;
    Workspace workspace(Preferences(folder.path() / "preferences.ini"), recorder.log(), systemNow);
    {
        NumberedPaddles paddles;
        paddles.table.remember(workspace, "test/columns");
        paddles.table.horizontalHeader()->moveSection(2, 0);
        paddles.table.setColumnHidden(PaddleTable<int>::Length, true);
        paddles.table.horizontalHeader()->moveSection(2, 1); // the coach goes on
    }
    NumberedPaddles again;
    again.table.remember(workspace, "test/columns");
    EXPECT_TRUE(again.table.isColumnHidden(PaddleTable<int>::Length));
    EXPECT_EQ(again.table.horizontalHeader()->visualIndex(PaddleTable<int>::Taken), 0);
    EXPECT_THAT(again.table.csv().toStdString(), HasSubstr("Taken;Maker\n;Cedar\n"));
    again.choose(0, 0);
    typeText("Elm");
    press(Qt::Key_Tab);
    EXPECT_EQ(again.table.currentIndex(), again.table.model()->index(1, 0))
        << "Tab passes over what is hidden";
}

TEST(ColumnTable, OtherColumnsLeaveTheRowAndStandWhereTheyWereLeft) {
    const TempFolder folder;
    Recorder recorder;
    Workspace workspace(Preferences(folder.path() / "preferences.ini"), recorder.log(), systemNow);
    NumberedPaddles paddles;
    paddles.table.remember(workspace, "test/columns");
    const auto few = paddles.columns();
    auto many = few;
    many.push_back(few[PaddleTable<int>::Length]); // of the same title
    paddles.model.setColumns(many);
    paddles.choose(1, 0);
    paddles.table.horizontalHeader()->moveSection(3, 0);
    paddles.model.setColumns(few);
    EXPECT_EQ(paddles.table.model()->columnCount(), 3);
    EXPECT_EQ(paddles.table.currentPlace(), 1);
    paddles.model.setColumns(many);
    EXPECT_EQ(paddles.table.horizontalHeader()->visualIndex(3), 0);
    EXPECT_EQ(paddles.table.horizontalHeader()->visualIndex(PaddleTable<int>::Length), 2);
    EXPECT_EQ(paddles.table.currentPlace(), 1);
}

} // namespace
} // namespace kavela::test
