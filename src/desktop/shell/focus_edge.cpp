#include "desktop/shell/focus_edge.h"

#include <QApplication>
#include <QEvent>
#include <QFrame>
#include <QPainter>

namespace kavela::desktop {

namespace {

constexpr int EdgeWidth = 2;

/// Lies over all of its parent and lets the mouse through.
class DrawnEdge : public QWidget {
public:
    explicit DrawnEdge(QWidget* parent) : QWidget(parent) {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setAttribute(Qt::WA_NoSystemBackground);
        setFocusPolicy(Qt::NoFocus);
        setGeometry(parent->rect());
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.setPen(QPen(palette().color(QPalette::Highlight), EdgeWidth));
        constexpr double Half = EdgeWidth / 2.0;
        painter.drawRect(QRectF(rect()).adjusted(Half, Half, -Half, -Half));
    }
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
    if (!focus || m_edge || focus->focusPolicy() == Qt::NoFocus || !isPainted(*focus))
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
