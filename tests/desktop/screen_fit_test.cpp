#include "desktop/shell/screen_fit.h"

#include "common/recorders.h"
#include "common/temp_folder.h"
#include "desktop/cross/cross_window.h"
#include "desktop/desktop.h"
#include "desktop/motion/motion_window.h"
#include "desktop/planning/planning_window.h"
#include "desktop/race/race_window.h"
#include "desktop/sessions/session_charts.h"
#include "desktop/sessions/session_window.h"
#include "desktop/shell/key_bindings.h"
#include "desktop/shell/key_overlay.h"
#include "desktop/shell/settings_window.h"
#include "desktop/shell/tool_window.h"
#include "desktop/taking/taking_window.h"
#include "desktop/tools.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabWidget>
#include <QTableView>
#include <QTest>
#include <QVBoxLayout>

namespace kavela::test {
namespace {

using desktop::Desktop;
using desktop::ScreenFit;

/// A laptop of 1280 by 720 pixels at 150 %, less the bar of its desktop.
constexpr QRect SmallScreen{0, 0, 853, 448};

TEST(FittedPlace, IsSmallerWhereItMustBeAndInside) {
    const QRect screen(100, 30, 853, 448);
    EXPECT_EQ(desktop::fitted({0, 0, 1280, 800}, screen), screen);
    EXPECT_EQ(desktop::fitted({120, 40, 300, 200}, screen), QRect(120, 40, 300, 200));
    EXPECT_EQ(desktop::fitted({1900, 900, 300, 200}, screen), QRect(653, 278, 300, 200));
    EXPECT_EQ(desktop::fitted({-50, -9, 900, 200}, screen), QRect(100, 30, 853, 200));
}

TEST(FittedPlace, IsAStepBesideThoseThatAreTaken) {
    const QRect screen(0, 30, 1000, 600);
    const QRect first(10, 40, 500, 400);
    const QRect second = desktop::placeBeside(first, {first}, screen);
    EXPECT_EQ(second, QRect(42, 72, 500, 400));
    EXPECT_EQ(desktop::placeBeside(first, {first, second}, screen).topLeft(), QPoint(74, 104));
    const QRect low(10, 220, 500, 400);
    EXPECT_EQ(desktop::placeBeside(low, {low}, screen), QRect(0, 30, 500, 400))
        << "from the top again";
    const QRect above = desktop::placeBeside({0, -28, 1280, 800}, {screen}, screen);
    EXPECT_EQ(above, screen) << "there is no other place, and none above the screen";
}

class ScreenFitTest : public ::testing::Test {
protected:
    ScreenFitTest() { m_workspace.setAlerts(&m_recorder); }

    static QRect placeOf(const QWidget& window) { return window.frameGeometry(); }

    /// What the content of a window asks for, also where it was made to scroll.
    static QSize leastOf(const QMainWindow& window) {
        const auto* const area = qobject_cast<const QScrollArea*>(window.centralWidget());
        return (area ? area->widget() : window.centralWidget())->minimumSizeHint();
    }

    static QString example(const char* name) { return QString(KAVELA_EXAMPLES) + '/' + name; }

    TempFolder m_folder;
    Recorder m_recorder;
    desktop::Workspace m_workspace{Preferences(m_folder.path() / "preferences.ini"),
                                   m_recorder.log(), [] { return ReferenceDate{8e8}; }};
    ScreenFit m_fit{nullptr, [](const QWidget&) { return SmallScreen; }};
};

TEST_F(ScreenFitTest, ScrollsADialogThatIsTooHighAndKeepsItsButtonsAndItsFocus) {
    QDialog dialog;
    auto* const column = new QVBoxLayout(&dialog);
    auto* const form = new QFormLayout;
    for (int i = 0; i < 40; ++i)
        form->addRow(QString::number(i), new QLineEdit);
    column->addLayout(form);
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Ok);
    column->addWidget(buttons);
    auto* const last = qobject_cast<QLineEdit*>(form->itemAt(39, QFormLayout::FieldRole)->widget());
    auto* const hidden =
        qobject_cast<QLineEdit*>(form->itemAt(5, QFormLayout::FieldRole)->widget());
    hidden->hide();
    last->setFocus();
    dialog.show();
    QApplication::setActiveWindow(&dialog);
    EXPECT_TRUE(QTest::qWaitFor([&] { return last->hasFocus(); }));
    // Where a new dialog stands is the system's choice, which is asked for the whole screen here.
    EXPECT_LE(placeOf(dialog).width(), SmallScreen.width());
    EXPECT_LE(placeOf(dialog).height(), SmallScreen.height());
    EXPECT_TRUE(dialog.rect().contains(QRect(buttons->mapTo(&dialog, QPoint()), buttons->size())));
    EXPECT_TRUE(buttons->isVisible());
    EXPECT_FALSE(hidden->isVisible());
    EXPECT_TRUE(last->isVisible());
    EXPECT_EQ(QApplication::focusWidget(), last);
    auto* const area = dialog.findChild<QScrollArea*>();
    ASSERT_TRUE(area);
    EXPECT_FALSE(buttons->parentWidget() == area->widget());
    const auto isSeen = [&](QWidget* field) {
        return area->viewport()->rect().contains(
            QRect(field->mapTo(area->viewport(), QPoint()), field->size()));
    };
    QTest::keyClick(last, Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_TRUE(isSeen(QApplication::focusWidget())) << "it scrolls to where one types";
}

TEST_F(ScreenFitTest, AWindowThatIsMadeToScrollKeepsItsFocus) {
    QMainWindow window;
    auto* const page = new QWidget;
    auto* const column = new QVBoxLayout(page);
    auto* const name = new QLineEdit;
    auto* const table = new QTableView;
    table->setMinimumHeight(2 * SmallScreen.height());
    column->addWidget(name);
    column->addWidget(table);
    window.setCentralWidget(page);
    table->setFocus();
    window.show();
    QApplication::setActiveWindow(&window);
    ASSERT_TRUE(window.property("contentScrolls").toBool());
    EXPECT_TRUE(QTest::qWaitFor([&] { return table->hasFocus(); }))
        << "keys would be typed into the first field";
}

/// Every window with a document in it, and whatever panels it shows by itself.
TEST_F(ScreenFitTest, HoldsEveryWindowWithRoomForItsContentAndWithoutScrollingTheWhole) {
    Desktop program(m_workspace,
                    desktop::Autosave(QString::fromStdString((m_folder.path() / "kept").string())));
    program.showHome();
    for (const char* file :
         {"races/riverside_cup.kvx", "races/harbour_cross.kvx", "team/kavela_team.kvteam",
          "selection/spring_selection.kvsr", "planning/season.planning", "tests/form_tests.kvtest",
          "recordings/upstream_drill.kvb"})
        program.open(example(file));
    (void)program.openTaking(example("races/spring_opener.kvx"));
    (void)program.openIn(*desktop::toolOfKind("session"),
                         example("recordings/sprint_with_watch.kvb"));
    QTRY_COMPARE(program.windowsOf<desktop::SessionWindow>().size(), 1);
    QApplication::processEvents();
    int windows = 0;
    for (QWidget* const window : QApplication::topLevelWidgets()) {
        auto* const main = qobject_cast<QMainWindow*>(window);
        if (!main || !main->isVisible())
            continue;
        ++windows;
        SCOPED_TRACE(main->metaObject()->className());
        const auto tabs = main->findChildren<QTabWidget*>();
        for (QTabWidget* const tab : tabs)
            for (int page = 0; page < tab->count(); ++page) {
                tab->setCurrentIndex(page);
                QApplication::processEvents();
            }
        EXPECT_TRUE(SmallScreen.contains(placeOf(*main)))
            << placeOf(*main).width() << " x " << placeOf(*main).height();
        EXPECT_FALSE(main->property("contentScrolls").toBool())
            << leastOf(*main).width() << " x " << leastOf(*main).height();
    }
    EXPECT_EQ(windows, 10);
    for (const desktop::ToolWindow* const window : program.windows())
        if (const auto* const charts = window->findChild<desktop::SessionCharts*>()) {
            EXPECT_GT(charts->width(), SmallScreen.width() / 2) << "what is looked at most";
        }
    EXPECT_THAT(m_recorder.alerts, ::testing::IsEmpty());
}

TEST_F(ScreenFitTest, HoldsWhatWasLeftOnALargerScreen) {
    {
        desktop::RaceWindow window(m_workspace);
        ASSERT_TRUE(window.open(example("races/riverside_cup.kvx")));
        window.setGeometry(1500, 700, 1800, 1000);
        const QByteArray place = window.saveGeometry().toBase64();
        m_workspace.remember("place/race", {QString::fromLatin1(place)});
    }
    desktop::RaceWindow window(m_workspace);
    ASSERT_TRUE(window.open(example("races/riverside_cup.kvx")));
    window.show();
    EXPECT_TRUE(SmallScreen.contains(placeOf(window)));
}

TEST_F(ScreenFitTest, HoldsTheSettingsAndTheDialogOfKeys) {
    desktop::RaceWindow window(m_workspace);
    ASSERT_TRUE(window.open(example("races/riverside_cup.kvx")));
    window.show();
    desktop::SettingsWindow settings(m_workspace, &window);
    desktop::KeyEditor keys({}, m_workspace, "race", &window);
    for (QDialog* const dialog : {static_cast<QDialog*>(&settings), static_cast<QDialog*>(&keys)}) {
        dialog->show();
        QApplication::processEvents();
        EXPECT_TRUE(SmallScreen.contains(placeOf(*dialog))) << placeOf(*dialog).height();
    }
}

TEST_F(ScreenFitTest, ListsKeysThatDifferByANumberOnOneLine) {
    desktop::TakingWindow window(m_workspace, desktop::Autosave(QString::fromStdString(
                                                  (m_folder.path() / "kept").string())));
    window.setAttribute(Qt::WA_DeleteOnClose, false);
    ASSERT_TRUE(window.open(example("races/spring_opener.kvx")));
    const desktop::KeyOverlay overlay(window, &window);
    QStringList texts;
    for (const QLabel* const label : overlay.findChildren<QLabel*>())
        texts.append(label->text());
    EXPECT_TRUE(texts.contains("1 … 9")) << texts.join(", ").toStdString();
    EXPECT_TRUE(texts.contains("To split 1 … 9"));
    EXPECT_FALSE(texts.contains("To split 2"));
    EXPECT_TRUE(texts.contains("Ctrl+2")) << "each page has a name of its own";
}

TEST_F(ScreenFitTest, ScrollsTheOverviewOfKeysAndClosesItWithAnyOtherKey) {
    desktop::TakingWindow window(m_workspace, desktop::Autosave(QString::fromStdString(
                                                  (m_folder.path() / "kept").string())));
    window.setAttribute(Qt::WA_DeleteOnClose, false);
    ASSERT_TRUE(window.open(example("races/spring_opener.kvx")));
    window.show();
    desktop::KeyOverlay overlay(window, &window);
    overlay.show();
    QApplication::processEvents();
    EXPECT_TRUE(SmallScreen.contains(placeOf(overlay))) << placeOf(overlay).height();
    auto* const area = overlay.findChild<QScrollArea*>();
    ASSERT_TRUE(area);
    ASSERT_GT(area->verticalScrollBar()->maximum(), 0);
    QTest::keyClick(&overlay, Qt::Key_PageDown);
    EXPECT_TRUE(overlay.isVisible());
    EXPECT_GT(area->verticalScrollBar()->value(), 0);
    QTest::keyClick(&overlay, Qt::Key_Escape);
    EXPECT_FALSE(overlay.isVisible());
}

} // namespace
} // namespace kavela::test
