#include "desktop/charts/plot_interaction.h"

#include "desktop/charts/chart_export.h"
#include "desktop/charts/selection_band.h"
#include "desktop/shell/background_work.h"
#include "desktop/shell/disk_worker.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QMenu>
#include <QMessageBox>
#include <QMetaMethod>

#include <cmath>
#include <filesystem>
#include <string>
#include <utility>

namespace kavela::desktop {

namespace {

constexpr double WheelStep = 0.8; ///< of the view, for one notch
constexpr double Notch = 120;     ///< as a wheel counts
constexpr double WheelPan = 0.1;  ///< of the view, for one notch
constexpr double KeyStep = 0.6;
constexpr double KeyPan = 0.1;
constexpr int ManySteps = 10;
constexpr double LeastSelection = 4; ///< pixels: whoever drags back means nothing

} // namespace

PlotInteraction::PlotInteraction(QWidget& widget, InteractiveChart& chart)
    : m_widget(widget), m_chart(chart), m_band(new SelectionBand(&widget)) {
    widget.setMouseTracking(true);
    widget.setFocusPolicy(Qt::StrongFocus);
    widget.installEventFilter(this);
}

/// What the chart has no use for goes on to what is around it: a page scrolls, a dialog closes.
bool PlotInteraction::eventFilter(QObject*, QEvent* event) {
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        press(*static_cast<QMouseEvent*>(event));
        return true;
    case QEvent::MouseMove:
        move(*static_cast<QMouseEvent*>(event));
        return true;
    case QEvent::MouseButtonRelease:
        release(*static_cast<QMouseEvent*>(event));
        return true;
    case QEvent::MouseButtonDblClick:
        doubleClick(*static_cast<QMouseEvent*>(event));
        return true;
    case QEvent::Wheel:
        event->setAccepted(turnWheel(*static_cast<QWheelEvent*>(event)));
        return true;
    case QEvent::NativeGesture:
        event->setAccepted(pinch(*static_cast<QNativeGestureEvent*>(event)));
        return event->isAccepted();
    case QEvent::KeyPress:
        return pressKey(*static_cast<QKeyEvent*>(event));
    case QEvent::ContextMenu:
        showMenu(*static_cast<QContextMenuEvent*>(event));
        return true;
    case QEvent::Leave:
        m_chart.leaveCursor();
        return false;
    case QEvent::Hide:
        endDrag(); // the button may go up over another page
        return false;
    default:
        return false;
    }
}

void PlotInteraction::press(const QMouseEvent& event) {
    if (m_drag != Drag::None || !m_chart.hasContent())
        return;
    m_press = m_last = event.position();
    const bool isLeft = event.button() == Qt::LeftButton;
    const bool isInside = m_chart.plotArea().contains(m_press);
    m_panned = isInside ? AllSides : m_chart.sidesAt(m_press);
    if (isLeft && m_chart.takesDrag(event.modifiers()))
        m_drag = Drag::Series;
    else if (event.button() == Qt::MiddleButton ||
             (isLeft && event.modifiers().testFlag(Qt::ControlModifier)))
        m_drag = Drag::Pan;
    else if (isLeft)
        m_drag = Drag::Press;
    if (m_drag == Drag::Pan)
        m_widget.setCursor(Qt::ClosedHandCursor);
}

void PlotInteraction::move(const QMouseEvent& event) {
    const QPointF before = std::exchange(m_last, event.position());
    const bool isFar = (m_last - m_press).manhattanLength() >= QApplication::startDragDistance();
    if (m_drag == Drag::Press && isFar && m_chart.plotArea().contains(m_press)) {
        m_drag = Drag::Select;
        m_chart.leaveCursor();
    } else if (m_drag == Drag::Press && isFar && m_panned) {
        m_drag = Drag::Pan; // the numbers of an axis are taken hold of
        m_widget.setCursor(Qt::ClosedHandCursor);
    }
    switch (m_drag) {
    case Drag::None:
        m_isKeyCursor = false;
        m_chart.hoverAt(m_last);
        break;
    case Drag::Press:
        break;
    case Drag::Select: {
        const QRectF area = m_chart.selectionOf(m_press, m_last);
        m_band->mark(area, m_chart.selectionText(area));
        break;
    }
    case Drag::Pan:
        m_chart.pan(m_last - before, m_panned);
        break;
    case Drag::Series:
        m_chart.dragSeries(before, m_last);
        break;
    }
}

void PlotInteraction::release(const QMouseEvent& event) {
    const Drag drag = m_drag;
    const QPointF at = event.position();
    endDrag();
    if (drag == Drag::Press && (at - m_press).manhattanLength() < QApplication::startDragDistance())
        click(at);
    if (drag == Drag::Select && (at - m_press).manhattanLength() >= LeastSelection)
        m_chart.select(m_chart.selectionOf(m_press, at));
}

void PlotInteraction::endDrag() {
    const Drag drag = std::exchange(m_drag, Drag::None);
    m_band->hide();
    if (drag == Drag::Pan)
        m_widget.unsetCursor();
    if (drag == Drag::Series)
        m_chart.endSeriesDrag();
}

void PlotInteraction::click(const QPointF& at) {
    if (const auto id = m_chart.nameAt(at))
        m_chart.toggleSeries(*id);
    else
        m_chart.clickAt(at);
}

void PlotInteraction::doubleClick(const QMouseEvent& event) {
    if (event.button() != Qt::LeftButton || !m_chart.hasContent())
        return;
    if (const auto id = m_chart.nameAt(event.position())) {
        m_chart.toggleSeries(*id); // takes back what the first click of the two did
        m_chart.isolateSeries(*id);
        return;
    }
    m_chart.fit();
}

bool PlotInteraction::turnWheel(const QWheelEvent& event) {
    const ChartSides sides = m_chart.sidesAt(event.position());
    if (!m_chart.hasContent() || !sides || event.modifiers().testFlag(Qt::ControlModifier))
        return false;
    QPointF turned = QPointF(event.angleDelta()) / Notch;
    if (event.modifiers().testFlag(Qt::ShiftModifier) && turned.x() == 0)
        turned = {turned.y(), 0};
    if (turned.isNull())
        return false;
    // Two fingers never move straight: what they move more is meant.
    if (std::abs(turned.x()) > std::abs(turned.y()))
        m_chart.pan({turned.x() * WheelPan * m_chart.plotArea().width(), 0}, ChartSide::Across);
    else
        m_chart.zoom(std::pow(WheelStep, turned.y()), event.position(), sides);
    return true;
}

bool PlotInteraction::pinch(const QNativeGestureEvent& event) {
    const ChartSides sides = m_chart.sidesAt(event.position());
    if (event.gestureType() != Qt::ZoomNativeGesture || !m_chart.hasContent() || !sides)
        return false;
    m_chart.zoom(std::exp(-event.value()), event.position(), sides);
    return true;
}

bool PlotInteraction::pressKey(const QKeyEvent& event) {
    if (event.key() == Qt::Key_Escape)
        return escape();
    if (!m_chart.hasContent())
        return false;
    if (event.matches(QKeySequence::Copy)) {
        copyPicture(m_chart);
        return true;
    }
    switch (event.key()) {
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
        return moveByKey(event);
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return actOnName(event.key());
    default:
        break;
    }
    if (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier))
        return false; // of the window
    switch (event.key()) {
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        zoomByKey(KeyStep);
        return true;
    case Qt::Key_Minus:
        zoomByKey(1 / KeyStep);
        return true;
    case Qt::Key_0:
        m_chart.fit();
        return true;
    default:
        return false;
    }
}

bool PlotInteraction::moveByKey(const QKeyEvent& event) {
    const bool isBack = event.key() == Qt::Key_Left || event.key() == Qt::Key_Up;
    const bool isAcross = event.key() == Qt::Key_Left || event.key() == Qt::Key_Right;
    const int step = isBack ? -1 : 1;
    if (event.modifiers().testFlag(Qt::AltModifier))
        return false;
    if (event.modifiers().testFlag(Qt::ControlModifier)) {
        // The view goes where the arrow points, and the data the other way.
        const QSizeF view = m_chart.plotArea().size() * KeyPan * -step;
        m_chart.pan(isAcross ? QPointF(view.width(), 0) : QPointF(0, view.height()), AllSides);
        return true;
    }
    if (!isAcross) {
        m_chart.moveNameFocus(step);
        return m_chart.focusedName().has_value();
    }
    m_isKeyCursor = true;
    m_chart.moveCursor(event.modifiers().testFlag(Qt::ShiftModifier) ? ManySteps * step : step);
    return true;
}

bool PlotInteraction::actOnName(int key) {
    const std::optional<int> focused = m_chart.focusedName();
    if (!focused)
        return false;
    if (key == Qt::Key_Space)
        m_chart.toggleSeries(*focused);
    else
        m_chart.isolateSeries(*focused);
    return true;
}

/// A cursor that follows the mouse does not keep a dialog from closing.
bool PlotInteraction::escape() {
    if (m_drag != Drag::None) {
        endDrag();
        return true;
    }
    if (!std::exchange(m_isKeyCursor, false))
        return false;
    m_chart.leaveCursor();
    return true;
}

void PlotInteraction::zoomByKey(double factor) {
    m_chart.zoom(factor, m_chart.cursorPlace().value_or(m_chart.plotArea().center()), AllSides);
}

void PlotInteraction::showMenu(const QContextMenuEvent& event) {
    if (!m_chart.hasContent())
        return;
    auto* const menu = new QMenu(&m_widget);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const auto withKey = [](const QString& text, const QString& key) {
        return text + QLatin1Char('\t') + key;
    };
    menu->addAction(withKey(tr("Show everything"), "0"), this, [this] { m_chart.fit(); });
    menu->addAction(withKey(tr("Zoom in"), "+"), this, [this] { zoomByKey(KeyStep); });
    menu->addAction(withKey(tr("Zoom out"), "\u2212"), this, [this] { zoomByKey(1 / KeyStep); });
    menu->addAction(tr("Show all series"), this, [this] { m_chart.showAllSeries(); })
        ->setEnabled(m_chart.hidesSeries());
    menu->addSeparator();
    menu->addAction(tr("Copy the picture"), this, [this] { copyPicture(m_chart); });
    menu->addAction(tr("Copy the values"), this, [this] { copyValues(m_chart); });
    menu->addSeparator();
    menu->addAction(tr("Save as picture (PNG)\u2026"), this, [this] { askAndSave("png"); });
    menu->addAction(tr("Save as drawing (SVG)\u2026"), this, [this] { askAndSave("svg"); });
    menu->addAction(tr("Save as table (CSV)\u2026"), this, [this] { askAndSave("csv"); });
    menu->popup(event.globalPos());
}

void PlotInteraction::askAndSave(const QString& kind) {
    const QString path = askChartPath(m_chart.fileName(), kind, m_folder, &m_widget);
    if (path.isEmpty())
        return;
    std::string content;
    const auto fault = faultOf(
        [&] { content = chartFile(m_chart, std::filesystem::path(path.toStdU16String())); });
    if (fault)
        tellNotSaved(path, fault);
    else
        disk::writeAwaited(*this, path.toStdU16String(), std::move(content),
                           [this, path](const std::exception_ptr& written) {
                               if (written)
                                   tellNotSaved(path, written);
                               else
                                   emit saved(path);
                           });
}

void PlotInteraction::tellNotSaved(const QString& path, const std::exception_ptr& fault) {
    if (isSignalConnected(QMetaMethod::fromSignal(&PlotInteraction::savingFailed)))
        emit savingFailed(path, QString::fromStdString(causeOf(fault)));
    else
        QMessageBox::warning(&m_widget, tr("The chart was not saved"),
                             QString::fromStdString(messageOf(fault)));
}

} // namespace kavela::desktop
