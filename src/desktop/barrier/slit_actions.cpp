#include "desktop/barrier/slit_actions.h"

#include "desktop/barrier/slit_stage.h"
#include "desktop/barrier/slit_view.h"
#include "desktop/barrier/slit_window.h"
#include "desktop/film/film_deck.h"

#include <QAction>
#include <QFileDialog>
#include <QFileInfo>
#include <QMenuBar>

#include <utility>

namespace kavela::desktop {

SlitActions::SlitActions(SlitWindow& window) : QObject(&window), m_window(window) {
    makeFileMenu();
    makeEditMenu();
    makeLineMenu();
    makeHairMenu();
    makeMarkMenu();
    makePlayMenu();
    window.finishMenus({});
    refresh();
}

void SlitActions::refresh() {
    for (const auto& [action, isPossible] : m_limited)
        action->setEnabled(isPossible());
}

QAction* SlitActions::add(QMenu& menu, const QString& text, const QList<QKeySequence>& keys,
                          Act act, IsPossible isPossible) {
    QAction* const action = menu.addAction(text);
    action->setShortcuts(keys);
    connect(action, &QAction::triggered, &m_window, std::move(act));
    if (isPossible)
        m_limited.emplace_back(action, std::move(isPossible));
    return action;
}

void SlitActions::makeFileMenu() {
    SlitWindow* const window = &m_window;
    QMenu* const menu =
        window->makeFileMenu({tr("&Open a film…"), [window] { window->chooseFilm(); }});
    add(
        *menu, tr("Open the &race of the film in split taking"), {Qt::CTRL | Qt::Key_R},
        [window] { emit window->raceRequested(window->raceOfFilm()); },
        [window] { return !window->film().isEmpty(); });
    add(
        *menu, tr("&Save the race"), {QKeySequence::Save}, [window] { window->race().save(); },
        [window] { return window->race().isThere(); });
    add(
        *menu, tr("Save what is seen as a &picture…"), {Qt::CTRL | Qt::Key_E},
        [this] { exportPicture(); }, [window] { return window->line() != nullptr; });
    add(
        *menu, tr("Save the &water round the marks…"), {}, [this] { saveBands(); },
        [window] { return window->line() != nullptr; });
    menu->addSeparator();
}

QString SlitActions::askForFile(const QString& title, const QString& suffix,
                                const QString& filter) const {
    const QFileInfo film(m_window.film());
    const QString file = QFileDialog::getSaveFileName(
        &m_window, title, film.absolutePath() + '/' + film.completeBaseName() + suffix, filter);
    return file.isEmpty() || !QFileInfo(file).suffix().isEmpty() ? file : file + suffix;
}

void SlitActions::exportPicture() {
    const QString file = askForFile(tr("Save what is seen of the slit picture"),
                                    QStringLiteral(".png"), tr("Pictures (*.png)"));
    if (file.isEmpty())
        return;
    m_window.exportTo(file);
}

void SlitActions::saveBands() {
    const QString file = askForFile(tr("Save the water round the marks"), QStringLiteral(".kvband"),
                                    tr("Bands (*.kvband)"));
    if (file.isEmpty())
        return;
    if (const QString why = m_window.saveBandsTo(file); !why.isEmpty())
        m_window.refuse(why);
}

void SlitActions::makeEditMenu() {
    SlitWindow* const window = &m_window;
    QMenu* const menu = window->menuBar()->addMenu(tr("&Edit"));
    add(
        *menu, ToolWindow::tr("&Undo"), {QKeySequence::Undo}, [window] { window->undoStep(); },
        [window] { return window->steps().canUndo(); });
    add(
        *menu, ToolWindow::tr("&Redo"), {QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z)},
        [window] { window->redoStep(); }, [window] { return window->steps().canRedo(); });
}

void SlitActions::makeLineMenu() {
    SlitWindow* const window = &m_window;
    QMenu* const menu = window->menuBar()->addMenu(tr("&Lines"));
    const auto hasLine = [window] { return window->line() != nullptr; };
    add(
        *menu, tr("Draw a &new line"), {Qt::Key_N}, [window] { window->drawLine(); },
        [window] { return !window->film().isEmpty(); });
    add(
        *menu, tr("Take &over the lines of another film"), {Qt::Key_L},
        [window] { window->takeLinesOver(); },
        [window] { return window->keeping().neighbour() && !window->line(); });
    add(
        *menu, tr("Ne&xt line"), {Qt::CTRL | Qt::Key_PageDown}, [window] { window->stepLine(1); },
        hasLine);
    add(
        *menu, tr("&Previous line"), {Qt::CTRL | Qt::Key_PageUp},
        [window] { window->stepLine(-1); }, hasLine);
    add(
        *menu, tr("&Turn the arrow: boats come from the other side"), {Qt::Key_T},
        [window] { window->turnArrow(); }, hasLine);
    add(
        *menu, tr("&Remove the line"), {Qt::CTRL | Qt::SHIFT | Qt::Key_Delete},
        [window] { window->removeLine(); }, hasLine);
    menu->addSeparator();
    add(
        *menu, tr("Draw a box round one &boat"), {Qt::Key_B}, [window] { window->drawBoat(); },
        hasLine);
    add(
        *menu, tr("&Look for boats that cross it"), {Qt::CTRL | Qt::Key_B},
        [window] { window->searchBoats(); }, hasLine);
}

void SlitActions::makeHairMenu() {
    SlitWindow* const window = &m_window;
    SlitStage* const stage = &window->stage();
    SlitView* const view = &stage->slit();
    QMenu* const menu = window->menuBar()->addMenu(tr("&Hair line"));
    constexpr int Leap = 10; // frames
    constexpr double PartOfFrame = 0.1;
    constexpr double Closer = 1.5;
    add(*menu, tr("One frame &earlier"), {Qt::Key_Left}, [stage] { stage->stepHair(-1); });
    add(*menu, tr("One frame &later"), {Qt::Key_Right}, [stage] { stage->stepHair(1); });
    add(*menu, tr("Ten frames earlier"), {Qt::SHIFT | Qt::Key_Left},
        [stage] { stage->stepHair(-Leap); });
    add(*menu, tr("Ten frames later"), {Qt::SHIFT | Qt::Key_Right},
        [stage] { stage->stepHair(Leap); });
    add(*menu, tr("A tenth of a frame earlier"), {Qt::ALT | Qt::Key_Left},
        [stage] { stage->refineHair(-PartOfFrame); });
    add(*menu, tr("A tenth of a frame later"), {Qt::ALT | Qt::Key_Right},
        [stage] { stage->refineHair(PartOfFrame); });
    menu->addSeparator();
    add(*menu, tr("&Next proposal"), {Qt::Key_PageDown}, [window] { window->stepProposal(1); });
    add(*menu, tr("&Previous proposal"), {Qt::Key_PageUp}, [window] { window->stepProposal(-1); });
    add(*menu, tr("To the &beginning"), {Qt::Key_Home}, [stage] { stage->setHair(0.5); });
    menu->addSeparator();
    add(*menu, tr("&Closer"), {Qt::Key_Plus, Qt::CTRL | Qt::Key_Plus, Qt::Key_Equal},
        [view] { view->zoomBy(Closer); });
    add(*menu, tr("&Farther"), {Qt::Key_Minus, Qt::CTRL | Qt::Key_Minus},
        [view] { view->zoomBy(1 / Closer); });
    add(*menu, tr("The &whole film"), {Qt::Key_0}, [view] { view->showWhole(); });
}

void SlitActions::makeMarkMenu() {
    SlitWindow* const window = &m_window;
    QMenu* const menu = window->menuBar()->addMenu(tr("&Mark"));
    const auto hasLine = [window] { return window->line() != nullptr; };
    add(
        *menu, tr("&Mark the run at the hair line"), {Qt::Key_Return, Qt::Key_Enter},
        [window] { window->mark(); }, hasLine);
    add(
        *menu, tr("Take the mark &away"), {Qt::CTRL | Qt::Key_Delete},
        [window] { window->unmark(); }, hasLine);
    add(*menu, tr("&Previous run"), {Qt::Key_Up}, [window] { window->stepRun(-1); });
    add(*menu, tr("&Next run"), {Qt::Key_Down}, [window] { window->stepRun(1); });
    menu->addSeparator();
    add(
        *menu, tr("&Refuse the proposal at the hair line"), {Qt::Key_Delete},
        [window] { window->refuseProposal(); }, hasLine);
    add(
        *menu, tr("&Forget what was refused on this line"), {},
        [window] { window->forgetRefusals(); },
        [window] { return window->line() && !window->line()->refused.empty(); });
    add(*menu,
        window->lockOfAcceptAll().isEmpty() ? tr("Accept a&ll proposals")
                                            : tr("Accept a&ll proposals: why not yet?"),
        {Qt::CTRL | Qt::SHIFT | Qt::Key_Return}, [window] { window->acceptAll(); });
}

void SlitActions::makePlayMenu() {
    FilmDeck* const deck = &m_window.deck();
    QMenu* const menu = m_window.menuBar()->addMenu(tr("&Play"));
    add(*menu, tr("&Play or pause"), {Qt::Key_Space}, [deck] { deck->togglePlaying(); });
    add(*menu, tr("&Slower"), {Qt::Key_BracketLeft}, [deck] { deck->slower(); });
    add(*menu, tr("&Faster"), {Qt::Key_BracketRight}, [deck] { deck->faster(); });
    add(*menu, tr("&Normal speed"), {Qt::Key_Backspace}, [deck] { deck->normalSpeed(); });
}

} // namespace kavela::desktop
