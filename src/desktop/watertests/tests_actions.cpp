#include "desktop/watertests/tests_actions.h"

#include "desktop/shell/tables/column_table.h"
#include "desktop/watertests/chart_view.h"
#include "desktop/watertests/test_list_panel.h"
#include "desktop/watertests/tests_window.h"

#include <QComboBox>
#include <QMenu>
#include <QMenuBar>

namespace kavela::desktop {

namespace {

QString tr(const char* text) {
    return TestsWindow::tr(text);
}

void makeTestMenu(TestsWindow& window) {
    QMenu* menu = window.menuBar()->addMenu(tr("&Test"));
    const auto add = [&](const QString& title, QKeyCombination keys, auto act) {
        menu->addAction(title, QKeySequence(keys), &window, act);
    };
    add(tr("New &lap test"), Qt::CTRL | Qt::Key_N, [&window] { window.addTest(TestKind::Lap); });
    add(tr("New &sprint"), Qt::CTRL | Qt::SHIFT | Qt::Key_N,
        [&window] { window.addTest(TestKind::Sprint); });
    add(tr("New &eight test"), Qt::CTRL | Qt::ALT | Qt::Key_N,
        [&window] { window.addTest(TestKind::Eight); });
    add(tr("&Duplicate the test"), Qt::CTRL | Qt::Key_D, [&window] { window.duplicateTest(); });
    menu->addSeparator();
    add(tr("&Previous test"), Qt::ALT | Qt::Key_Up, [&window] { window.moveBy(-1); });
    add(tr("Ne&xt test"), Qt::ALT | Qt::Key_Down, [&window] { window.moveBy(1); });
    menu->addSeparator();
    add(tr("&Compare with the athlete's other tests"), Qt::CTRL | Qt::Key_T,
        [&window] { window.list().tickHistory(); });
    menu->addAction(tr("&Tick every listed test"), &window,
                    [&window] { window.list().tickAll(true); });
    add(tr("&Untick all"), Qt::CTRL | Qt::SHIFT | Qt::Key_T,
        [&window] { window.list().tickAll(false); });
}

void makeViewMenu(TestsWindow& window) {
    QMenu* menu = window.menuBar()->addMenu(tr("&View"));
    const auto page = [&](const QString& title, Qt::Key key, TestsWindow::Page shown) {
        menu->addAction(title, QKeySequence(Qt::CTRL | key), &window,
                        [&window, shown] { window.showPage(shown); });
    };
    page(tr("&Charts"), Qt::Key_1, TestsWindow::ChartPage);
    page(tr("&Values"), Qt::Key_2, TestsWindow::ValuePage);
    page(tr("&Table"), Qt::Key_3, TestsWindow::TablePage);
    menu->addSeparator();
    const auto group = [&](const QString& title, Qt::Key key, ChartGroup shown) {
        menu->addAction(title, QKeySequence(Qt::ALT | key), &window, [&window, shown] {
            window.showPage(TestsWindow::ChartPage);
            window.charts().showGroup(shown);
        });
    };
    group(tr("Charts by &lap or stretch"), Qt::Key_1, ChartGroup::Sections);
    group(tr("Charts by t&urn"), Qt::Key_2, ChartGroup::Turns);
    group(tr("Charts by &stroke"), Qt::Key_3, ChartGroup::Strokes);
    menu->addSeparator();
    menu->addAction(tr("&List of tests"), QKeySequence(Qt::CTRL | Qt::Key_L), &window,
                    [&window] { window.list().table().setFocus(); });
    menu->addAction(tr("Choose an &athlete"), QKeySequence::Find, &window,
                    [&window] { window.list().athleteFilter().setFocus(); });
}

} // namespace

void makeTestsMenus(TestsWindow& window, QMenu& file, QMenu& edit) {
    file.addAction(tr("Take in from a split &file…"), QKeySequence(Qt::CTRL | Qt::Key_I), &window,
                   [&window] { window.askForSplitFile(); });
    file.addAction(tr("Take in from a &recording…"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_I),
                   &window, [&window] { window.askForRecording(); });
    file.addAction(tr("&Export the table…"), QKeySequence(Qt::CTRL | Qt::Key_E), &window,
                   [&window] { window.askAndExport(); });
    edit.addAction(tr("&Copy the table"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_C), &window,
                   [&window] { window.copyTable(); });
    edit.addAction(tr("&Remove what is chosen"), QKeySequence::Delete, &window,
                   [&window] { window.removeCurrent(); });
    makeTestMenu(window);
    makeViewMenu(window);
}

Commands testsCommands(TestsWindow& window) {
    Commands commands;
    for (const auto& test : window.document().value())
        commands.push_back({test->title() + ", " + kindText(test->kind()), tr("Tests"), QString(),
                            [&window, id = test->id] { window.list().choose(id); }});
    return commands;
}

} // namespace kavela::desktop
