#include "desktop/charts/chart_frame.h"

#include "desktop/charts/read_out.h"
#include "desktop/shell/theme.h"

#include <QKeyEvent>
#include <QLabel>
#include <QStackedLayout>

namespace kavela::desktop {

namespace {

/// Larger than the text around it, but no headline.
QFont messageFont(const QWidget& widget) {
    QFont font = theme::titleFont(widget);
    font.setWeight(QFont::Normal);
    return font;
}

} // namespace

ChartFrame::ChartFrame(QWidget* parent)
    : QWidget(parent),
      m_plot(new ChartPlot(this)),
      m_labels(new SeriesLabels(*m_plot)),
      m_message(new QLabel(this)),
      m_stack(new QStackedLayout(this)),
      m_readOut(new ReadOut(m_plot)) {
    m_message->setAlignment(Qt::AlignCenter);
    m_message->setWordWrap(true);
    m_message->setMargin(theme::PageMargin);
    m_message->setAutoFillBackground(true);
    m_message->setBackgroundRole(QPalette::Base);
    m_message->setForegroundRole(QPalette::PlaceholderText);
    m_stack->addWidget(m_message);
    m_stack->addWidget(m_plot);
    setFocusProxy(m_plot);
    setMinimumSize(240, 120);
    connectPlot();
}

void ChartFrame::connectPlot() {
    connect(m_plot, &ChartPlot::themeChanged, this, &ChartFrame::invalidate);
    connect(m_plot, &ChartPlot::hovered, this, [this](QPointF at) { hoverAt(at); });
    connect(m_plot, &ChartPlot::hoverEnded, this, [this] { leaveCursor(); });
    connect(m_plot, &ChartPlot::clicked, this, [this](QPointF at) {
        if (const auto id = m_labels->idAt(at))
            toggleSeries(*id);
        else
            clickAt(at);
    });
    connect(m_plot, &ChartPlot::doubleClicked, this, [this](QPointF at) {
        const auto id = m_labels->idAt(at);
        if (!id) {
            m_plot->fit();
            return;
        }
        toggleSeries(*id); // takes back what the first click of the two did
        isolateSeries(*id);
    });
    connect(m_plot, &ChartPlot::keyPressed, this, [this](QKeyEvent* event) { handleKey(*event); });
}

void ChartFrame::invalidate() {
    m_isStale = true;
    if (isVisible())
        refresh();
}

void ChartFrame::refresh() {
    if (!m_isStale)
        return;
    m_isStale = false;
    m_plot->clearPlottables();
    leaveCursor();
    m_plot->applyTheme();
    const QString reason = emptyReason();
    m_message->setFont(messageFont(*this));
    m_message->setText(reason);
    m_stack->setCurrentWidget(reason.isEmpty() ? static_cast<QWidget*>(m_plot) : m_message);
    if (reason.isEmpty())
        fill();
    else
        m_labels->setLabels({});
}

QString ChartFrame::emptyMessage() {
    refresh();
    return m_message->text();
}

ChartPlot& ChartFrame::plot() {
    refresh();
    return *m_plot;
}

QString ChartFrame::csv() {
    refresh();
    return m_message->text().isEmpty() ? csvText() : QString();
}

void ChartFrame::toggleSeries(int id) {
    if (m_hidden.erase(id) == 0)
        m_hidden.insert(id);
    invalidate();
}

void ChartFrame::isolateSeries(int id) {
    std::set<int> others;
    for (const SeriesLabel& label : m_labels->labels())
        if (label.id != id)
            others.insert(label.id);
    m_hidden = m_hidden == others ? std::set<int>() : others;
    invalidate();
}

void ChartFrame::moveCursor(int) {}

void ChartFrame::leaveCursor() {
    m_readOut->hide();
}

void ChartFrame::handleKey(QKeyEvent& event) {
    const std::optional<int> focused = m_labels->focusedId();
    switch (event.key()) {
    case Qt::Key_Left:
    case Qt::Key_Right:
        moveCursor(event.key() == Qt::Key_Left ? -1 : 1);
        break;
    case Qt::Key_Up:
    case Qt::Key_Down:
        m_labels->moveFocus(event.key() == Qt::Key_Up ? -1 : 1);
        m_plot->replot(QCustomPlot::rpQueuedReplot);
        break;
    case Qt::Key_Space:
        if (focused)
            toggleSeries(*focused);
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (focused)
            isolateSeries(*focused);
        break;
    case Qt::Key_Escape:
        leaveCursor();
        break;
    default:
        return;
    }
    event.accept();
}

void ChartFrame::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    refresh();
}

} // namespace kavela::desktop
