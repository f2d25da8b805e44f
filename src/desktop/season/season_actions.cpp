#include "desktop/season/season_actions.h"

#include "desktop/charts/chart_frame.h"
#include "desktop/season/season_header.h"
#include "desktop/season/season_window.h"

#include <QMenuBar>

namespace kavela::desktop {

SeasonActions::SeasonActions(SeasonWindow& window) : QObject(&window), m_window(window) {
    makeFileMenu();
    makeShowMenu();
    makeAthleteMenu();
    window.finishMenus([this] {
        Commands commands;
        SeasonHeader* const header = &m_window.header();
        const QStringList names = header->athletes();
        for (qsizetype i = 0; i < names.size(); ++i)
            commands.push_back({names[i], tr("Athletes"), QString(), [header, i] {
                                    header->chooseAthlete(static_cast<std::size_t>(i));
                                }});
        return commands;
    });
    refresh();
}

void SeasonActions::refresh() {
    const bool hasSeason = m_window.season() && !m_window.season()->season.athletes.empty();
    for (QAction* const action : m_ofSeason)
        action->setEnabled(hasSeason);
    m_ownStarts->setChecked(m_window.header().isOwnStarts());
    m_stop->setEnabled(m_window.isReading());
    m_showFailed->setEnabled(m_window.hasFailed());
}

void SeasonActions::makeFileMenu() {
    SeasonWindow* const window = &m_window;
    QMenu* const menu =
        window->makeFileMenu({tr("&Open a team…"), [window] { window->chooseTeam(); }});
    menu->addAction(tr("Add &split files…"), QKeySequence(Qt::CTRL | Qt::Key_I), window,
                    [window] { window->chooseRaces(); });
    menu->addAction(tr("Add a &folder of races…"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_O),
                    window, [window] { window->chooseFolder(); });
    menu->addAction(tr("Read &again"), QKeySequence(Qt::Key_F5), window,
                    [window] { window->readAgain(); });
    m_stop = menu->addAction(tr("S&top reading"), QKeySequence(Qt::CTRL | Qt::Key_Period), window,
                             [window] { window->stopReading(); });
    m_showFailed = menu->addAction(tr("Files that could not be rea&d…"), QKeySequence(Qt::Key_F7),
                                   window, [window] { window->showFailed(); });
    menu->addSeparator();
    m_ofSeason << menu->addAction(tr("&Reports to look at and print…"), QKeySequence::Print, window,
                                  [window] { window->previewReports(); })
               << menu->addAction(tr("Report of the &athlete as PDF…"),
                                  QKeySequence(Qt::CTRL | Qt::Key_R), window,
                                  [window] { window->saveReport(window->header().athlete()); })
               << menu->addAction(tr("Report of the tea&m as PDF…"),
                                  QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_R), window,
                                  [window] { window->saveReport(std::nullopt); });
    m_ofSeason << menu->addAction(tr("Pa&ge for an athlete…"),
                                  QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_A), window,
                                  [window] { window->askForPhonePage(); });
    menu->addSeparator();
    m_ofSeason << menu->addAction(tr("Save the tab&le as CSV…"),
                                  QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_E), window,
                                  [window] { window->saveTable(); })
               << menu->addAction(tr("Save the &chart…"), QKeySequence(Qt::CTRL | Qt::Key_E),
                                  window, [window] { window->saveChart(); });
}

void SeasonActions::makeShowMenu() {
    SeasonWindow* const window = &m_window;
    QMenu* const menu = window->menuBar()->addMenu(tr("&Show"));
    const QStringList titles{tr("&Progression"),     tr("P&hases"),        tr("&Spread"),
                             tr("&Trend"),           tr("Head to h&ead"),  tr("&Medals and finals"),
                             tr("E&xpected places"), tr("&What it takes"), tr("&Athletes")};
    for (int index = 0; index < titles.size(); ++index)
        m_ofSeason << menu->addAction(
            titles[index], QKeySequence(Qt::ALT | static_cast<Qt::Key>(Qt::Key_1 + index)), window,
            [window, index] { window->showPage(static_cast<SeasonWindow::Page>(index)); });
    menu->addSeparator();
    m_ofSeason << menu->addAction(tr("The who&le chart"), QKeySequence(Qt::CTRL | Qt::Key_0),
                                  window, [window] { window->chart().fit(); });
}

void SeasonActions::makeAthleteMenu() {
    SeasonWindow* const window = &m_window;
    QMenu* const menu = window->menuBar()->addMenu(tr("Athl&ete"));
    m_ofSeason << menu->addAction(tr("The &next athlete"),
                                  QKeySequence(Qt::CTRL | Qt::Key_PageDown), window,
                                  [window] { window->header().stepAthlete(1); })
               << menu->addAction(tr("The athlete &before"),
                                  QKeySequence(Qt::CTRL | Qt::Key_PageUp), window,
                                  [window] { window->header().stepAthlete(-1); })
               << menu->addAction(tr("&Show the athlete of the row"),
                                  QKeySequence(Qt::CTRL | Qt::Key_Return), window,
                                  [window] { window->showChosenAthlete(); });
    m_ownStarts =
        menu->addAction(tr("Only the athlete's &own races"), QKeySequence(Qt::CTRL | Qt::Key_L),
                        window, [window](bool isOn) { window->header().setOwnStarts(isOn); });
    m_ownStarts->setCheckable(true);
    m_ofSeason << m_ownStarts;
    menu->addSeparator();
    m_ofSeason << menu->addAction(tr("Expect the places of a &field…"),
                                  QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_F), window,
                                  [window] { window->askForField(); });
}

} // namespace kavela::desktop
