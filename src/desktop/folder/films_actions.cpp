#include "desktop/folder/films_actions.h"

#include "desktop/film/film_stage.h"
#include "desktop/film/play_menu.h"
#include "desktop/folder/film_browser.h"
#include "desktop/folder/film_playing.h"
#include "desktop/folder/films_window.h"
#include "desktop/folder/tag_mode.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/workspace.h"

#include <QAction>
#include <QDir>
#include <QMenuBar>

#include <utility>

namespace kavela::desktop {

FilmsActions::FilmsActions(FilmsWindow& window, Workspace& workspace)
    : QObject(&window), m_window(window) {
    makeFileMenu(workspace);
    makeEditMenu();
    makeFilmsMenu(workspace);
    makeTagsMenu(workspace);
    makeCutMenu();
    new PlayMenu(window, window.stage().deck(), window.stage().sound(), workspace);
    window.finishMenus([this] { return films(); });
    connect(&window.shelf(), &FilmShelf::stepsChanged, this, &FilmsActions::refresh);
    connect(&window.shelf(), &FilmShelf::changed, this, &FilmsActions::refresh);
    connect(&window.tags(), &TagMode::cutChanged, this, &FilmsActions::refresh);
    connect(&window.browser(), &FilmBrowser::chosen, this, &FilmsActions::refresh);
    refresh();
}

void FilmsActions::refresh() {
    for (const auto& refresher : m_refreshers)
        refresher();
}

QAction* FilmsActions::add(QMenu& menu, const QString& text, const QKeySequence& keys,
                           std::function<void()> act, std::function<bool()> isPossible) {
    QAction* const action = menu.addAction(text, keys, &m_window, std::move(act));
    if (isPossible)
        m_refreshers.push_back(
            [action, isPossible = std::move(isPossible)] { action->setEnabled(isPossible()); });
    return action;
}

void FilmsActions::makeFileMenu(Workspace& workspace) {
    FilmsWindow* const window = &m_window;
    QMenu* const menu =
        window->makeFileMenu({tr("&Open a folder…"), [window] { window->chooseFolder(); }});
    QMenu* const recent = menu->addMenu(tr("Folders opened &before"));
    connect(recent, &QMenu::aboutToShow, this,
            [this, recent, &workspace] { fillRecent(*recent, workspace); });
    add(*menu, tr("&Read again"), Qt::Key_F5, [window] {
        window->looks().forget();
        window->shelf().readAgain();
    });
    menu->addSeparator();
}

void FilmsActions::fillRecent(QMenu& menu, const Workspace& workspace) {
    menu.clear();
    for (const QString& folder : FilmsWindow::recentFolders(workspace))
        menu.addAction(QDir::toNativeSeparators(folder), &m_window,
                       [window = &m_window, folder] { (void)window->open(folder); });
    menu.setEnabled(true);
}

void FilmsActions::makeEditMenu() {
    FilmsWindow* const window = &m_window;
    QMenu* const menu = window->menuBar()->addMenu(tr("&Edit"));
    add(
        *menu, ToolWindow::tr("&Undo"), QKeySequence::Undo, [window] { window->shelf().undo(); },
        [window] { return window->shelf().canUndo(); });
    add(
        *menu, ToolWindow::tr("&Redo"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z),
        [window] { window->shelf().redo(); }, [window] { return window->shelf().canRedo(); });
    menu->addSeparator();
    add(*menu, tr("&Filter the films"), QKeySequence::Find, [window] { window->typeFilter(); });
    add(
        *menu, tr("Re&name films…"), Qt::Key_F2, [window] { window->askAndRename(); },
        [window] { return !window->shelf().films().empty(); });
}

/// What the preferences say stands where it is used, too.
void FilmsActions::addPreference(QMenu& menu, Workspace& workspace, const QString& text,
                                 const char* key) {
    QAction* const action = menu.addAction(text);
    action->setCheckable(true);
    connect(action, &QAction::triggered, &m_window,
            [&workspace, key](bool isOn) { workspace.setPreference(key, isOn); });
    const auto show = [action, &workspace, key] {
        action->setChecked(workspace.preferences().boolean(key));
    };
    connect(&workspace, &Workspace::preferenceChanged, action, show);
    show();
}

void FilmsActions::makeFilmsMenu(Workspace& workspace) {
    FilmsWindow* const window = &m_window;
    QMenu* const menu = window->menuBar()->addMenu(tr("F&ilms"));
    add(*menu, tr("&Play from the beginning"), QKeySequence(Qt::SHIFT | Qt::Key_Space),
        [window] { window->playing().playChosen(); });
    add(*menu, tr("&Next film"), QKeySequence(Qt::CTRL | Qt::Key_PageDown),
        [window] { window->playing().step(1, window->stage().deck().isPlaying()); });
    add(*menu, tr("Pre&vious film"), QKeySequence(Qt::CTRL | Qt::Key_PageUp),
        [window] { window->playing().step(-1, window->stage().deck().isPlaying()); });
    menu->addSeparator();
    const QStringList pages{tr("&List"), tr("&Tiles"), tr("T&ags")};
    for (int page = 0; page < pages.size(); ++page)
        add(*menu, pages[page], QKeySequence(Qt::ALT | static_cast<Qt::Key>(Qt::Key_1 + page)),
            [window, page] { window->browser().setPage(static_cast<FilmBrowser::Page>(page)); });
    menu->addSeparator();
    add(*menu, tr("Mark as &watched"), Qt::Key_W, [window] { window->markWatched(true); });
    add(*menu, tr("Mark as n&ot watched"), QKeySequence(Qt::SHIFT | Qt::Key_W),
        [window] { window->markWatched(false); });
    menu->addSeparator();
    addPreference(*menu, workspace, tr("A &click plays"), "playonclick");
    addPreference(*menu, workspace, tr("The next one &follows"), "autoplaynext");
    addPreference(*menu, workspace, tr("Begin at the first &mark"), "startinCMTime");
}

void FilmsActions::makeTagsMenu(Workspace& workspace) {
    FilmsWindow* const window = &m_window;
    FilmStage* const stage = &window->stage();
    QMenu* const menu = window->menuBar()->addMenu(tr("&Tags"));
    add(*menu, tr("&Tag this frame"), Qt::Key_M, [stage] { stage->markHere(); });
    QMenu* const numbers = menu->addMenu(tr("Tag with a &saved name"));
    for (int number = 1; number <= 9; ++number)
        add(*numbers, tr("Saved tag %1").arg(number),
            QKeySequence(static_cast<Qt::Key>(Qt::Key_0 + number)),
            [stage, number] { stage->pressNumber(number); });
    add(*menu, tr("Move the selected tag &here"), QKeySequence(Qt::SHIFT | Qt::Key_M),
        [stage] { stage->moveMarkHere(); });
    add(*menu, tr("Tag one frame &earlier"), QKeySequence(Qt::ALT | Qt::Key_Left),
        [stage] { stage->nudgeMark(-1); });
    add(*menu, tr("Tag one frame &later"), QKeySequence(Qt::ALT | Qt::Key_Right),
        [stage] { stage->nudgeMark(1); });
    add(*menu, tr("&Remove the selected tag"), Qt::Key_Delete, [stage] { stage->deleteMark(); });
    menu->addSeparator();
    add(*menu, tr("&Previous tag"), QKeySequence(Qt::CTRL | Qt::Key_Left),
        [stage] { stage->stepMark(-1); });
    add(*menu, tr("&Next tag"), QKeySequence(Qt::CTRL | Qt::Key_Right),
        [stage] { stage->stepMark(1); });
    menu->addSeparator();
    addPreference(*menu, workspace, tr("Play &just the part around a tag"), "tagmodeplaysjustpart");
}

void FilmsActions::makeCutMenu() {
    using Way = FilmCutting::Way;
    FilmsWindow* const window = &m_window;
    QMenu* const menu = window->menuBar()->addMenu(tr("&Cut"));
    add(*menu, tr("The cut &begins here"), Qt::Key_I, [window] { window->tags().setCutFirst(); });
    add(*menu, tr("The cut &ends here"), Qt::Key_O, [window] { window->tags().setCutLast(); });
    add(
        *menu, tr("&Give the ends up"), QKeySequence(Qt::SHIFT | Qt::Key_I),
        [window] { window->tags().clearCut(); },
        [window] { return window->tags().cutFirst() || window->tags().cutLast(); });
    menu->addSeparator();
    // Also without ends, to say that they are missing.
    add(*menu, tr("Cut by &copying…"), Qt::Key_X,
        [window] { window->cutting().askAndCut(Way::Copy); });
    add(*menu, tr("Cut e&xactly…"), QKeySequence(Qt::SHIFT | Qt::Key_X),
        [window] { window->cutting().askAndCut(Way::Exact); });
}

/// Every film, to be found by a few letters among the commands.
Commands FilmsActions::films() const {
    Commands commands;
    for (const QString& path : m_window.browser().shownFilms())
        commands.push_back({QFileInfo(path).completeBaseName(), tr("Films"), QString(),
                            [window = &m_window, path] { (void)window->open(path); }});
    return commands;
}

} // namespace kavela::desktop
