#include "desktop/charts/chart_frame.h"

#include "desktop/charts/chart_export.h"
#include "desktop/charts/chart_plot.h"
#include "desktop/charts/plot_interaction.h"
#include "desktop/charts/read_out.h"
#include "desktop/charts/series_labels.h"
#include "desktop/shell/theme.h"

#include <QLabel>
#include <QPaintEngine>
#include <QStackedLayout>

#include <algorithm>

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
      m_readOut(new ReadOut(m_plot)),
      m_interaction(std::make_unique<PlotInteraction>(*m_plot, *this)) {
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
    connect(m_plot, &ChartPlot::themeChanged, this, &ChartFrame::invalidate);
}

// Before the plot, whose last events would reach a chart that is gone.
ChartFrame::~ChartFrame() = default;

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

void ChartFrame::showAllSeries() {
    m_hidden.clear();
    invalidate();
}

void ChartFrame::save(const std::filesystem::path& path) {
    saveChart(*this, path);
}

void ChartFrame::fit() {
    m_plot->fit();
}

bool ChartFrame::hasContent() const {
    return m_message->text().isEmpty();
}

QString ChartFrame::pictureTitle() const {
    return m_plot->title();
}

QString ChartFrame::pictureCaption() const {
    return m_plot->subtitle();
}

QSize ChartFrame::pictureSize() const {
    return m_plot->size().expandedTo({960, 540});
}

void ChartFrame::paintPicture(QPaintDevice& device, const QSize& size) {
    plot().replot(); // what has not been on the screen yet has no layout
    QCPPainter painter;
    painter.begin(&device);
    const bool isDrawing = painter.paintEngine()->type() == QPaintEngine::SVG;
    painter.setModes(isDrawing ? QCPPainter::pmVectorized | QCPPainter::pmNoCaching
                               : QCPPainter::pmNonCosmetic | QCPPainter::pmNoCaching);
    m_plot->toPainter(&painter, size.width(), size.height());
}

QRectF ChartFrame::plotArea() const {
    return m_plot->axisRect()->rect();
}

ChartSides ChartFrame::sidesAt(const QPointF& position) const {
    return m_plot->sidesAt(position);
}

void ChartFrame::zoom(double factor, const QPointF& at, ChartSides sides) {
    m_plot->zoom(factor, at, sides);
}

void ChartFrame::pan(const QPointF& by, ChartSides sides) {
    m_plot->pan(by, sides);
}

QRectF ChartFrame::selectionOf(const QPointF& from, const QPointF& to) const {
    return m_plot->selectionOf(from, to);
}

void ChartFrame::select(const QRectF& area) {
    m_plot->zoomInto(area);
}

/// The plot is drawn first: its coordinates are those of the view that the stop was brought into.
void ChartFrame::moveCursor(int steps) {
    const std::vector<QPointF> places = stops();
    if (places.empty())
        return;
    const auto last = static_cast<std::ptrdiff_t>(places.size()) - 1;
    const std::ptrdiff_t next =
        m_stop ? static_cast<std::ptrdiff_t>(*m_stop) + steps : (steps > 0 ? 0 : last);
    const auto stop = static_cast<std::size_t>(std::clamp<std::ptrdiff_t>(next, 0, last));
    m_plot->bringIntoView(places[stop].x());
    hoverAt(m_plot->toPixel(places[stop].x(), places[stop].y()));
    m_stop = stop;
}

void ChartFrame::leaveCursor() {
    m_stop.reset();
    m_readOut->hide();
}

std::optional<QPointF> ChartFrame::cursorPlace() const {
    return std::nullopt;
}

std::optional<int> ChartFrame::nameAt(const QPointF& position) const {
    return m_labels->idAt(position);
}

std::optional<int> ChartFrame::focusedName() const {
    return m_labels->focusedId();
}

void ChartFrame::moveNameFocus(int steps) {
    m_labels->moveFocus(steps);
    m_plot->replot(QCustomPlot::rpQueuedReplot);
}

void ChartFrame::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    refresh();
}

} // namespace kavela::desktop
