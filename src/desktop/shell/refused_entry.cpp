#include "desktop/shell/refused_entry.h"

#include "desktop/charts/chart_colours.h"
#include "desktop/shell/theme.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QScreen>
#include <QScrollArea>
#include <QStackedWidget>
#include <QTabWidget>

#include <algorithm>
#include <utility>

namespace kavela::desktop {

namespace {

constexpr int FrameWidth = 2;
constexpr int WidestBubble = 380;

/// The frame lies over its field, since the fields of a platform's style cannot be given one. The
/// bubble is a window like a tool tip: small dialogs and cells at an edge would cut it off.
class RefusalMark : public QWidget {
public:
    explicit RefusalMark(QWidget& field)
        : QWidget(&field), m_field(field), m_bubble(new QLabel(&field, Qt::ToolTip)) {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        m_bubble->setObjectName("refusal");
        m_bubble->setAttribute(Qt::WA_ShowWithoutActivating);
        m_bubble->setTextFormat(Qt::PlainText);
        m_bubble->setWordWrap(true);
        m_bubble->setMargin(theme::Spacing);
        m_bubble->setFrameShape(QFrame::Box);
        field.installEventFilter(this);
        field.window()->installEventFilter(this);
        if (auto* const edit = lineEdit()) {
            connect(edit, &QLineEdit::textEdited, this, [this] { m_isTyping = true; });
            connect(edit, &QLineEdit::textChanged, this, &RefusalMark::noteText);
        }
        setGeometry(field.rect());
        show();
        raise();
    }

    void tell(const QString& reason, std::function<void()> giveUp) {
        m_giveUp = std::move(giveUp);
        m_bubble->setText(reason);
        m_field.setAccessibleDescription(reason);
        QPalette colours = m_bubble->palette();
        colours.setColor(QPalette::Window, theme::surface(m_field.palette()));
        colours.setColor(QPalette::WindowText, missedColour(m_field.palette()));
        m_bubble->setPalette(colours);
        // What takes the focus away is not done yet; the field has it back right after that.
        QMetaObject::invokeMethod(this, &RefusalMark::bringBack, Qt::QueuedConnection);
        showBubble();
    }

    void bringBack() {
        if (m_isGone || QApplication::activePopupWidget() || !m_field.isVisible())
            return;
        if (!m_field.hasFocus())
            m_field.setFocus();
        showBubble();
    }

    void remove() {
        if (std::exchange(m_isGone, true))
            return;
        m_field.setAccessibleDescription({});
        m_bubble->deleteLater();
        m_bubble->hide();
        hide();
        deleteLater();
    }

    /// Whether the field still holds what was refused. A box may have been given a number meanwhile
    /// without telling anyone.
    [[nodiscard]] bool stands() const {
        const auto* const box = qobject_cast<const QAbstractSpinBox*>(&m_field);
        return !m_isGone && !(box && box->hasAcceptableInput());
    }

    [[nodiscard]] bool isGone() const { return m_isGone; }
    [[nodiscard]] QWidget& field() const { return m_field; }

    bool eventFilter(QObject* object, QEvent* event) override {
        if (m_isGone)
            return false;
        if (object != &m_field) {
            if (event->type() == QEvent::Move && m_bubble->isVisible())
                showBubble();
            else if (event->type() == QEvent::WindowDeactivate)
                m_bubble->hide();
            return false;
        }
        switch (event->type()) {
        case QEvent::ShortcutOverride:
            event->setAccepted(event->isAccepted() || givesUp(*event));
            return false;
        case QEvent::KeyPress:
            return keyPressed(*event);
        case QEvent::Move:
        case QEvent::Resize:
            setGeometry(m_field.rect());
            if (m_bubble->isVisible())
                showBubble();
            return false;
        case QEvent::Hide:
            m_bubble->hide();
            if (m_field.isHidden())
                remove(); // a cell's editor was closed, and its text is gone
            return false;
        default:
            return false;
        }
    }

protected:
    void paintEvent(QPaintEvent*) override {
        if (!stands())
            return;
        QPainter painter(this);
        painter.setPen(QPen(missedColour(palette()), FrameWidth));
        const int inset = FrameWidth / 2;
        painter.drawRect(rect().adjusted(inset, inset, -inset, -inset));
    }

private:
    [[nodiscard]] QLineEdit* lineEdit() const {
        auto* const edit = qobject_cast<QLineEdit*>(&m_field);
        return edit ? edit : m_field.findChild<QLineEdit*>();
    }

    /// A text that the program shows in the field takes the place of the refused one.
    void noteText() {
        if (!std::exchange(m_isTyping, false))
            remove();
    }

    [[nodiscard]] bool givesUp(const QEvent& event) const {
        return m_giveUp && static_cast<const QKeyEvent&>(event).key() == Qt::Key_Escape;
    }

    bool keyPressed(const QEvent& event) {
        m_bubble->hide();
        if (!givesUp(event))
            return false;
        const std::function<void()> giveUp = m_giveUp;
        remove();
        giveUp();
        return true;
    }

    void showBubble() {
        if (!m_field.isVisible() || m_bubble->text().isEmpty())
            return;
        const int longest = m_bubble->fontMetrics().horizontalAdvance(m_bubble->text()) +
                            2 * (m_bubble->margin() + m_bubble->frameWidth() + 1);
        const int width = std::min(longest, WidestBubble);
        m_bubble->resize(width, m_bubble->heightForWidth(width));
        const QRect field(m_field.mapToGlobal(QPoint()), m_field.size());
        const QRect screen = m_field.screen()->availableGeometry();
        QPoint place = field.bottomLeft() + QPoint(0, theme::SmallSpacing);
        if (place.y() + m_bubble->height() > screen.bottom())
            place.setY(field.top() - theme::SmallSpacing - m_bubble->height());
        place.setX(std::max(screen.left(), std::min(place.x(), screen.right() - width)));
        m_bubble->move(place);
        m_bubble->show();
    }

    QWidget& m_field;
    QLabel* m_bubble;
    std::function<void()> m_giveUp;
    bool m_isTyping = false;
    bool m_isGone = false;
};

RefusalMark* markOf(const QWidget& field) {
    for (QObject* const child : field.children())
        if (auto* const mark = dynamic_cast<RefusalMark*>(child); mark && !mark->isGone())
            return mark;
    return nullptr;
}

/// The pages that hide a widget come to the front.
void uncover(QWidget& widget) {
    QWidget* page = &widget;
    for (QWidget* above = widget.parentWidget(); above && !page->isWindow();
         page = std::exchange(above, above->parentWidget())) {
        if (auto* const area = qobject_cast<QScrollArea*>(above))
            area->ensureWidgetVisible(&widget);
        auto* const tabs = qobject_cast<QTabWidget*>(above->parentWidget());
        auto* const stack = qobject_cast<QStackedWidget*>(above);
        if (stack && tabs)
            tabs->setCurrentWidget(page);
        else if (stack)
            stack->setCurrentWidget(page);
    }
}

} // namespace

void refuseEntry(QWidget& field, const QString& reason, std::function<void()> giveUp) {
    RefusalMark* mark = markOf(field);
    if (!mark)
        mark = new RefusalMark(field);
    mark->tell(reason, std::move(giveUp));
}

void acceptEntry(QWidget& field) {
    if (RefusalMark* const mark = markOf(field))
        mark->remove();
}

bool isRefused(const QWidget& field) {
    const RefusalMark* const mark = markOf(field);
    return mark && mark->stands();
}

bool showRefusedEntry(const QWidget& window, const QWidget* besides) {
    for (QWidget* const child : window.findChildren<QWidget*>())
        if (auto* const mark = dynamic_cast<RefusalMark*>(child);
            mark && mark->stands() && !(besides && besides->isAncestorOf(mark))) {
            uncover(mark->field());
            mark->bringBack();
            return true;
        }
    return false;
}

} // namespace kavela::desktop
