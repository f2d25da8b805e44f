#include "desktop/losses/waterfall_chart.h"

#include "desktop/charts/chart_colours.h"
#include "desktop/charts/chart_csv.h"
#include "desktop/charts/chart_plot.h"
#include "desktop/charts/read_out.h"
#include "desktop/charts/series_labels.h"
#include "desktop/losses/loss_colours.h"
#include "desktop/losses/loss_texts.h"
#include "desktop/shell/shown_number.h"
#include "desktop/shell/theme.h"

#include <QKeyEvent>

#include <algorithm>
#include <cmath>

namespace kavela::desktop {

namespace {

constexpr double WaterfallBarWidth = 0.7;  ///< of the room of a bar
constexpr double WaterfallHeadroom = 0.15; ///< of the height: the values stand there
constexpr double LeastWaterfall = 0.5;     ///< seconds: a hundredth is no abyss
constexpr double LeastBarHeight = 2;       ///< pixels: what is next to nothing can be seen

double seconds(std::int64_t hundredths) {
    return static_cast<double>(hundredths) / 100;
}

bool isTotal(const WaterfallBar& bar) {
    return bar.part == WaterfallPart::Reference || bar.part == WaterfallPart::Own;
}

} // namespace

WaterfallChart::WaterfallChart(QWidget* parent) : ChartFrame(parent) {
    new PaintedLayer(canvas(), "main", [this](QCPPainter& painter) { paintBars(painter); });
}

void WaterfallChart::show(const LossState& state) {
    m_bars = state.hasRun() ? waterfallOf(state.losses()) : std::vector<WaterfallBar>();
    std::erase_if(m_bars, [](const WaterfallBar& bar) {
        return bar.from == bar.to &&
               (bar.part == WaterfallPart::Penalties || bar.part == WaterfallPart::Timing);
    });
    m_stretches = state.losses().stretches;
    m_scale = state.scale();
    m_empty = nothingToShow(state);
    if (m_empty.isEmpty() && m_bars.empty())
        m_empty = tr("One of the two has no total, so there is no sum. The sections that both "
                     "have stand in the table and in the other charts.");
    if (m_empty.isEmpty()) {
        m_title = gapSentence(state);
        m_subtitle = waterfallSentence(state);
        m_reference = referenceTitle(state);
        m_own = factText(state.facts(), state.row().crew);
    }
    m_section = state.section();
    setAccessibleName(tr("Sections, penalties and timing from total to total"));
    leaveCursor();
    fit();
    invalidate();
}

void WaterfallChart::markSection(std::size_t section) {
    m_section = section;
    canvas().replot(QCustomPlot::rpQueuedReplot);
}

QString WaterfallChart::titleOf(std::size_t bar) const {
    switch (m_bars[bar].part) {
    case WaterfallPart::Reference:
        return m_reference;
    case WaterfallPart::Stretch:
        return stretchTitle(m_stretches[m_bars[bar].stretch]);
    case WaterfallPart::Penalties:
        return tr("penalties");
    case WaterfallPart::Timing:
        return tr("timing");
    case WaterfallPart::Own:
        return m_own;
    }
    return {};
}

QString WaterfallChart::valueOf(std::size_t bar) const {
    const WaterfallBar& shown = m_bars[bar];
    return isTotal(shown) ? shownHundredths(seconds(shown.to)) : shownSigned(shown.to - shown.from);
}

void WaterfallChart::fill() {
    canvas().setCaptions(m_title, m_subtitle);
    const auto ticker = QSharedPointer<QCPAxisTickerText>::create();
    const double room =
        canvas().axisRect()->width() / std::max(1.0, static_cast<double>(m_bars.size()));
    const QFontMetrics metrics(canvas().xAxis->tickLabelFont());
    for (std::size_t bar = 0; bar < m_bars.size(); ++bar) {
        // Totals stand at the ends, where there is room for longer names.
        const double width = isTotal(m_bars[bar]) ? std::max(room, 90.0) : room;
        ticker->addTick(static_cast<double>(bar),
                        metrics.elidedText(titleOf(bar), Qt::ElideRight,
                                           static_cast<int>(std::max(width, 30.0))));
    }
    canvas().xAxis->setTicker(ticker);
    canvas().xAxis->grid()->setPen(Qt::NoPen);
    canvas().yAxis->setLabel(tr("Seconds"));
    seriesLabels().setLabels({});
    setLimits();
    canvas().replot(QCustomPlot::rpQueuedReplot);
}

/// The totals begin below the picture: what is between them is what matters.
void WaterfallChart::setLimits() {
    if (m_bars.empty())
        return;
    std::int64_t least = m_bars.front().to;
    std::int64_t most = least;
    for (const WaterfallBar& bar : m_bars) {
        least = std::min(least, isTotal(bar) ? bar.to : std::min(bar.from, bar.to));
        most = std::max(most, isTotal(bar) ? bar.to : std::max(bar.from, bar.to));
    }
    const double span = std::max(seconds(most - least), LeastWaterfall);
    canvas().setLimits(
        {-0.6, static_cast<double>(m_bars.size()) - 0.4},
        {seconds(least) - span * 2 * WaterfallHeadroom, seconds(most) + span * WaterfallHeadroom});
}

QRectF WaterfallChart::rectOf(std::size_t bar) const {
    const WaterfallBar& shown = m_bars[bar];
    const double middle = static_cast<double>(bar);
    const double bottom = isTotal(shown) ? canvas().yAxis->range().lower : seconds(shown.from);
    const QPointF one = canvas().toPixel(middle - WaterfallBarWidth / 2, bottom);
    const QPointF other = canvas().toPixel(middle + WaterfallBarWidth / 2, seconds(shown.to));
    QRectF rect = QRectF(one, other).normalized();
    if (rect.height() < LeastBarHeight)
        rect.adjust(0, -LeastBarHeight / 2, 0, LeastBarHeight / 2);
    return rect;
}

QColor WaterfallChart::colourOf(const WaterfallBar& bar) const {
    if (isTotal(bar))
        return backgroundRuns(palette());
    if (bar.part == WaterfallPart::Timing)
        return theme::quietText(palette());
    return lossColour(static_cast<double>(bar.to - bar.from), m_scale, palette());
}

bool WaterfallChart::isMarked(const WaterfallBar& bar) const {
    return m_section > 0 && bar.part == WaterfallPart::Stretch &&
           m_stretches[bar.stretch].holds(m_section);
}

void WaterfallChart::paintBars(QCPPainter& painter) const {
    if (!m_empty.isEmpty())
        return;
    painter.save();
    painter.setClipRect(canvas().axisRect()->rect());
    for (std::size_t bar = 0; bar < m_bars.size(); ++bar)
        paintBar(painter, bar);
    painter.restore();
}

/// A line leads from the end of each bar to where the next one begins.
void WaterfallChart::paintBar(QCPPainter& painter, std::size_t bar) const {
    const WaterfallBar& shown = m_bars[bar];
    const QRectF rect = rectOf(bar);
    const bool isPointedAt = m_cursor == bar;
    painter.setPen(isMarked(shown) || isPointedAt
                       ? QPen(palette().color(QPalette::WindowText), isMarked(shown) ? 2 : 1)
                       : QPen(Qt::NoPen));
    painter.setBrush(colourOf(shown));
    painter.drawRect(rect);
    if (bar + 1 < m_bars.size()) {
        const double y = canvas().yAxis->coordToPixel(seconds(shown.to));
        painter.setPen(QPen(theme::quietText(palette()), 1, Qt::DotLine));
        painter.drawLine(QPointF(rect.right(), y), QPointF(rectOf(bar + 1).left(), y));
    }
    painter.setPen(palette().color(QPalette::WindowText));
    painter.setFont(canvas().font());
    const QFontMetricsF metrics(canvas().font());
    const QString value = valueOf(bar);
    if (const double room =
            std::abs(canvas().xAxis->coordToPixel(1) - canvas().xAxis->coordToPixel(0));
        metrics.horizontalAdvance(value) > room && !isMarked(shown) && !isPointedAt)
        return; // too narrow: the read-out tells it
    painter.drawText(
        QRectF(rect.center().x() - 100, rect.top() - metrics.height() - 2, 200, metrics.height()),
        Qt::AlignCenter, value);
}

std::optional<std::size_t> WaterfallChart::barAt(const QPoint& position) const {
    if (position.x() < 0) {
        const auto marked =
            std::ranges::find_if(m_bars, [this](const WaterfallBar& bar) { return isMarked(bar); });
        return m_cursor || marked == m_bars.end()
                   ? m_cursor
                   : std::optional(static_cast<std::size_t>(marked - m_bars.begin()));
    }
    if (!plotArea().contains(position))
        return std::nullopt;
    const double bar = std::round(canvas().xAxis->pixelToCoord(position.x()));
    return bar >= 0 && bar < static_cast<double>(m_bars.size())
               ? std::optional(static_cast<std::size_t>(bar))
               : std::nullopt;
}

std::vector<QPointF> WaterfallChart::stops() const {
    std::vector<QPointF> places;
    for (std::size_t bar = 0; bar < m_bars.size(); ++bar)
        places.emplace_back(static_cast<double>(bar), canvas().yAxis->range().center());
    return places;
}

void WaterfallChart::hoverAt(const QPointF& position) {
    const auto bar = barAt(position.toPoint());
    if (!bar) {
        leaveCursor();
        return;
    }
    if (m_cursor != bar) {
        m_cursor = bar;
        canvas().replot(QCustomPlot::rpQueuedReplot);
    }
    QStringList rows{readOutRow({tr("Shown"), valueOf(*bar)})};
    if (!isTotal(m_bars[*bar]))
        rows << readOutRow({tr("Up to here"), shownSigned(m_bars[*bar].to - m_bars.front().to)});
    readOut().showAt(position, readOutText(titleOf(*bar), rows));
}

void WaterfallChart::leaveCursor() {
    ChartFrame::leaveCursor();
    if (!m_cursor)
        return;
    m_cursor.reset();
    canvas().replot(QCustomPlot::rpQueuedReplot);
}

std::optional<QPointF> WaterfallChart::cursorPlace() const {
    return m_cursor ? std::optional(rectOf(*m_cursor).center()) : std::nullopt;
}

void WaterfallChart::clickAt(const QPointF& position) {
    if (const auto bar = barAt(position.toPoint()))
        activate(*bar);
}

void WaterfallChart::activate(std::size_t bar) {
    if (m_bars[bar].part == WaterfallPart::Stretch)
        emit stretchActivated(m_bars[bar].stretch);
}

void WaterfallChart::keyPressEvent(QKeyEvent* event) {
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const auto bar = barAt({-1, -1});
    if (isEnter && hasContent() && bar && *bar < m_bars.size())
        activate(*bar);
    else
        ChartFrame::keyPressEvent(event);
}

QString WaterfallChart::csvText() const {
    QString text = csvLine({tr("Part"), tr("Seconds"), tr("From"), tr("To")});
    const QCPRange shown = canvas().xAxis->range();
    for (std::size_t bar = 0; bar < m_bars.size(); ++bar)
        if (shown.contains(static_cast<double>(bar)))
            text +=
                csvLine({titleOf(bar), csvNumber(seconds(m_bars[bar].to - m_bars[bar].from)),
                         csvNumber(seconds(m_bars[bar].from)), csvNumber(seconds(m_bars[bar].to))});
    return text;
}

} // namespace kavela::desktop
