#include "desktop/fetch/fetch_actions.h"

#include "desktop/fetch/fetch_window.h"
#include "desktop/fetch/site_list.h"

#include <QAction>
#include <QMenuBar>

#include <utility>

namespace kavela::desktop {

FetchActions::FetchActions(FetchWindow& window) : QObject(&window), m_window(window) {
    makeFileMenu();
    makeFetchMenu();
    makeServerMenu();
    window.finishMenus([] { return Commands(); });
}

void FetchActions::refresh() {
    for (const auto& refresher : m_refreshers)
        refresher();
}

void FetchActions::add(QMenu& menu, const QString& text, const QKeySequence& keys,
                       std::function<void()> act, std::function<bool()> isPossible) {
    QAction* const action = menu.addAction(text, keys, &m_window, std::move(act));
    m_refreshers.push_back(
        [action, isPossible = std::move(isPossible)] { action->setEnabled(isPossible()); });
}

void FetchActions::makeFileMenu() {
    FetchWindow* const window = &m_window;
    const auto isFree = [window] { return !window->isFetching(); };
    QMenu* const menu =
        window->makeFileMenu({tr("&Open a source…"), [window] { window->chooseSource(); }});
    add(
        *menu, tr("&Save the source…"), QKeySequence::Save,
        [window] { window->chooseAndSaveSource(); }, [] { return true; });
    menu->addSeparator();
    add(
        *menu, tr("Choose the &list of bibs…"), QKeySequence(Qt::CTRL | Qt::Key_L),
        [window] { window->chooseBibs(); }, isFree);
    add(
        *menu, tr("Choose the &folder for the films…"), QKeySequence(Qt::CTRL | Qt::Key_D),
        [window] { window->chooseFolder(); }, isFree);
    add(
        *menu, tr("&Time the films of the folder"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_O),
        [window] { window->openFolder(); },
        [window] { return !window->source().folder.empty() && !window->isFetching(); });
}

void FetchActions::makeFetchMenu() {
    FetchWindow* const window = &m_window;
    const auto isFree = [window] { return !window->isBusy(); };
    QMenu* const menu = window->menuBar()->addMenu(tr("Fet&ch"));
    add(
        *menu, tr("&Show what would be fetched"), QKeySequence(Qt::Key_F5),
        [window] { window->showPlan(); }, isFree);
    add(
        *menu, tr("&Fetch the ticked films"), QKeySequence(Qt::CTRL | Qt::Key_Return),
        [window] { window->fetchTicked(); },
        [window, isFree] { return isFree() && window->hasTicked(); });
    add(
        *menu, tr("&Cancel"), QKeySequence(Qt::CTRL | Qt::Key_Period),
        [window] { window->cancel(); }, [window] { return window->isBusy(); });
    menu->addSeparator();
    const auto hasRows = [window] { return !window->rows().empty() && !window->isFetching(); };
    add(
        *menu, tr("Tick &all"), QKeySequence(Qt::CTRL | Qt::Key_T),
        [window] { window->tickAll(true); }, hasRows);
    add(
        *menu, tr("Tick &none"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_T),
        [window] { window->tickAll(false); }, hasRows);
}

void FetchActions::makeServerMenu() {
    FetchWindow* const window = &m_window;
    const auto isFree = [window] { return !window->isFetching(); };
    QMenu* const menu = window->menuBar()->addMenu(tr("Ser&ver"));
    add(
        *menu, tr("&Sign in…"), QKeySequence(Qt::CTRL | Qt::Key_U), [window] { window->signIn(); },
        isFree);
    add(
        *menu, tr("&Forget the password"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_U),
        [window] { window->forgetLogin(); }, isFree);
    add(
        *menu, tr("&Other servers"), QKeySequence(Qt::ALT | Qt::Key_2),
        [window] { window->sites().setFocus(); }, isFree);
}

} // namespace kavela::desktop
