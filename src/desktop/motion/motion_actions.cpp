#include "desktop/motion/motion_actions.h"

#include "desktop/motion/motion_charts.h"
#include "desktop/motion/motion_window.h"
#include "desktop/motion/recording_list.h"
#include "desktop/shell/workspace.h"

#include <QCoreApplication>
#include <QMenuBar>
#include <QToolBar>
#include <QToolButton>

namespace kavela::desktop {

namespace {

constexpr const char* ChartsKey = "motion/charts";
constexpr double ZoomStep = 0.5;
constexpr double ShiftStep = 0.01; ///< seconds, a sample of most recordings

} // namespace

MotionActions::MotionActions(MotionWindow& window, Workspace& workspace)
    : QObject(&window), m_window(window), m_workspace(workspace) {
    auto* bar = new QToolBar(tr("Charts"));
    bar->setObjectName("charts");
    bar->setMovable(false);
    bar->setContextMenuPolicy(Qt::PreventContextMenu);
    makeFileMenu();
    makeRecordingMenu();
    makeTimeMenu();
    makeChartMenu(*bar);
    window.addToolBar(bar);
    window.finishMenus([this] {
        Commands commands;
        const auto& all = m_window.recordings().all();
        for (std::size_t i = 0; i < all.size(); ++i)
            commands.push_back({QString::fromStdString(all[i]->data.name), tr("Recordings"),
                                QString(), [this, i] { m_window.list().choose(i); }});
        return commands;
    });
    refresh();
}

void MotionActions::refresh() {
    for (const auto& refresher : m_refreshers)
        refresher();
}

QAction* MotionActions::add(QMenu& menu, const QString& text, const QKeySequence& keys,
                            std::function<void()> act, std::function<bool()> isPossible) {
    QAction* action = menu.addAction(text, keys, &m_window, std::move(act));
    if (isPossible)
        m_refreshers.push_back(
            [action, isPossible = std::move(isPossible)] { action->setEnabled(isPossible()); });
    return action;
}

void MotionActions::makeFileMenu() {
    MotionWindow* const window = &m_window;
    QMenu* menu =
        window->makeFileMenu({tr("&Open recordings…"), [window] { window->chooseFiles(); }});
    add(
        *menu, tr("Save the &chart…"), QKeySequence(Qt::CTRL | Qt::Key_E),
        [window] { window->charts().askAndSave(); },
        [window] { return window->charts().activeChart() != nullptr; });
}

void MotionActions::makeRecordingMenu() {
    QMenu* menu = m_window.menuBar()->addMenu(tr("&Recording"));
    MotionWindow* const window = &m_window;
    const auto hasAny = [window] { return window->list().current().has_value(); };
    add(
        *menu, tr("&Convert"), QKeySequence(Qt::CTRL | Qt::Key_Return),
        [window] { window->convertCurrent(); }, hasAny);
    add(
        *menu, tr("Convert &all ticked"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Return),
        [window] { window->convertTicked(); }, hasAny);
    add(
        *menu, tr("&Open the converted session"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_O),
        [window] { window->openConverted(); }, [window] { return window->hasConverted(); });
    menu->addSeparator();
    add(
        *menu, tr("&Previous recording"), QKeySequence(Qt::Key_PageUp),
        [window] { window->list().moveChoice(-1); }, hasAny);
    add(
        *menu, tr("&Next recording"), QKeySequence(Qt::Key_PageDown),
        [window] { window->list().moveChoice(1); }, hasAny);
    add(
        *menu, tr("&Show or hide"), QKeySequence(Qt::Key_T),
        [window] { window->list().tickCurrent(); }, hasAny);
    add(
        *menu, tr("Show this one a&lone"), QKeySequence(Qt::SHIFT | Qt::Key_T),
        [window] { window->list().showCurrentAlone(); }, hasAny);
    add(
        *menu, tr("&Remove from the list"), QKeySequence::Delete,
        [window] { window->removeCurrent(); }, hasAny);
}

void MotionActions::makeTimeMenu() {
    QMenu* menu = m_window.menuBar()->addMenu(tr("&Time"));
    MotionWindow* const window = &m_window;
    const auto hasAny = [window] { return window->list().current().has_value(); };
    QUndoStack& steps = window->recordings().shiftSteps();
    QAction* const undo = steps.createUndoAction(window, tr("&Undo the move"));
    undo->setShortcut(QKeySequence::Undo);
    QAction* const redo = steps.createRedoAction(window, tr("&Redo the move"));
    redo->setShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z));
    menu->addActions({undo, redo});
    menu->addSeparator();
    add(
        *menu, tr("Align the &starts"), QKeySequence(Qt::Key_S),
        [window] { window->alignStarts(); }, hasAny);
    add(
        *menu, tr("Align by the &clock"), QKeySequence(Qt::SHIFT | Qt::Key_S),
        [window] { window->alignByClock(); }, hasAny);
    add(
        *menu, tr("&Align here: the cursor to the clicked moment"), QKeySequence(Qt::Key_A),
        [window] { window->alignHere(); }, hasAny);
    add(
        *menu, tr("&Forget the clicked moment"), QKeySequence(Qt::SHIFT | Qt::Key_A),
        [window] { window->charts().setPin(std::nullopt); }, hasAny);
    add(
        *menu, tr("&Earlier"), QKeySequence(Qt::ALT | Qt::Key_Left),
        [window] { window->shiftCurrent(-ShiftStep); }, hasAny);
    add(
        *menu, tr("&Later"), QKeySequence(Qt::ALT | Qt::Key_Right),
        [window] { window->shiftCurrent(ShiftStep); }, hasAny);
    menu->addSeparator();
    add(
        *menu, tr("&Previous stroke"), QKeySequence(Qt::CTRL | Qt::Key_Left),
        [window] { window->goToStroke(-1); }, hasAny);
    add(
        *menu, tr("&Next stroke"), QKeySequence(Qt::CTRL | Qt::Key_Right),
        [window] { window->goToStroke(1); }, hasAny);
}

void MotionActions::makeChartMenu(QToolBar& bar) {
    QMenu* menu = m_window.menuBar()->addMenu(tr("&Charts"));
    auto* phone = new QMenu(tr("Axes of the &phone"), menu);
    MotionCharts* const charts = &m_window.charts();
    const QStringList kept = m_workspace.remembered(ChartsKey);
    for (std::size_t i = 0; i < CurveKinds; ++i) {
        const auto kind = static_cast<CurveKind>(i);
        if (!kept.isEmpty())
            charts->setWanted(kind, kept.contains(QString::number(i)));
        const bool isBoat = i < BoatCurves;
        QAction* action = (isBoat ? menu : phone)->addAction(shortTitleOf(kind));
        action->setCheckable(true);
        action->setToolTip(titleOf(kind));
        if (isBoat) {
            action->setShortcut(QKeySequence(Qt::Key_1 + static_cast<int>(i)));
            bar.addAction(action);
        }
        connect(action, &QAction::triggered, this, [this, charts, kind](bool isOn) {
            charts->setWanted(kind, isOn);
            QStringList wanted;
            for (std::size_t k = 0; k < CurveKinds; ++k)
                if (charts->isWanted(static_cast<CurveKind>(k)))
                    wanted << QString::number(k);
            m_workspace.remember(ChartsKey, wanted);
        });
        m_refreshers.push_back([this, action, charts, kind] {
            action->setChecked(charts->isWanted(kind));
            action->setEnabled(m_window.recordings().all().empty() || charts->hasData(kind));
        });
    }
    menu->addMenu(phone);
    auto* more = new QToolButton;
    more->setText(tr("Axes of the phone"));
    more->setMenu(phone);
    more->setPopupMode(QToolButton::InstantPopup);
    bar.addWidget(more);
    menu->addSeparator();
    makeViewActions(*menu, bar);
}

void MotionActions::makeViewActions(QMenu& menu, QToolBar& bar) {
    MotionCharts* const charts = &m_window.charts();
    QAction* marks =
        menu.addAction(tr("&Mark strokes and turns"), QKeySequence(Qt::Key_M), &m_window,
                       [charts](bool isOn) { charts->setMarksVisible(isOn); });
    marks->setCheckable(true);
    marks->setChecked(charts->areMarksVisible());
    bar.addSeparator();
    bar.addAction(marks);
    menu.addSeparator();
    add(menu, tr("Zoom &in"), QKeySequence(Qt::CTRL | Qt::Key_Plus),
        [charts] { charts->zoom(ZoomStep); });
    add(menu, tr("Zoom &out"), QKeySequence(Qt::CTRL | Qt::Key_Minus),
        [charts] { charts->zoom(1 / ZoomStep); });
    QAction* whole = add(menu, tr("Show &everything"), QKeySequence(Qt::CTRL | Qt::Key_0),
                         [charts] { charts->fit(); });
    bar.addAction(whole);
}

} // namespace kavela::desktop
