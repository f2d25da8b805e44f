#include "desktop/shell/screen_fit.h"

#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QEvent>
#include <QFileDialog>
#include <QMainWindow>
#include <QMessageBox>
#include <QProgressDialog>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QStyle>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>

namespace kavela::desktop {

namespace {

constexpr int LeastTitleBar = 30; ///< pixels; most systems draw about this
constexpr int LeastBorder = 2;
constexpr const char* Scrolls = "contentScrolls"; ///< property of a window that was made to

/// The frame that a window will have is known only once it is there: before, it is guessed.
QMargins frameOf(const QWidget& window) {
    if (window.windowFlags().testFlag(Qt::FramelessWindowHint))
        return {};
    const QRect inner = window.geometry();
    const QRect outer = window.frameGeometry();
    if (outer != inner)
        return {inner.left() - outer.left(), inner.top() - outer.top(),
                outer.right() - inner.right(), outer.bottom() - inner.bottom()};
    const int title = window.style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, &window);
    return {LeastBorder, std::max(title, LeastTitleBar), LeastBorder, LeastBorder};
}

bool isFittedWindow(const QObject& watched) {
    if (!watched.isWidgetType())
        return false;
    const auto& widget = static_cast<const QWidget&>(watched);
    return widget.isWindow() &&
           (widget.windowType() == Qt::Window || widget.windowType() == Qt::Dialog);
}

/// Dialogs that lay themselves out.
bool isOfTheToolkit(const QWidget& window) {
    return qobject_cast<const QMessageBox*>(&window) || qobject_cast<const QFileDialog*>(&window) ||
           qobject_cast<const QProgressDialog*>(&window);
}

QScrollArea* scrolling(QWidget* content) {
    auto* area = new QScrollArea;
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus); // Tab goes from field to field, as without it
    area->setWidget(content);
    return area;
}

bool holdsButtons(const QLayoutItem& item) {
    if (qobject_cast<const QDialogButtonBox*>(item.widget()))
        return true;
    QLayout* const row = const_cast<QLayoutItem&>(item).layout();
    for (int i = 0; row && i < row->count(); ++i)
        if (qobject_cast<const QPushButton*>(row->itemAt(i)->widget()))
            return true;
    return false;
}

/// What had the focus loses it with its parent, and takes it again once it is seen: otherwise the
/// first keys would go to whatever field comes first.
void giveBackFocus(QWidget* focus) {
    if (focus)
        QTimer::singleShot(0, focus, [focus] { focus->setFocus(); });
}

/// What a dialog holds scrolls; its buttons at the bottom stay in view.
void makeScroll(QDialog& dialog) {
    QLayout* const content = dialog.layout();
    auto* const page = new QWidget;
    QLayoutItem* buttons = nullptr;
    if (auto* const column = qobject_cast<QVBoxLayout*>(content);
        column && column->count() > 1 && holdsButtons(*column->itemAt(column->count() - 1)))
        buttons = column->takeAt(column->count() - 1);
    const QMargins margins = content->contentsMargins();
    QWidget* const focus = dialog.focusWidget();
    content->setSizeConstraint(QLayout::SetDefaultConstraint);
    page->setLayout(content); // with the widgets in it
    auto* const whole = new QVBoxLayout(&dialog);
    whole->setContentsMargins(0, 0, 0, buttons ? margins.bottom() : 0);
    whole->addWidget(scrolling(page), 1);
    if (buttons) {
        auto* const row = new QHBoxLayout;
        row->setContentsMargins(margins.left(), 0, margins.right(), 0);
        if (QLayout* const inner = buttons->layout())
            row->addLayout(inner, 1);
        else
            row->addItem(buttons);
        whole->addLayout(row);
    }
    giveBackFocus(focus);
}

/// Only where a window cannot be made small enough by its own parts.
void makeScroll(QMainWindow& window) {
    QWidget* const focus = window.focusWidget();
    QWidget* const central = window.takeCentralWidget();
    if (central)
        window.setCentralWidget(scrolling(central));
    giveBackFocus(focus);
}

} // namespace

QRect fitted(const QRect& wanted, const QRect& area) {
    QRect inside(wanted.topLeft(), wanted.size().boundedTo(area.size()));
    inside.moveLeft(
        std::clamp(inside.left(), area.left(), area.left() + area.width() - inside.width()));
    inside.moveTop(
        std::clamp(inside.top(), area.top(), area.top() + area.height() - inside.height()));
    return inside;
}

QRect placeBeside(const QRect& wanted, const QList<QRect>& taken, const QRect& area) {
    constexpr int Step = 32; // a title bar
    QRect place = fitted(wanted, area);
    const auto isTaken = [&](const QRect& at) {
        return std::ranges::any_of(taken, [&](const QRect& other) {
            return (other.topLeft() - at.topLeft()).manhattanLength() < Step / 2;
        });
    };
    for (qsizetype tries = 0; tries <= taken.size() && isTaken(place); ++tries) {
        const QRect next = place.translated(Step, Step);
        place = area.contains(next) ? next : QRect(area.topLeft(), place.size());
    }
    return place;
}

void placeBeside(QWidget& window, const QList<QWidget*>& others) {
    if (others.isEmpty() || window.isMaximized() || window.isFullScreen())
        return;
    QList<QRect> taken;
    for (const QWidget* const other : others)
        taken.append(other->geometry());
    const QRect wanted = window.testAttribute(Qt::WA_Moved)
                             ? window.geometry()
                             : QRect(taken.constLast().topLeft(), window.size());
    const QRect area = freeArea(window).marginsRemoved(frameOf(window));
    window.setGeometry(placeBeside(wanted, taken, area));
}

QRect freeArea(const QWidget& window) {
    const QScreen* screen = QGuiApplication::screenAt(window.geometry().center());
    if (!screen || !window.testAttribute(Qt::WA_Moved))
        screen = window.screen();
    return screen->availableGeometry();
}

ScreenFit::ScreenFit(QObject* parent, Area area) : QObject(parent), m_area(std::move(area)) {
    qApp->installEventFilter(this);
}

bool ScreenFit::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::Show:
        if (isFittedWindow(*watched)) {
            fitContent(static_cast<QWidget&>(*watched));
            fitPlace(static_cast<QWidget&>(*watched));
        }
        break;
    case QEvent::LayoutRequest: // before the layout makes a visible window larger than its screen
        if (isFittedWindow(*watched) && static_cast<QWidget*>(watched)->isVisible())
            fitContent(static_cast<QWidget&>(*watched));
        break;
    case QEvent::WindowStateChange: // what is no longer maximised has the size from before
        if (isFittedWindow(*watched) && static_cast<QWidget*>(watched)->isVisible())
            fitPlace(static_cast<QWidget&>(*watched));
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

QRect ScreenFit::areaInside(const QWidget& window) const {
    return m_area(window).marginsRemoved(frameOf(window));
}

void ScreenFit::fitContent(QWidget& window) {
    QLayout* const layout = window.layout();
    if (!layout || isOfTheToolkit(window) || window.property(Scrolls).toBool())
        return;
    const QSize most = areaInside(window).size();
    const QSize least = layout->totalMinimumSize().expandedTo(window.minimumSize());
    if (least.width() <= most.width() && least.height() <= most.height())
        return;
    window.setProperty(Scrolls, true);
    if (auto* const dialog = qobject_cast<QDialog*>(&window))
        makeScroll(*dialog);
    else if (auto* const main = qobject_cast<QMainWindow*>(&window))
        makeScroll(*main);
    window.setMinimumSize(window.minimumSize().boundedTo(most));
}

void ScreenFit::fitPlace(QWidget& window) {
    if (window.isMaximized() || window.isFullScreen())
        return;
    const QRect now = window.geometry();
    const QRect inside = fitted(now, areaInside(window));
    if (inside.size() != now.size())
        window.resize(inside.size());
    // A place that nobody chose is the system's to choose; a dialog stands over its window.
    const bool isPlaced = window.testAttribute(Qt::WA_Moved);
    if ((isPlaced || qobject_cast<QDialog*>(&window)) && inside.topLeft() != now.topLeft()) {
        // Told without the frame: one that is only guessed yet would be left out by move(), and the
        // title bar would be above the screen.
        window.setGeometry(inside);
        window.setAttribute(Qt::WA_Moved, isPlaced);
    }
}

} // namespace kavela::desktop
