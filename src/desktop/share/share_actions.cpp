#include "desktop/share/share_actions.h"

#include "desktop/share/share_window.h"

#include <QAction>
#include <QMenuBar>

#include <utility>

namespace kavela::desktop {

ShareActions::ShareActions(ShareWindow& window) : QObject(&window), m_window(window) {
    makeFileMenu();
    makeShareMenu();
    makeServerMenu();
    window.finishMenus([] { return Commands(); });
}

void ShareActions::refresh() {
    for (const auto& refresher : m_refreshers)
        refresher();
}

void ShareActions::add(QMenu& menu, const QString& text, const QKeySequence& keys,
                       std::function<void()> act, std::function<bool()> isPossible) {
    QAction* const action = menu.addAction(text, keys, &m_window, std::move(act));
    m_refreshers.push_back(
        [action, isPossible = std::move(isPossible)] { action->setEnabled(isPossible()); });
}

void ShareActions::makeFileMenu() {
    ShareWindow* const window = &m_window;
    (void)window->makeFileMenu(
        {tr("&Open a folder to share…"), [window] { window->chooseFolder(); }});
}

void ShareActions::makeShareMenu() {
    ShareWindow* const window = &m_window;
    const auto isFree = [window] { return !window->isBusy(); };
    QMenu* const menu = window->menuBar()->addMenu(tr("Sha&re"));
    add(
        *menu, tr("&Compare both sides"), QKeySequence(Qt::Key_F5), [window] { window->compare(); },
        isFree);
    add(
        *menu, tr("&Start with the ticked files"), QKeySequence(Qt::CTRL | Qt::Key_Return),
        [window] { window->start(); },
        [window, isFree] { return isFree() && window->hasTicked(); });
    add(
        *menu, tr("C&ancel"), QKeySequence(Qt::CTRL | Qt::Key_Period),
        [window] { window->cancel(); }, [window] { return window->isBusy(); });
    menu->addSeparator();
    const auto hasRows = [window, isFree] { return isFree() && !window->rows().empty(); };
    add(
        *menu, tr("&Tick all but deletions"), QKeySequence(Qt::CTRL | Qt::Key_T),
        [window] { window->tickAll(true); }, hasRows);
    add(
        *menu, tr("Tick &none"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_T),
        [window] { window->tickAll(false); }, hasRows);
}

void ShareActions::makeServerMenu() {
    ShareWindow* const window = &m_window;
    const auto isFree = [window] { return !window->isBusy(); };
    QMenu* const menu = window->menuBar()->addMenu(tr("Ser&ver"));
    add(
        *menu, tr("&Sign in…"), QKeySequence(Qt::CTRL | Qt::Key_U), [window] { window->signIn(); },
        isFree);
    add(
        *menu, tr("&Forget the password"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_U),
        [window] { window->forgetLogin(); }, isFree);
}

} // namespace kavela::desktop
