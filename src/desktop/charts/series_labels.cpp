#include "desktop/charts/series_labels.h"

#include "desktop/charts/chart_markers.h"
#include "desktop/shell/theme.h"

#include <algorithm>
#include <numeric>

namespace kavela::desktop {

namespace {

constexpr int Gap = 2 * theme::Spacing; ///< from the plot to the labels: room for the leaders
constexpr int SwatchWidth = 3 * theme::SmallSpacing;
constexpr double WidestShare = 0.24; ///< of the plot for the names
constexpr double SwatchSize = 8;
constexpr int RoundingRoom = 2; ///< widths of text are not whole pixels

QFont labelFont(const ChartPlot& plot) {
    return theme::captionFont(plot);
}

} // namespace

std::vector<double> spreadLabels(std::vector<double> wanted, double distance, double top,
                                 double bottom) {
    double least = top;
    for (double& centre : wanted) {
        centre = std::max(centre, least);
        least = centre + distance;
    }
    double most = bottom;
    for (auto centre = wanted.rbegin(); centre != wanted.rend(); ++centre) {
        *centre = std::min(*centre, most);
        most = *centre - distance;
    }
    return wanted;
}

SeriesLabels::SeriesLabels(ChartPlot& plot) : QCPLayerable(&plot, "legend"), m_plot(plot) {
    QCPAxisRect& rect = *plot.axisRect();
    rect.setAutoMargins(QCP::msLeft | QCP::msTop | QCP::msBottom);
    rect.setMinimumMargins({0, theme::Spacing, 0, 0});
    QObject::connect(&plot, &QCustomPlot::beforeReplot, this, [this] { takeRoom(); });
}

void SeriesLabels::takeRoom() {
    const int widest = static_cast<int>(WidestShare * m_plot.viewport().width());
    m_shownNameWidth = std::min(m_nameWidth + RoundingRoom, widest);
    const int values = m_valueWidth > 0 ? m_valueWidth + theme::Spacing : 0;
    QMargins margins = m_plot.axisRect()->margins();
    margins.setRight(m_labels.empty() ? theme::LargeSpacing + m_plot.rightAxisWidth()
                                      : m_plot.rightAxisWidth() + Gap + SwatchWidth +
                                            m_shownNameWidth + values + theme::Spacing);
    m_plot.axisRect()->setMargins(margins);
}

void SeriesLabels::setLabels(std::vector<SeriesLabel> labels) {
    m_labels = std::move(labels);
    const QFontMetrics metrics(labelFont(m_plot));
    m_nameWidth = m_valueWidth = 0;
    for (const SeriesLabel& label : m_labels) {
        m_nameWidth = std::max(m_nameWidth, metrics.horizontalAdvance(label.name));
        m_valueWidth = std::max(m_valueWidth, metrics.horizontalAdvance(label.value));
    }
    const auto hasFocus = [&](const SeriesLabel& label) { return label.id == m_focus; };
    if (std::ranges::none_of(m_labels, hasFocus))
        m_focus.reset();
}

void SeriesLabels::applyDefaultAntialiasingHint(QCPPainter* painter) const {
    painter->setAntialiasing(true);
}

const QCPAxis& SeriesLabels::axisOf(const SeriesLabel& label) const {
    return label.onRight ? *m_plot.yAxis2 : *m_plot.yAxis;
}

/// Where the labels begin.
double SeriesLabels::left() const {
    return m_plot.axisRect()->rect().right() + Gap + m_plot.rightAxisWidth();
}

double SeriesLabels::wantedHeight(const SeriesLabel& label) const {
    const QRectF plot = m_plot.axisRect()->rect();
    if (label.isHidden)
        return plot.bottom();
    if (!label.end)
        return plot.top();
    return std::clamp(axisOf(label).coordToPixel(label.end->y()), plot.top(), plot.bottom());
}

void SeriesLabels::place() {
    m_places.clear();
    const QRectF plot = m_plot.axisRect()->rect();
    if (plot.isEmpty())
        return;
    const double height = QFontMetrics(labelFont(m_plot)).height() + theme::SmallSpacing;
    std::vector<std::size_t> order(m_labels.size());
    std::iota(order.begin(), order.end(), 0U);
    std::ranges::stable_sort(order, {}, [&](std::size_t i) { return wantedHeight(m_labels[i]); });
    // What does not fit is left out: the table still tells which runs are selected.
    const auto fitting = static_cast<std::size_t>(std::max(0.0, plot.height() / height + 1));
    order.resize(std::min(order.size(), fitting));

    std::vector<double> wanted;
    for (const std::size_t i : order)
        wanted.push_back(wantedHeight(m_labels[i]));
    const std::vector<double> centres =
        spreadLabels(std::move(wanted), height, plot.top(), plot.bottom());
    for (std::size_t i = 0; i < order.size(); ++i)
        m_places.push_back({order[i], QRectF(left(), centres[i] - height / 2,
                                             m_plot.viewport().right() - left(), height)});
}

void SeriesLabels::draw(QCPPainter* painter) {
    place();
    painter->setFont(labelFont(m_plot));
    for (const Place& place : m_places) {
        drawLeader(*painter, m_labels[place.label], place.rect);
        drawLabel(*painter, m_labels[place.label], place.rect);
    }
}

void SeriesLabels::drawLeader(QCPPainter& painter, const SeriesLabel& label,
                              const QRectF& rect) const {
    // A line across the numbers of an axis would make neither easier to read.
    if (label.isHidden || !label.end || m_plot.yAxis2->visible())
        return;
    const QRectF plot = m_plot.axisRect()->rect();
    const QPointF end = m_plot.toPixel(label.end->x(), label.end->y());
    if (!plot.adjusted(-1, -1, 1, 1).contains(end))
        return;
    QColor colour = label.style.colour;
    colour.setAlphaF(0.6F);
    painter.setPen(QPen(colour, 1, Qt::DotLine));
    const QPointF knee(plot.right() + theme::SmallSpacing / 2.0, end.y());
    painter.drawLine(end, knee);
    painter.drawLine(knee, {rect.left() - 1, rect.center().y()});
}

void SeriesLabels::drawLabel(QCPPainter& painter, const SeriesLabel& label,
                             const QRectF& rect) const {
    const QPalette palette = m_plot.palette();
    const QColor quiet = theme::quietText(palette);
    const QPointF middle(rect.left() + SwatchSize / 2, rect.center().y());
    const QColor colour = label.isHidden ? quiet : label.style.colour;
    if (label.isBar) {
        const QRectF field(middle.x() - SwatchSize / 2, middle.y() - SwatchSize / 2, SwatchSize,
                           SwatchSize);
        painter.setPen(QPen(colour));
        painter.setBrush(label.isHidden ? QBrush(Qt::NoBrush) : QBrush(colour));
        painter.drawRect(field);
    } else {
        const QCPScatterStyle swatch =
            markerOf({colour, label.style.shape}, SwatchSize, !label.isHidden);
        swatch.applyTo(&painter, QPen(colour));
        swatch.drawShape(&painter, middle);
    }

    QFont font = labelFont(m_plot);
    font.setStrikeOut(label.isHidden);
    font.setUnderline(m_plot.hasFocus() && m_focus == label.id);
    painter.setFont(font);
    painter.setPen(QPen(label.isHidden ? quiet : palette.color(QPalette::WindowText)));
    const QRectF name(rect.left() + SwatchWidth, rect.top(), m_shownNameWidth, rect.height());
    painter.drawText(name, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                     QFontMetrics(font).elidedText(label.name, Qt::ElideRight, m_shownNameWidth));
    font.setStrikeOut(false);
    font.setUnderline(false);
    painter.setFont(font);
    painter.setPen(QPen(quiet));
    const QRectF value(name.right() + theme::Spacing, rect.top(), m_valueWidth, rect.height());
    painter.drawText(value, Qt::AlignRight | Qt::AlignVCenter | Qt::TextSingleLine, label.value);
}

std::optional<int> SeriesLabels::idAt(const QPointF& position) const {
    for (const Place& place : m_places)
        if (place.rect.contains(position))
            return m_labels[place.label].id;
    return std::nullopt;
}

std::optional<QPointF> SeriesLabels::placeOf(int id) const {
    for (const Place& place : m_places)
        if (m_labels[place.label].id == id)
            return place.rect.center();
    return std::nullopt;
}

void SeriesLabels::moveFocus(int steps) {
    if (m_places.empty())
        return;
    const auto current = std::ranges::find_if(
        m_places, [&](const Place& place) { return m_labels[place.label].id == m_focus; });
    const auto count = static_cast<std::ptrdiff_t>(m_places.size());
    std::ptrdiff_t index = steps > 0 ? 0 : count - 1;
    if (current != m_places.end())
        index = std::clamp<std::ptrdiff_t>(current - m_places.begin() + steps, 0, count - 1);
    m_focus = m_labels[m_places[static_cast<std::size_t>(index)].label].id;
}

} // namespace kavela::desktop
