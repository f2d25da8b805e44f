#include "desktop/team/team_actions.h"

#include "desktop/team/athlete_panel.h"
#include "desktop/team/charts/chart_tabs.h"
#include "desktop/team/results_view.h"
#include "desktop/team/team_window.h"
#include "results/team_seasons.h"

#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>

namespace kavela::desktop {

namespace {

QString tr(const char* text) {
    return TeamWindow::tr(text);
}

/// Only categories that the athlete does not race in yet can be added.
QMenu* categoryMenu(TeamWindow& window, QMenu& menu) {
    QMenu* categories = menu.addMenu(tr("Add a &category"));
    for (const char* category : team::Categories)
        categories->addAction(category, &window,
                              [&window, category] { window.addCategory(category); });
    QObject::connect(categories, &QMenu::aboutToShow, &window, [&window, categories] {
        const auto athlete = window.athletes().athlete();
        for (QAction* action : categories->actions())
            action->setEnabled(athlete && !categoryOf(window.document().athletes()[*athlete],
                                                      action->text().toStdString()));
    });
    return categories;
}

void makeTeamMenu(TeamWindow& window) {
    QMenu* menu = window.menuBar()->addMenu(tr("&Team"));
    menu->addAction(tr("&New athlete…"), QKeySequence::New, &window,
                    [&window] { window.askForAthlete(); });
    menu->addAction(tr("Remo&ve the athlete"), &window, [&window] { window.removeAthlete(); });
    categoryMenu(window, *menu);
    menu->addAction(tr("Re&move the category"), &window, [&window] { window.removeCategory(); });
    menu->addSeparator();
    menu->addAction(tr("New &season"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_N), &window,
                    [&window] { window.addSeason(); });
    menu->addAction(tr("New &race"), QKeySequence(Qt::Key_Insert), &window,
                    [&window] { window.addRace(); });
    menu->addAction(tr("Move season or race &up"), QKeySequence(Qt::ALT | Qt::Key_Up), &window,
                    [&window] { window.results().move(-1); });
    menu->addAction(tr("Move season or race &down"), QKeySequence(Qt::ALT | Qt::Key_Down), &window,
                    [&window] { window.results().move(1); });
    menu->addSeparator();
    menu->addAction(tr("Where the athlete &loses time…"),
                    QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_L), &window,
                    [&window] { window.requestLosses(); });
    menu->addAction(tr("S&eason of the athlete"), QKeySequence(Qt::Key_F6), &window,
                    [&window] { window.requestSeason(); });
    menu->addAction(tr("Compute all a&verages again"), &window,
                    [&window] { window.document().recomputeAllAverages(); });
}

void makeViewMenu(TeamWindow& window) {
    QMenu* menu = window.menuBar()->addMenu(tr("&View"));
    ChartTabs& charts = window.charts();
    for (int tab = 0; tab < charts.count(); ++tab)
        menu->addAction(charts.tabText(tab),
                        QKeySequence(Qt::CTRL | static_cast<Qt::Key>(Qt::Key_1 + tab)), &window,
                        [&charts, tab] { charts.setCurrentIndex(tab); });
    menu->addSeparator();
    menu->addAction(tr("&Find an athlete"), QKeySequence::Find, &window, [&window] {
        window.athletes().search().setFocus();
        window.athletes().search().selectAll();
    });
}

} // namespace

void makeTeamMenus(TeamWindow& window, QMenu& file, QMenu& edit) {
    file.addAction(tr("Take &results over…"), QKeySequence(Qt::CTRL | Qt::Key_I), &window,
                   [&window] { window.askForResults(); });
    file.addAction(tr("Cate&gorization report…"), QKeySequence::Print, &window,
                   [&window] { window.previewCategorization(); });
    file.addAction(tr("Save the c&hart…"), QKeySequence(Qt::CTRL | Qt::Key_E), &window,
                   [&window] { window.saveChart(); });
    edit.addAction(tr("&Edit the cell"), QKeySequence(Qt::Key_F2), &window,
                   [&window] { window.editCurrent(); });
    edit.addAction(tr("&Remove what is chosen"), QKeySequence::Delete, &window,
                   [&window] { window.removeCurrent(); });
    makeTeamMenu(window);
    makeViewMenu(window);
}

Commands teamCommands(TeamWindow& window) {
    Commands commands;
    const auto& athletes = window.document().athletes();
    for (std::size_t i = 0; i < athletes.size(); ++i)
        commands.push_back({QString::fromStdString(athletes[i].name), tr("Athletes"), QString(),
                            [&window, i] { window.athletes().choose(i); }});
    return commands;
}

} // namespace kavela::desktop
