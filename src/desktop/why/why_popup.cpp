#include "desktop/why/why_popup.h"

#include "desktop/shell/screen_fit.h"
#include "desktop/shell/tool_window.h"
#include "desktop/why/why_window.h"

#include <QAbstractItemView>
#include <QAction>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QToolTip>

#include <algorithm>
#include <utility>

namespace kavela::desktop {

namespace {

constexpr const char* ActionName = "whyThisNumber";

ToolWindow* toolWindowOf(QWidget* widget) {
    for (; widget; widget = widget->parentWidget())
        if (auto* const window = qobject_cast<ToolWindow*>(widget))
            return window;
    return nullptr;
}

/// What of a widget the mouse is told of.
QWidget* surfaceOf(QWidget* widget) {
    auto* const area = qobject_cast<QAbstractScrollArea*>(widget);
    return area ? area->viewport() : widget;
}

/// Below the number, or above it where there is more room.
QPoint placeBeside(const QRect& number, const QSize& size, const QRect& free) {
    const bool fitsBelow = number.bottom() + 1 + size.height() <= free.bottom();
    const int y = fitsBelow ? number.bottom() + 1 : number.top() - size.height();
    return {
        std::clamp(number.left(), free.left(), std::max(free.left(), free.right() - size.width())),
        std::clamp(y, free.top(), std::max(free.top(), free.bottom() - size.height()))};
}

/// The part with the focus answers, or the nearest one around it.
void askInFocus(const QMainWindow& window) {
    QWidget* const focus = window.focusWidget() ? window.focusWidget() : window.centralWidget();
    for (QWidget* part = focus; part; part = part->parentWidget())
        if (auto* const keys = part->findChild<WhyKeys*>(QString(), Qt::FindDirectChildrenOnly)) {
            keys->askByKey();
            return;
        }
    QToolTip::showText(window.mapToGlobal(window.rect().center()),
                       WhyKeys::tr("Go to a number first, or hold Alt and click on it."));
}

} // namespace

void showWhy(const Reason& reason, const QRect& atGlobal, QWidget* over) {
    auto* const window = new WhyWindow(reason, over->window());
    QObject::connect(window, &WhyWindow::placeActivated, over, [over](const Place& place) {
        ToolWindow* const tool = toolWindowOf(over);
        if (tool && !tool->showOwnPlace(place))
            emit tool->placeRequested(place);
    });
    window->adjustSize();
    window->move(placeBeside(atGlobal, window->size(), freeArea(*over->window())));
    window->show();
    window->activateWindow();
}

void answerWhy(QWidget* watched, WhyAt answer) {
    new WhyKeys(watched, std::move(answer)); // the widget owns it
}

void answerWhy(QAbstractItemView* watched, WhyOfCell answer) {
    new WhyKeys(watched, std::move(answer));
}

WhyKeys::WhyKeys(QWidget* watched, WhyAt answer)
    : QObject(watched), m_watched(watched), m_at(std::move(answer)) {
    listen();
}

WhyKeys::WhyKeys(QAbstractItemView* watched, WhyOfCell answer)
    : QObject(watched), m_watched(watched), m_ofCell(std::move(answer)) {
    listen();
}

void WhyKeys::listen() {
    m_watched->installEventFilter(this);
    if (QWidget* const surface = surfaceOf(m_watched); surface != m_watched)
        surface->installEventFilter(this);
    if (m_watched->isVisible())
        showInMenu();
}

void WhyKeys::askByKey() {
    QRect where = surfaceOf(m_watched)->rect();
    auto* const view = qobject_cast<QAbstractItemView*>(m_watched);
    const QModelIndex current = view ? view->currentIndex() : QModelIndex();
    if (current.isValid())
        where = view->visualRect(current) & where;
    if (m_ofCell)
        answer(current.isValid() ? m_ofCell(current) : std::nullopt, where);
    else
        answer(m_at(current.isValid() ? view->visualRect(current).center() : QPoint(-1, -1)),
               where);
}

void WhyKeys::askAt(const QPoint& local) {
    auto* const view = qobject_cast<QAbstractItemView*>(m_watched);
    const QModelIndex cell = view ? view->indexAt(local) : QModelIndex();
    const QRect where = cell.isValid() ? view->visualRect(cell) : QRect(local, QSize(1, 1));
    if (m_ofCell)
        answer(cell.isValid() ? m_ofCell(cell) : std::nullopt, where);
    else
        answer(m_at(local), where);
}

void WhyKeys::answer(const std::optional<Reason>& reason, const QRect& local) {
    const QRect where(surfaceOf(m_watched)->mapToGlobal(local.topLeft()), local.size());
    if (reason)
        showWhy(*reason, where, m_watched);
    else
        QToolTip::showText(where.bottomLeft(), tr("Nothing was computed here."), m_watched);
}

/// The window's own action, of which one stands for all that answers in it.
void WhyKeys::showInMenu() {
    ToolWindow* const window = toolWindowOf(m_watched);
    auto* const action = window ? window->findChild<QAction*>(ActionName) : nullptr;
    if (!action || action->isVisible())
        return;
    action->setVisible(true);
    connect(action, &QAction::triggered, window, [window] { askInFocus(*window); });
}

bool WhyKeys::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Show && watched == m_watched)
        showInMenu();
    if (event->type() == QEvent::KeyPress && watched == m_watched) {
        // In dialogs, which have no menu; elsewhere the menu hears the key first.
        const auto& key = static_cast<QKeyEvent&>(*event);
        if (key.key() == Qt::Key_F1 && key.modifiers() == Qt::ShiftModifier) {
            askByKey();
            return true;
        }
    }
    const bool isMouse = event->type() == QEvent::MouseButtonPress ||
                         event->type() == QEvent::MouseButtonRelease ||
                         event->type() == QEvent::MouseButtonDblClick;
    if (!isMouse || watched != surfaceOf(m_watched))
        return QObject::eventFilter(watched, event);
    const auto& mouse = static_cast<QMouseEvent&>(*event);
    if (mouse.button() != Qt::LeftButton || mouse.modifiers() != Qt::AltModifier)
        return QObject::eventFilter(watched, event);
    if (event->type() == QEvent::MouseButtonPress)
        askAt(mouse.position().toPoint());
    return true; // nothing is chosen, edited or played by it
}

} // namespace kavela::desktop
