#include "desktop/find/find_actions.h"

#include "desktop/find/find_window.h"
#include "desktop/find/found_table.h"
#include "desktop/find/kept_queries.h"
#include "desktop/find/search_places.h"
#include "desktop/shell/tables/column_table.h"

#include <QAction>
#include <QMenuBar>

#include <utility>

namespace kavela::desktop {

FindActions::FindActions(FindWindow& window) : QObject(&window), m_window(window) {
    makeFileMenu();
    makeQueryMenu();
    makeResultMenu();
    window.finishMenus([&window] {
        Commands commands;
        for (const QString& query :
             window.queries().kept() + window.queries().last() + KeptQueries::examples())
            commands.push_back(
                {query, tr("Queries"), QString(), [&window, query] { window.ask(query); }});
        return commands;
    });
    refresh();
}

void FindActions::refresh() {
    for (const auto& refresher : m_refreshers)
        refresher();
}

QAction* FindActions::add(QMenu& menu, const QString& text, const QKeySequence& keys,
                          std::function<void()> act, std::function<bool()> isPossible) {
    QAction* const action = menu.addAction(text, keys, &m_window, std::move(act));
    if (isPossible)
        m_refreshers.push_back(
            [action, isPossible = std::move(isPossible)] { action->setEnabled(isPossible()); });
    return action;
}

void FindActions::makeFileMenu() {
    FindWindow* const window = &m_window;
    QMenu* const menu = window->makeFileMenu(
        {tr("Search a &folder…"), [window] { window->places().chooseFolder(); }});
    add(*menu, tr("Search f&iles…"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_O),
        [window] { window->places().chooseFiles(); });
    add(
        *menu, tr("&Read again"), QKeySequence(Qt::Key_F5),
        [window] { window->facts().readAgain(); }, [window] { return !window->paths().isEmpty(); });
    add(
        *menu, tr("S&top reading"), QKeySequence(Qt::CTRL | Qt::Key_Period),
        [window] { window->facts().cancel(); }, [window] { return window->facts().isReading(); });
    add(
        *menu, tr("Files that could not be rea&d…"), QKeySequence(Qt::Key_F7),
        [window] { window->showFailed(); }, [window] { return !window->facts().failed().empty(); });
    menu->addSeparator();
    add(
        *menu, tr("Save the result as &CSV…"), QKeySequence(Qt::CTRL | Qt::Key_E),
        [window] { window->chooseAndSaveCsv(); },
        [window] { return window->results().found() != nullptr; });
}

void FindActions::makeQueryMenu() {
    FindWindow* const window = &m_window;
    QMenu* const menu = window->menuBar()->addMenu(tr("&Query"));
    add(*menu, tr("&Type a query"), QKeySequence::Find, [window] { window->typeQuery(); });
    add(*menu, tr("&Fields"), QKeySequence(Qt::ALT | Qt::Key_1), [window] { window->showSide(0); });
    add(*menu, tr("&Queries"), QKeySequence(Qt::ALT | Qt::Key_2),
        [window] { window->showSide(1); });
    menu->addSeparator();
    add(
        *menu, tr("&Keep this query"), QKeySequence(Qt::CTRL | Qt::Key_D),
        [window] { window->keepQuery(); }, [window] { return window->canKeepQuery(); });
    add(
        *menu, tr("&Give up the kept query"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_D),
        [window] { window->queries().giveUp(window->queries().chosenKept()); },
        [window] { return !window->queries().chosenKept().isEmpty(); });
}

/// The tables offer the same by the right mouse button.
void FindActions::makeResultMenu() {
    FindWindow* const window = &m_window;
    QMenu* const menu = window->menuBar()->addMenu(tr("Resul&t"));
    const auto hasRow = [window] { return window->currentPlace().has_value(); };
    QAction* const run = add(
        *menu, tr("&Show the run at its frame"), QKeySequence(Qt::CTRL | Qt::Key_Return),
        [window] { window->showRun(); }, hasRow);
    QAction* const race = add(
        *menu, tr("Open its &race"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Return),
        [window] { window->openRace(); }, hasRow);
    QAction* const losses = add(
        *menu, tr("Its &time losses"), QKeySequence(Qt::CTRL | Qt::Key_L),
        [window] { window->requestLosses(); },
        [window, hasRow] { return hasRow() && window->canShowLosses(); });
    add(
        *menu, tr("The rows of the &group"), QKeySequence(Qt::CTRL | Qt::Key_G),
        [window] { window->enterGroup(); }, [window] { return window->isGrouped(); });
    for (const FoundTable* const part : {&window->results(), &window->members()}) {
        ColumnTable& table = part->table();
        table.addActions({run, race, losses});
    }
}

} // namespace kavela::desktop
