#include "desktop/cross/cross_actions.h"

#include "desktop/compose/compare_request.h"
#include "desktop/cross/course_strip.h"
#include "desktop/cross/cross_window.h"
#include "desktop/cross/heats/heat_page.h"
#include "desktop/cross/results/results_page.h"
#include "desktop/cross/trials/trial_page.h"
#include "desktop/film/film_stage.h"
#include "desktop/film/mark_actions.h"
#include "desktop/film/play_menu.h"
#include "desktop/shell/typing.h"
#include "desktop/shell/workspace.h"
#include "desktop/splitfile/film_places.h"
#include "splitdata/film_marks.h"

#include <QAction>
#include <QFileDialog>
#include <QMenuBar>

namespace kavela::desktop {

namespace {

using Page = CrossWindow::Page;

QKeySequence numberKey(int number, Qt::KeyboardModifiers modifiers = {}) {
    return QKeySequence(QKeyCombination(modifiers, static_cast<Qt::Key>(Qt::Key_0 + number)));
}

} // namespace

CrossActions::CrossActions(CrossWindow& window, Workspace& workspace)
    : QObject(&window), m_window(window), m_workspace(workspace) {
    makeFileMenu();
    makeEditMenu();
    makeMarkMenu();
    makeTrialMenu();
    makeHeatMenu();
    makeViewMenu();
    new PlayMenu(window, window.deck(), window.stage().sound(), workspace); // the window owns it
    window.finishMenus([this] { return athletes(); });
    connect(&window, &CrossWindow::pageChanged, this, &CrossActions::showWhatCanBeDone);
}

QAction* CrossActions::add(QMenu& menu, const QString& text, const QList<QKeySequence>& shortcuts,
                           Act act) {
    QAction* const action = menu.addAction(text);
    action->setShortcuts(shortcuts);
    connect(action, &QAction::triggered, &m_window, std::move(act));
    return action;
}

CrossActions::Act CrossActions::savedThen(std::function<void(const QString& path)> request) {
    return [this, request = std::move(request)] {
        m_window.whenSaved([this, request] { request(m_window.document().path()); });
    };
}

void CrossActions::makeFileMenu() {
    QMenu* const menu = m_window.makeFileMenu(
        {tr("&Open a split file…"), [this] { chooseFiles(); }, tr("&Save data"), false});
    add(*menu, tr("Open a &folder of films…"), {}, [this] {
        const QString folder = QFileDialog::getExistingDirectory(
            &m_window, tr("Open a folder of films"), m_window.document().folder());
        if (!folder.isEmpty())
            emit m_window.openRequested({folder});
    });
    add(*menu, tr("&Import films of time trials…"), {Qt::CTRL | Qt::Key_I},
        [this] { m_window.importFilms(); });
    add(*menu, tr("Film of the selected trial or &heat…"), {Qt::CTRL | Qt::SHIFT | Qt::Key_I},
        [this] { m_window.chooseFilm(); });
    add(*menu, tr("&Where are the films now?…"), {}, [this] { m_window.findFilms(); });
    menu->addSeparator();
    add(*menu, tr("Split &taking of this race"), {Qt::CTRL | Qt::SHIFT | Qt::Key_R},
        savedThen([this](const QString& path) { emit m_window.takingRequested(path); }));
    add(*menu, tr("Show in the race &analyzer"), {Qt::CTRL | Qt::Key_R}, [this] {
        if (m_window.commit())
            emit m_window.analysisRequested();
    });
}

void CrossActions::chooseFiles() {
    const QStringList files = QFileDialog::getOpenFileNames(
        &m_window, tr("Open a split file"), m_window.document().folder(),
        tr("Split files (*.kvx);;All files (*)"));
    if (!files.isEmpty())
        emit m_window.openRequested(files);
}

void CrossActions::makeEditMenu() {
    QMenu* const menu = m_window.makeEditMenu();
    add(*menu, tr("&Course of the cross race"), {Qt::CTRL | Qt::Key_G},
        [this] { m_window.course().toggle(); });
    add(*menu, tr("&Previous trial or heat"), {Qt::Key_Up}, [this] {
        if (!stepNumber(1))
            m_window.page().stepRow(-1);
    });
    add(*menu, tr("&Next trial or heat"), {Qt::Key_Down}, [this] {
        if (!stepNumber(-1))
            m_window.page().stepRow(1);
    });
    menu->addSeparator();
    m_ofResults.push_back(add(*menu, tr("Copy the &results"), {QKeySequence::Copy},
                              [this] { m_window.results().copy(); }));
}

void CrossActions::makeMarkMenu() {
    QMenu* const menu = m_window.menuBar()->addMenu(tr("&Mark"));
    FilmStage& stage = m_window.stage();
    addMarkActions(*menu, stage, tr("&Mark the frame shown"));
    add(*menu, tr("To the first mark"), {Qt::CTRL | Qt::Key_Home}, [&stage] { stage.goToMark(0); });
    addGateActions(*menu, stage, tr("Next &gate"), tr("Previous g&ate"));
    menu->addSeparator();
    for (int number = 1; number <= 9; ++number)
        add(*menu, tr("Split, gate or boat &%1").arg(number), {numberKey(number)},
            [&stage, number] { stage.pressNumber(number); });
}

void CrossActions::makeTrialMenu() {
    QMenu* const menu = m_window.menuBar()->addMenu(tr("&Time trials"));
    TrialPage& trials = m_window.trials();
    add(*menu, tr("&Add an athlete"), {Qt::CTRL | Qt::Key_N}, [this, &trials] {
        m_window.showPage(Page::Trials);
        trials.startAdding();
    });
    struct Mode {
        QString text;
        TrialMode mode;
    };
    int number = 0;
    for (const Mode& mode : {Mode{tr("M marks the &splits"), TrialMode::Splits},
                             Mode{tr("M marks the &upstream gates"), TrialMode::Upstreams},
                             Mode{tr("M marks the &roll"), TrialMode::Roll}})
        m_ofTrials.push_back(add(*menu, mode.text,
                                 {numberKey(++number, Qt::ControlModifier | Qt::ShiftModifier)},
                                 [&trials, mode] { trials.setMode(mode.mode); }));
    m_ofTrials.push_back(
        add(*menu, tr("Re&name the athlete"), {Qt::Key_F2}, [&trials] { trials.startRenaming(); }));
    m_ofTrials.push_back(
        add(*menu, tr("R&emove the trial"), {}, [&trials] { trials.removeTrial(); }));
    menu->addSeparator();
    m_ofTrials.push_back(
        add(*menu, tr("Make &heats from the trials"), {}, [&trials] { trials.makeHeats(); }));
}

void CrossActions::makeHeatMenu() {
    QMenu* const menu = m_window.menuBar()->addMenu(tr("&Heats"));
    HeatPage& heats = m_window.heats();
    add(*menu, tr("&Add a heat…"), {Qt::CTRL | Qt::SHIFT | Qt::Key_N}, [this, &heats] {
        m_window.showPage(Page::Heats);
        heats.addHeat();
    });
    m_ofHeats = {
        add(*menu, tr("A&ttack, beginning here"), {Qt::Key_A}, [&heats] { heats.addAttack(); }),
        add(*menu, tr("&End of the attack"), {Qt::Key_E}, [&heats] { heats.endAttack(); }),
        add(*menu, tr("Compare &films of the heat…"), {Qt::CTRL | Qt::SHIFT | Qt::Key_F},
            [this] { compareFilms(); }),
        add(*menu, tr("&Names of the boats…"), {}, [&heats] { heats.renameBoats(); }),
        add(*menu, tr("&Remove the heat"), {}, [&heats] { heats.removeHeat(); })};
}

/// Of one heat there is one film: another one is chosen beside it there.
void CrossActions::compareFilms() {
    const auto heat = m_window.heats().heat();
    const auto& heats = m_window.document().cross().eliphase;
    if (!heat || *heat >= heats.size() || heats[*heat].videoname.empty())
        return;
    const rounddata030& round = heats[*heat];
    CompareRequest::Film film;
    film.path = placeOfFilm(m_workspace, m_window.document().path(),
                            QString::fromStdString(round.videoname));
    QStringList names;
    for (const std::string& name : round.athletes)
        names.append(QString::fromStdString(name));
    film.names = names.join(QStringLiteral(", "));
    for (const generaldata030& order : round.generals)
        if (isTaken(order.time) && (film.startsAt == 0 || order.time.seconds() < film.startsAt))
            film.startsAt = order.time.seconds();
    emit m_window.compareRequested({.runs = {}, .films = {film}});
}

void CrossActions::makeViewMenu() {
    QMenu* const menu = m_window.menuBar()->addMenu(tr("&View"));
    int number = 0;
    for (const QString& title : {tr("&Time trials"), tr("&Heats"), tr("&Results")}) {
        const auto page = static_cast<Page>(number++);
        add(*menu, title, {numberKey(number, Qt::ControlModifier)},
            [this, page] { m_window.showPage(page); });
    }
}

void CrossActions::showWhatCanBeDone() {
    const CrossPage* const front = &m_window.page();
    const auto enable = [front](const std::vector<QAction*>& actions, const CrossPage& page) {
        for (QAction* const action : actions)
            action->setEnabled(front == &page);
    };
    enable(m_ofTrials, m_window.trials());
    enable(m_ofHeats, m_window.heats());
    enable(m_ofResults, m_window.results());
}

Commands CrossActions::athletes() const {
    Commands commands;
    const auto& trials = m_window.document().cross().timetrials;
    for (std::size_t trial = 0; trial < trials.size(); ++trial)
        commands.push_back({QString::fromStdString(trials[trial].athlete), tr("Time trial"),
                            QString(), [this, trial] {
                                m_window.showPage(Page::Trials);
                                m_window.trials().selectTrial(trial);
                            }});
    return commands;
}

} // namespace kavela::desktop
