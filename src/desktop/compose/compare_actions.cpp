#include "desktop/compose/compare_actions.h"

#include "desktop/compose/compare_films_panel.h"
#include "desktop/compose/compare_player.h"
#include "desktop/compose/compare_window.h"

#include <QMenu>
#include <QMenuBar>

namespace kavela::desktop {

void makeCompareMenus(CompareWindow& window) {
    QMenu* const file = window.makeFileMenu();
    file->addAction(CompareWindow::tr("Add s&plit files…"),
                    QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_O), &window,
                    &CompareWindow::chooseSplitFiles);
    file->addAction(CompareWindow::tr("Add &films…"), QKeySequence(Qt::CTRL | Qt::Key_I), &window,
                    &CompareWindow::chooseFilms);
    file->addAction(CompareWindow::tr("&Compose the film…"), QKeySequence(Qt::CTRL | Qt::Key_E),
                    &window, &CompareWindow::askAndCompose);
    file->addAction(CompareWindow::tr("Films being composed: &jobs"),
                    QKeySequence(Qt::CTRL | Qt::Key_J), &window, &CompareWindow::showJobs);
    window.makeEditMenu()->addAction(CompareWindow::tr("&Find a run or a film"), QKeySequence::Find,
                                     &window, [&window] { window.films().find(); });
    QMenu* const play = window.menuBar()->addMenu(CompareWindow::tr("&Play"));
    play->addAction(CompareWindow::tr("&Play or pause"), QKeySequence(Qt::Key_Space), &window,
                    &CompareWindow::togglePlaying);
    play->addAction(CompareWindow::tr("From the &beginning"),
                    QKeySequence(Qt::SHIFT | Qt::Key_Space), &window, [&window] {
                        window.player().pause();
                        window.player().seek(0);
                        window.player().play();
                    });
    play->addAction(CompareWindow::tr("One frame ba&ck"), QKeySequence(Qt::Key_Comma), &window,
                    [&window] { window.player().step(-1); });
    play->addAction(CompareWindow::tr("One frame &on"), QKeySequence(Qt::Key_Period), &window,
                    [&window] { window.player().step(1); });
    QMenu* const part = window.menuBar()->addMenu(CompareWindow::tr("P&art"));
    part->addAction(CompareWindow::tr("&Begin here"), QKeySequence(Qt::Key_I), &window,
                    &CompareWindow::beginHere);
    part->addAction(CompareWindow::tr("&End here"), QKeySequence(Qt::Key_O), &window,
                    &CompareWindow::endHere);
    part->addAction(CompareWindow::tr("The &whole run"), QKeySequence(Qt::Key_W), &window,
                    [&window] { window.showWholeRun(); });
    part->addSeparator();
    part->addAction(CompareWindow::tr("&Align the second film by two points"),
                    QKeySequence(Qt::Key_A), &window, &CompareWindow::alignByPoints);
    part->addAction(CompareWindow::tr("&Forget the points"), QKeySequence(Qt::SHIFT | Qt::Key_A),
                    &window, &CompareWindow::forgetPoints);
    window.finishMenus([] { return Commands(); });
}

} // namespace kavela::desktop
