#include "desktop/losses/losses_actions.h"

#include "desktop/film/clip_pair.h"
#include "desktop/losses/loss_charts_panel.h"
#include "desktop/losses/loss_header.h"
#include "desktop/losses/loss_tables.h"
#include "desktop/losses/loss_texts.h"
#include "desktop/losses/losses_window.h"
#include "desktop/losses/season_page.h"

#include <QAction>
#include <QMenuBar>

#include <algorithm>

namespace kavela::desktop {

LossesActions::LossesActions(LossesWindow& window) : QObject(&window), m_window(window) {
    makeFileMenu();
    makeRunMenu();
    makeReferenceMenu();
    makeViewMenu();
    makeFilmMenu();
    window.finishMenus([this] { return runs(); });
    connect(&window.state(), &LossState::changed, this, &LossesActions::refresh);
    connect(&window.state(), &LossState::scaleChanged, this, &LossesActions::refresh);
    refresh();
}

void LossesActions::refresh() {
    for (const auto& refresher : m_refreshers)
        refresher();
}

void LossesActions::makeFileMenu() {
    LossesWindow* const window = &m_window;
    QMenu* menu = window->makeFileMenu({tr("&Open races…"), [window] { window->chooseFiles(); }});
    menu->addAction(tr("Open a &folder of races…"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_O),
                    window, [window] { window->chooseFolder(); });
    menu->addAction(tr("&Read all again"), QKeySequence(Qt::Key_F5), window,
                    [window] { window->facts().readAgain(); });
    QAction* const stop =
        menu->addAction(tr("S&top reading"), QKeySequence(Qt::CTRL | Qt::Key_Period), window,
                        [window] { window->facts().cancel(); });
    stop->setEnabled(false);
    connect(&window->facts(), &WatchedFacts::readingChanged, stop,
            [stop, window] { stop->setEnabled(window->facts().isReading()); });
    menu->addSeparator();
    QAction* const page =
        menu->addAction(tr("&Page of an athlete: PDF, preview, print…"), QKeySequence::Print,
                        window, [window] { window->askForAthletePage(); });
    m_refreshers.push_back([page, window] { page->setEnabled(window->state().hasRun()); });
    QAction* const phonePage =
        menu->addAction(tr("Pa&ge for an athlete…"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_A),
                        window, [window] { window->askForPhonePage(); });
    m_refreshers.push_back(
        [phonePage, window] { phonePage->setEnabled(window->state().hasRun()); });
    menu->addAction(tr("Save the table as &CSV…"), QKeySequence(Qt::CTRL | Qt::Key_E), window,
                    [window] { window->saveTable(); });
    menu->addAction(
        tr("&Save the chart…"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_E), window, [window] {
            window->isSeasonShown() ? window->season().askAndSave() : window->charts().askAndSave();
        });
}

void LossesActions::makeRunMenu() {
    LossesWindow* const window = &m_window;
    QMenu* menu = window->menuBar()->addMenu(tr("&Run"));
    menu->addAction(tr("&Find a run"), QKeySequence::Find, window,
                    [window] { window->header().findRun(); });
    menu->addAction(tr("The &next in rank"), QKeySequence(Qt::CTRL | Qt::Key_PageDown), window,
                    [window] { window->goToRun(1); });
    menu->addAction(tr("The &one in front"), QKeySequence(Qt::CTRL | Qt::Key_PageUp), window,
                    [window] { window->goToRun(-1); });
    menu->addSeparator();
    menu->addAction(tr("&Season of the athlete, or the run"), QKeySequence(Qt::Key_F6), window,
                    [window] { window->setSeasonShown(!window->isSeasonShown()); });
}

void LossesActions::addReference(QMenu& menu, const QString& text, const QKeySequence& keys,
                                 LossReferenceKind kind) {
    LossState& state = m_window.state();
    QAction* const action = menu.addAction(text, keys, &m_window, [this, &state, kind] {
        state.setReference({kind, 0});
        refresh(); // also where it was the reference before: the tick stays
    });
    action->setCheckable(true);
    m_refreshers.push_back(
        [action, &state, kind] { action->setChecked(state.reference().kind == kind); });
}

void LossesActions::makeReferenceMenu() {
    using Kind = LossReferenceKind;
    LossesWindow* const window = &m_window;
    QMenu* menu = window->menuBar()->addMenu(tr("Re&ference"));
    addReference(*menu, tr("The &winner"), QKeySequence(Qt::SHIFT | Qt::Key_W), Kind::Winner);
    addReference(*menu, tr("The &fastest paddling"), QKeySequence(Qt::SHIFT | Qt::Key_F),
                 Kind::Fastest);
    addReference(*menu, tr("The &ideal run"), QKeySequence(Qt::SHIFT | Qt::Key_I), Kind::Ideal);
    addReference(*menu, tr("The &median of the finalists"), QKeySequence(Qt::SHIFT | Qt::Key_M),
                 Kind::Median);
    addReference(*menu, tr("The crew's &own best other run"), QKeySequence(Qt::SHIFT | Qt::Key_O),
                 Kind::Own);
    menu->addSeparator();
    menu->addAction(tr("The run that is &shown"), QKeySequence(Qt::SHIFT | Qt::Key_R), window,
                    [window] { window->tables().makeChosenReference(); });
}

void LossesActions::makeViewMenu() {
    LossesWindow* const window = &m_window;
    QMenu* menu = window->menuBar()->addMenu(tr("&View"));
    const QStringList charts{tr("&Sum from total to total"), tr("&Heat map"),
                             tr("Sections that lost &most"), tr("Gap &along the course")};
    for (int index = 0; index < charts.size(); ++index)
        menu->addAction(charts[index],
                        QKeySequence(Qt::ALT | static_cast<Qt::Key>(Qt::Key_1 + index)), window,
                        [window, index] {
                            window->setSeasonShown(false);
                            window->charts().goToChart(index);
                        });
    menu->addSeparator();
    const QStringList tables{tr("Table of s&ections"), tr("Table of &runs"), tr("Table of &gates"),
                             tr("Table of &notes"), tr("Table of &ways")};
    for (int index = 0; index < tables.size(); ++index)
        menu->addAction(tables[index],
                        QKeySequence(Qt::CTRL | static_cast<Qt::Key>(Qt::Key_1 + index)), window,
                        [window, index] {
                            window->setSeasonShown(false);
                            window->tables().goToTable(index);
                        });
    menu->addSeparator();
    menu->addAction(tr("Show the whole &chart"), QKeySequence(Qt::CTRL | Qt::Key_0), window,
                    [window] { window->charts().fit(); });
    LossState& state = window->state();
    QAction* const scale =
        menu->addAction(tr("&Blue to orange instead of green to red"), QKeySequence(Qt::Key_B),
                        window, [&state](bool isOn) {
                            state.setScale(isOn ? ColourScale::BlueOrange : ColourScale::GreenRed);
                        });
    scale->setCheckable(true);
    m_refreshers.push_back(
        [scale, &state] { scale->setChecked(state.scale() == ColourScale::BlueOrange); });
}

void LossesActions::makeFilmMenu() {
    LossesWindow* const window = &m_window;
    QMenu* menu = window->menuBar()->addMenu(tr("Fil&ms"));
    menu->addAction(tr("&Play the section of both runs"), QKeySequence(Qt::Key_P), window,
                    [window] { window->playChosen(); });
    menu->addAction(tr("&Film this loss…"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_F), window,
                    [window] { window->filmLoss(); });
    menu->addActions(window->clips().playActions());
    menu->addAction(tr("&Hide the films"), QKeySequence(Qt::SHIFT | Qt::Key_P), window,
                    [window] { window->hideClips(); });
}

/// Every run, to be found by a few letters among the commands.
Commands LossesActions::runs() const {
    constexpr std::size_t MostRuns = 5000; // more are found in the list on top
    Commands commands;
    LossState& state = m_window.state();
    const std::size_t count = std::min(state.facts().runs().size(), MostRuns);
    for (std::size_t run = 0; run < count; ++run)
        commands.push_back({runChoice(state.facts(), run), tr("Runs"), QString(),
                            [&state, run] { state.setRun(run); }});
    return commands;
}

} // namespace kavela::desktop
