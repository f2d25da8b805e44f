#include "desktop/shell/focus_edge.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QEvent>
#include <QFrame>
#include <QPainter>

namespace kavela::desktop {

namespace {

/// In a painted widget it is inside of the picture; around lists, tables and texts it takes the
/// place of the frame that they have.
constexpr int PaintedEdge = 2;
constexpr int FrameEdge = 1;

bool isFramed(const QWidget& widget) {
    const auto* const area = qobject_cast<const QAbstractScrollArea*>(&widget);
    return area && area->frameWidth() > 0 && !area->window()->windowFlags().testFlag(Qt::Popup);
}

/// Lies over the edge of its parent and lets the mouse through.
class DrawnEdge : public QWidget {
public:
    explicit DrawnEdge(QWidget* parent)
        : QWidget(parent), m_width(isPainted(*parent) ? PaintedEdge : FrameEdge) {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setAttribute(Qt::WA_NoSystemBackground);
        setFocusPolicy(Qt::NoFocus);
        setGeometry(parent->rect());
    }

protected:
    /// What is inside of it scrolls as if nothing lay over it.
    void resizeEvent(QResizeEvent*) override {
        const QRect all = rect();
        setMask(QRegion(all) - all.adjusted(m_width, m_width, -m_width, -m_width));
    }

    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.fillRect(rect(), palette().color(QPalette::Highlight));
    }

private:
    int m_width;
};

} // namespace

bool isPainted(const QWidget& widget) {
    const QMetaObject* base = widget.metaObject();
    if (!QByteArrayView(base->className()).startsWith("kavela::") || widget.layout())
        return false;
    while (QByteArrayView(base->className()).startsWith("kavela::"))
        base = base->superClass();
    return base == &QWidget::staticMetaObject || base == &QFrame::staticMetaObject ||
           QByteArrayView(base->className()) == "QCustomPlot";
}

FocusEdge::FocusEdge(QObject* parent) : QObject(parent) {
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget* /*before*/, QWidget* now) { follow(now); });
}

FocusEdge::~FocusEdge() {
    delete m_edge;
}

void FocusEdge::follow(QWidget* focus) {
    if (m_edge && m_edge->parentWidget() != focus) {
        m_edge->parentWidget()->removeEventFilter(this);
        delete m_edge;
    }
    if (!focus || m_edge || focus->focusPolicy() == Qt::NoFocus ||
        !(isPainted(*focus) || isFramed(*focus)))
        return;
    m_edge = new DrawnEdge(focus);
    focus->installEventFilter(this);
    m_edge->show();
    m_edge->raise();
}

bool FocusEdge::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize && m_edge && watched == m_edge->parentWidget())
        m_edge->setGeometry(m_edge->parentWidget()->rect());
    return QObject::eventFilter(watched, event);
}

} // namespace kavela::desktop
