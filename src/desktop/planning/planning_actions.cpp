#include "desktop/planning/planning_actions.h"

#include "desktop/planning/athlete_list.h"
#include "desktop/planning/body/body_panel.h"
#include "desktop/planning/online/online_planning.h"
#include "desktop/planning/plan/plan_view.h"
#include "desktop/planning/planning_handouts.h"
#include "desktop/planning/planning_window.h"

#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QTabWidget>

namespace kavela::desktop {

namespace {

/// Adds an action that works on the plan, which comes to the front with it.
void add(QMenu& menu, PlanningWindow& window, const QString& text, const QKeySequence& key,
         const std::function<void(PlanView&)>& act) {
    menu.addAction(text, key, &window, [&window, act] {
        window.tabs().setCurrentIndex(0); // the plan
        act(window.plan());
    });
}

/// Brings the tab to the front that a page stands in, with whatever is around it there.
void showPage(QTabWidget& tabs, const QWidget& page) {
    for (int tab = 0; tab < tabs.count(); ++tab)
        if (tabs.widget(tab) == &page || tabs.widget(tab)->isAncestorOf(&page))
            tabs.setCurrentIndex(tab);
}

void makeAthleteMenu(PlanningWindow& window) {
    QMenu* menu = window.menuBar()->addMenu(PlanningWindow::tr("&Athlete"));
    menu->addAction(PlanningWindow::tr("&New athlete…"), QKeySequence::New, &window,
                    [&window] { window.askForAthlete(); });
    menu->addAction(PlanningWindow::tr("&Edit the athlete…"), &window,
                    [&window] { window.editAthlete(); });
    menu->addAction(PlanningWindow::tr("&Remove the athlete"), &window,
                    [&window] { window.removeAthlete(); });
    menu->addSeparator();
    menu->addAction(PlanningWindow::tr("New &season"),
                    QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_N), &window,
                    [&window] { window.addSeason(); });
    menu->addAction(PlanningWindow::tr("Remove the s&eason"), &window,
                    [&window] { window.removeSeason(); });
}

void makeSessionMenu(PlanningWindow& window) {
    QMenu& menu = *window.menuBar()->addMenu(PlanningWindow::tr("&Session"));
    QAction* const where = menu.addAction(PlanningWindow::tr("Sessions are in the plan: show &it"),
                                          &window, [&window] { window.tabs().setCurrentIndex(0); });
    where->setObjectName("showPlan");
    where->setVisible(false);
    add(menu, window, PlanningWindow::tr("&New session…"), QKeySequence(Qt::Key_Insert),
        [](PlanView& plan) { plan.addSession(); });
    add(menu, window, PlanningWindow::tr("&Edit the session…"), QKeySequence(Qt::Key_F2),
        [](PlanView& plan) { plan.editSession(); });
    add(menu, window, PlanningWindow::tr("&Remove the session"),
        QKeySequence(Qt::CTRL | Qt::Key_Backspace), [](PlanView& plan) { plan.removeSession(); });
    menu.addSeparator();
    add(menu, window, PlanningWindow::tr("&Copy the session"), QKeySequence::Copy,
        [](PlanView& plan) { plan.copySession(); });
    add(menu, window, PlanningWindow::tr("&Paste the session"), QKeySequence::Paste,
        [](PlanView& plan) { plan.pasteSession(); });
    add(menu, window, PlanningWindow::tr("Move to the week &before"),
        QKeySequence(Qt::ALT | Qt::Key_PageUp), [](PlanView& plan) { plan.moveSessionBy(-1); });
    add(menu, window, PlanningWindow::tr("Move to the week be&hind"),
        QKeySequence(Qt::ALT | Qt::Key_PageDown), [](PlanView& plan) { plan.moveSessionBy(1); });
    // The tables of the other tabs have these keys for themselves: Insert, F2, copying.
    QObject::connect(&window.tabs(), &QTabWidget::currentChanged, &menu, [&menu, where](int tab) {
        for (QAction* const action : menu.actions())
            action->setEnabled(tab == 0 || action == where);
        where->setVisible(tab != 0);
    });
}

void makeWeekMenu(PlanningWindow& window) {
    QMenu& menu = *window.menuBar()->addMenu(PlanningWindow::tr("&Week"));
    add(menu, window, PlanningWindow::tr("&Previous week"), QKeySequence(Qt::Key_PageUp),
        [](PlanView& plan) { plan.stepWeek(-1); });
    add(menu, window, PlanningWindow::tr("&Next week"), QKeySequence(Qt::Key_PageDown),
        [](PlanView& plan) { plan.stepWeek(1); });
    add(menu, window, PlanningWindow::tr("&This week"), QKeySequence(Qt::CTRL | Qt::Key_T),
        [](PlanView& plan) { plan.goToToday(); });
    menu.addSeparator();
    add(menu, window, PlanningWindow::tr("&Copy the week"),
        QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_C), [](PlanView& plan) { plan.copyWeek(); });
    add(menu, window, PlanningWindow::tr("Paste the &week"),
        QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_V), [](PlanView& plan) { plan.pasteWeek(); });
    add(menu, window, PlanningWindow::tr("&Repeat the chosen weeks…"),
        QKeySequence(Qt::CTRL | Qt::Key_R), [](PlanView& plan) { plan.askToRepeat(); });
    add(menu, window, PlanningWindow::tr("&Empty the chosen weeks"), {},
        [](PlanView& plan) { plan.clearWeek(); });
    add(menu, window, PlanningWindow::tr("P&lan what is in the sessions"),
        QKeySequence(Qt::CTRL | Qt::Key_L), [](PlanView& plan) { plan.planAsInSessions(); });
    menu.addSeparator();
    add(menu, window, PlanningWindow::tr("&Add a week at the end"), {},
        [](PlanView& plan) { plan.addWeek(); });
    add(menu, window, PlanningWindow::tr("Re&move the last week"), {},
        [](PlanView& plan) { plan.removeLastWeek(); });
}

void makeViewMenu(PlanningWindow& window) {
    QMenu* menu = window.menuBar()->addMenu(PlanningWindow::tr("&View"));
    QTabWidget& tabs = window.tabs();
    for (int tab = 0; tab < tabs.count(); ++tab)
        menu->addAction(tabs.tabText(tab),
                        QKeySequence(Qt::CTRL | static_cast<Qt::Key>(Qt::Key_1 + tab)), &window,
                        [&tabs, tab] { tabs.setCurrentIndex(tab); });
    menu->addSeparator();
    menu->addAction(PlanningWindow::tr("&Find an athlete"), QKeySequence::Find, &window, [&window] {
        window.athletes().search().setFocus();
        window.athletes().search().selectAll();
    });
}

} // namespace

void makePlanningMenus(PlanningWindow& window, QMenu& file) {
    file.addAction(PlanningWindow::tr("&Reports: preview, PDF, print…"), QKeySequence::Print,
                   &window, [&window] { window.handouts().previewReports(); });
    file.addAction(PlanningWindow::tr("Week as a &calendar file…"),
                   QKeySequence(Qt::CTRL | Qt::Key_E), &window,
                   [&window] { window.handouts().askForCalendar(); });
    file.addAction(PlanningWindow::tr("Import heart-rate &variability…"), &window, [&window] {
        showPage(window.tabs(), window.body());
        window.body().showSection(BodyPanel::Variability);
        window.body().askForImport();
    });
    file.addSeparator();
    file.addAction(PlanningWindow::tr("Open an o&nline planning…"), &window,
                   [&window] { window.online().askToLoad(); });
    file.addAction(PlanningWindow::tr("Sa&ve online…"), &window,
                   [&window] { window.online().askToSave(); });
    makeAthleteMenu(window);
    makeSessionMenu(window);
    makeWeekMenu(window);
    makeViewMenu(window);
}

Commands planningCommands(PlanningWindow& window) {
    Commands commands;
    const auto& athletes = window.document().athletes();
    for (std::size_t i = 0; i < athletes.size(); ++i)
        commands.push_back({QString::fromStdString(athletes[i].name),
                            PlanningWindow::tr("Athletes"), QString(),
                            [&window, i] { window.athletes().chooseAthlete(i); }});
    return commands;
}

} // namespace kavela::desktop
