#include "desktop/shell/growth.h"

#include "common/recorders.h"
#include "common/temp_folder.h"
#include "desktop/cross/heats/order_board.h"
#include "desktop/cross/heats/place_grid.h"
#include "desktop/desktop.h"
#include "desktop/shell/theme.h"
#include "desktop/shell/tile.h"
#include "desktop/shell/tile_columns.h"
#include "desktop/shell/tool_window.h"
#include "desktop/taking/gate_strip.h"
#include "desktop/taking/split_bar.h"
#include "desktop/tools.h"

#include <gmock/gmock.h>

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabWidget>
#include <QTableView>
#include <QTest>
#include <QToolButton>

#include <memory>
#include <optional>
#include <vector>

/// What is written has the room that it needs, whatever size of letters the system asks for.
namespace kavela::test {
namespace {

/// The font of the program in points, for the life of a test.
class FontOf {
public:
    explicit FontOf(int points) {
        QFont font = m_before;
        font.setPointSize(points);
        QApplication::setFont(font);
    }
    FontOf(const FontOf&) = delete;
    FontOf& operator=(const FontOf&) = delete;
    ~FontOf() { QApplication::setFont(m_before); }

private:
    QFont m_before = QApplication::font();
};

bool isCut(const QWidget& part) {
    const QSize room = part.size();
    const QFontMetrics letters = part.fontMetrics();
    if (const auto* const button = qobject_cast<const QAbstractButton*>(&part)) {
        const QSize text = letters.size(Qt::TextShowMnemonic, button->text());
        const auto* const tool = qobject_cast<const QToolButton*>(button);
        const bool isOnlyIcon =
            tool && tool->toolButtonStyle() == Qt::ToolButtonIconOnly && !tool->icon().isNull();
        const bool isSign = button->text().size() < 2;
        return !isOnlyIcon && !isSign &&
               (room.width() < text.width() || room.height() < text.height());
    }
    if (const auto* const label = qobject_cast<const QLabel*>(&part))
        return !label->text().isEmpty() && room.height() < letters.height();
    if (const auto* const table = qobject_cast<const QTableView*>(&part))
        return table->verticalHeader()->defaultSectionSize() < letters.height();
    const bool isField = qobject_cast<const QLineEdit*>(&part) ||
                         qobject_cast<const QComboBox*>(&part) ||
                         qobject_cast<const QAbstractSpinBox*>(&part);
    return isField && room.height() < letters.height();
}

/// The parts in sight whose text is cut, told by what they are.
QStringList cutParts(const QWidget& window) {
    QStringList cut;
    for (const QWidget* const part : window.findChildren<QWidget*>()) {
        if (part->window() != &window || part->visibleRegion().isEmpty() || !isCut(*part))
            continue;
        const auto* const button = qobject_cast<const QAbstractButton*>(part);
        const auto* const label = qobject_cast<const QLabel*>(part);
        cut << QString("%1 %2 '%3' %4 x %5")
                   .arg(part->metaObject()->className(), part->objectName(),
                        button  ? button->text()
                        : label ? label->text()
                                : QString())
                   .arg(part->width())
                   .arg(part->height());
    }
    return cut;
}

/// On every page.
QStringList cutPartsOf(QWidget& window) {
    QApplication::processEvents();
    QStringList cut = cutParts(window);
    for (QTabWidget* const tabs : window.findChildren<QTabWidget*>())
        for (int page = 0; page < tabs->count(); ++page) {
            tabs->setCurrentIndex(page);
            QApplication::processEvents();
            cut += cutParts(window);
        }
    cut.removeDuplicates();
    return cut;
}

class FontSizesTest : public ::testing::TestWithParam<int> {
protected:
    FontSizesTest() {
        m_workspace.setAlerts(&m_recorder);
        m_workspace.setChoice([](const Alert&, const QStringList&) { return -1; });
    }

    static QString example(const char* name) { return QString(KAVELA_EXAMPLES) + '/' + name; }

    const FontOf m_font{GetParam()};
    TempFolder m_folder;
    Recorder m_recorder;
    desktop::Workspace m_workspace{Preferences(m_folder.path() / "preferences.ini"),
                                   m_recorder.log(), [] { return ReferenceDate{8e8}; }};
    desktop::Autosave m_kept{QString::fromStdString((m_folder.path() / "kept").string())};
};

TEST_P(FontSizesTest, CutNoTextOfAWindowWithAFile) {
    desktop::Desktop program(m_workspace, m_kept);
    program.showHome();
    for (const char* const file :
         {"races/riverside_cup.kvx", "races/harbour_cross.kvx", "team/kavela_team.kvteam",
          "selection/spring_selection.kvsr", "planning/season.planning", "tests/form_tests.kvtest",
          "recordings/upstream_drill.kvb", "races/spring_opener_results.csv"})
        program.open(example(file));
    (void)program.openTaking(example("races/spring_opener.kvx"));
    program.openLosses({example("races/riverside_cup.kvx")});
    program.openPenalties({example("races/riverside_cup.kvx")});
    QTRY_COMPARE(program.windows().size(), 11);
    for (desktop::ToolWindow* const window : program.windows())
        EXPECT_EQ(cutPartsOf(*window).join('\n'), "") << window->kind().toStdString();
    EXPECT_EQ(cutPartsOf(*program.front()).join('\n'), "");
}

TEST_P(FontSizesTest, CutNoTextOfAToolThatBegins) {
    for (const desktop::ToolKind& tool : desktop::toolKinds()) {
        const std::unique_ptr<desktop::ToolWindow> window(tool.make(m_workspace, m_kept));
        window->setAttribute(Qt::WA_DeleteOnClose, false);
        if (tool.choice == desktop::ToolKind::Choice::Document && window->file())
            window->startNew(QString::fromStdString((m_folder.path() / "new").string()) + '.' +
                             tool.documents.suffix);
        window->show();
        EXPECT_EQ(cutPartsOf(*window).join('\n'), "") << tool.kind.toStdString();
        window->hide();
    }
}

/// A page that scrolls sideways hides what nobody looks for.
TEST_P(FontSizesTest, FoldTheColumnsOfTheHomeScreenWhereTheWindowIsNarrow) {
    desktop::Desktop program(m_workspace, m_kept);
    program.showHome();
    auto* const home = qobject_cast<QMainWindow*>(program.front());
    ASSERT_TRUE(home);
    const auto* const area = qobject_cast<QScrollArea*>(home->centralWidget());
    const auto* const tiles = home->findChild<desktop::TileColumns*>();
    ASSERT_TRUE(area && tiles);
    int before = 5;
    for (const int width : {1280, 800, 500}) {
        if (width == 500 && GetParam() > 10)
            break; // less than the buttons of its header
        home->resize(width, 800);
        QApplication::processEvents();
        QApplication::processEvents(); // the bar that scrolls down has come or gone
        EXPECT_EQ(area->horizontalScrollBar()->maximum(), 0) << width;
        EXPECT_LE(tiles->columns(), before) << width;
        before = tiles->columns();
        for (const QAbstractButton* const tile : tiles->findChildren<desktop::Tile*>())
            EXPECT_TRUE(tiles->rect().contains(tile->geometry())) << width;
    }
    EXPECT_LT(before, 3);
}

/// What is painted: no layout asks how much room its letters need.
TEST_P(FontSizesTest, LeavePaintedRowsTheRoomOfTheirLines) {
    desktop::OrderBoard board;
    const int line = board.fontMetrics().height();
    const int small = QFontMetrics(desktop::theme::captionFont(board)).height();
    desktop::OrderBoard::Order order;
    order.seen.push_back({{"Ana", "AN", 1, Qt::red}, 0});
    order.seen.push_back({{"Bea", "BE", 2, Qt::blue}, 1});
    board.resize(board.sizeHint());
    board.show(order);
    EXPECT_GE(board.sizeHint().height() / 4, line + small);
    const QRect up = board.findChild<QToolButton*>("up2")->geometry();
    EXPECT_TRUE(board.rect().contains(up));
    EXPECT_GE(up.height(), line) << "its sign";
    EXPECT_FALSE(up.intersects(board.findChild<QToolButton*>("down2")->geometry()));
    EXPECT_FALSE(up.intersects(board.findChild<QToolButton*>("down1")->geometry()));

    desktop::PlaceGrid grid;
    grid.show(std::vector<desktop::ShownOrder>(2), {}, std::nullopt);
    grid.resize(grid.minimumSizeHint());
    EXPECT_GE(grid.placeOf(0, 0).top(), small) << "the number of the gate";
    EXPECT_GE(grid.placeOf(0, 0).height(), 2 * small) << "the boat and what it won";
    EXPECT_GE(grid.placeOf(0, 0).width(), grid.fontMetrics().horizontalAdvance("(24)"));
    EXPECT_LE(grid.placeOf(1, 3).right(), grid.width()) << "at the least width";
    EXPECT_LE(grid.placeOf(1, 3).bottom(), grid.height());

    desktop::GateStrip gates;
    gates.setCourse(4, {2});
    EXPECT_GE(gates.sizeHint().height(), 2 * small);
    EXPECT_GE(desktop::SplitBar().sizeHint().height(), 2 * line);
}

INSTANTIATE_TEST_SUITE_P(Points, FontSizesTest, ::testing::Values(9, 18),
                         ::testing::PrintToStringParamName());

TEST(Growth, LeavesTheUsualFontAsItIsAndFollowsALargerOne) {
    for (const int points : {8, 9, 10}) {
        const FontOf font(points);
        EXPECT_EQ(desktop::grown(QWidget(), 41), 41) << points;
    }
    const FontOf font(18);
    EXPECT_NEAR(desktop::growthOf(QWidget()), 1.8, 0.2);
}

} // namespace
} // namespace kavela::test
