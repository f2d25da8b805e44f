#include "desktop/penalties/penalties_actions.h"

#include "desktop/charts/chart_frame.h"
#include "desktop/penalties/course_panel.h"
#include "desktop/penalties/penalties_window.h"
#include "desktop/penalties/penalty_filter.h"

#include <QMenuBar>
#include <QTabWidget>

namespace kavela::desktop {

PenaltiesActions::PenaltiesActions(PenaltiesWindow& window) : QObject(&window), m_window(window) {
    makeFileMenu();
    makeShowMenu();
    window.finishMenus([this] {
        Commands commands;
        PenaltyFilter* const filter = &m_window.filter();
        for (const auto& [key, crew] : filter->crews())
            commands.push_back(
                {crew, tr("Crews"), QString(), [filter, key = key] { filter->chooseCrew(key); }});
        return commands;
    });
    connect(window.findChild<QTabWidget*>(), &QTabWidget::currentChanged, this,
            &PenaltiesActions::refresh);
    refresh();
}

void PenaltiesActions::refresh() {
    const bool hasChart = m_window.chart() != nullptr;
    m_saveChart->setEnabled(hasChart);
    m_wholeChart->setEnabled(hasChart);
    m_saveTable->setEnabled(m_window.table() != nullptr);
    m_stop->setEnabled(m_window.isReading());
    m_showFailed->setEnabled(m_window.hasFailed());
}

void PenaltiesActions::makeFileMenu() {
    PenaltiesWindow* const window = &m_window;
    QMenu* menu =
        window->makeFileMenu({tr("&Open split files…"), [window] { window->chooseFiles(); }});
    menu->addAction(tr("Open a &folder…"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_O), window,
                    [window] { window->chooseFolder(); });
    menu->addAction(tr("Read &again"), QKeySequence(Qt::Key_F5), window,
                    [window] { window->readAgain(); });
    m_stop = menu->addAction(tr("S&top reading"), QKeySequence(Qt::CTRL | Qt::Key_Period), window,
                             [window] { window->stopReading(); });
    m_showFailed = menu->addAction(tr("Files that could not be rea&d…"), QKeySequence(Qt::Key_F7),
                                   window, [window] { window->showFailed(); });
    menu->addSeparator();
    m_saveTable = menu->addAction(tr("Save the &table as CSV…"),
                                  QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_E), window,
                                  [window] { window->saveTable(); });
    m_saveChart = menu->addAction(tr("Save the &chart…"), QKeySequence(Qt::CTRL | Qt::Key_E),
                                  window, [window] { window->saveChart(); });
}

void PenaltiesActions::makeShowMenu() {
    using Page = PenaltiesWindow::Page;
    PenaltiesWindow* const window = &m_window;
    QMenu* menu = window->menuBar()->addMenu(tr("&Show"));
    const QStringList titles{tr("&Course"), tr("&Rates"), tr("&Details"), tr("Cost in &places"),
                             tr("Risk and &speed")};
    for (int index = 0; index < titles.size(); ++index)
        menu->addAction(titles[index],
                        QKeySequence(Qt::ALT | static_cast<Qt::Key>(Qt::Key_1 + index)), window,
                        [window, index] { window->showPage(static_cast<Page>(index)); });
    menu->addSeparator();
    const auto course = [&](const QString& text, Qt::Key key, int step) {
        menu->addAction(text, QKeySequence(Qt::CTRL | key), window, [window, step] {
            window->showPage(Page::Course);
            window->course().showNext(step);
        });
    };
    course(tr("&Next course"), Qt::Key_PageDown, 1);
    course(tr("Pre&vious course"), Qt::Key_PageUp, -1);
    menu->addSeparator();
    menu->addAction(tr("&All runs"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_R), window,
                    [window] { window->filter().clear(); });
    m_wholeChart = menu->addAction(tr("The &whole chart"), QKeySequence(Qt::CTRL | Qt::Key_0),
                                   window, [window] {
                                       if (ChartFrame* const chart = window->chart())
                                           chart->fit();
                                   });
}

} // namespace kavela::desktop
