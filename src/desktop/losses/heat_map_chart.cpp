#include "desktop/losses/heat_map_chart.h"

#include "desktop/charts/chart_csv.h"
#include "desktop/charts/chart_plot.h"
#include "desktop/charts/read_out.h"
#include "desktop/charts/series_labels.h"
#include "desktop/losses/loss_texts.h"
#include "desktop/losses/row_ticker.h"
#include "desktop/race/cell_colours.h"
#include "desktop/shell/growth.h"
#include "desktop/shell/theme.h"

#include <algorithm>
#include <cmath>

namespace kavela::desktop {

namespace {

// Pixels.
constexpr int WidestName = 170;
/// A row that is lower cannot be read: the cursor tells what stands in it.
constexpr int LeastText = 11;

} // namespace

HeatMapChart::HeatMapChart(QWidget* parent)
    : ChartFrame(parent),
      m_sections(showSections(canvas())),
      m_rows(QSharedPointer<RowTicker>::create(*canvas().axisRect())) {
    canvas().yAxis->setRangeReversed(true);
    canvas().yAxis->setTicker(m_rows);
    new PaintedLayer(canvas(), "main", [this](QCPPainter& painter) { paintCells(painter); });
}

void HeatMapChart::show(const LossState& state) {
    m_empty = nothingToShow(state);
    m_map = {};
    m_names.clear();
    if (m_empty.isEmpty()) {
        m_map = heatMapOf(state.facts(), state.group());
        for (const std::size_t run : m_map.runs) {
            const auto rank = state.rankOf(run);
            m_names << (rank ? QString::number(*rank) + ' ' : QStringLiteral("– ")) +
                           factText(state.facts(), state.facts().runs()[run].crew);
        }
        m_title = tr("Percent lost on %1, by section").arg(referenceTitle(state));
        m_subtitle = heatSentence(state, m_map);
        m_run = state.run();
        m_reference = state.losses().referenceRun;
    }
    m_bands = heatBandsOf(m_map);
    m_scale = state.scale();
    m_section = state.section();
    setAccessibleName(tr("Percent lost by run and section"));
    leaveCursor();
    invalidate();
}

void HeatMapChart::markSection(std::size_t section) {
    m_section = section;
    canvas().replot(QCustomPlot::rpQueuedReplot);
}

QString HeatMapChart::textOf(std::size_t row, std::size_t section) const {
    const auto percent = m_map.at(row, section);
    QString text = percent ? shownPercent(*percent) : QStringLiteral("–");
    return text.remove(QStringLiteral(" %"));
}

std::optional<QColor> HeatMapChart::tintOf(std::size_t row, std::size_t section) const {
    return bandTint(m_bands[row * m_map.sections + section], m_scale);
}

void HeatMapChart::fill() {
    canvas().setCaptions(m_title, m_subtitle);
    QStringList titles;
    for (std::size_t section = 0; section < m_map.sections; ++section)
        titles << 'S' + QString::number(section + 1);
    m_sections->setTitles(titles);
    m_rows->setNames(m_names, canvas().yAxis->tickLabelFont(), grown(*this, WidestName));
    canvas().yAxis->grid()->setPen(Qt::NoPen);
    canvas().xAxis->grid()->setPen(Qt::NoPen);
    seriesLabels().setLabels({});
    canvas().setLimits({0, std::max(1.0, static_cast<double>(m_map.sections))},
                       {0, std::max(1.0, static_cast<double>(m_map.runs.size()))});
    canvas().replot(QCustomPlot::rpQueuedReplot);
}

QRectF HeatMapChart::rectOf(std::size_t row, std::size_t section) const {
    const auto left = static_cast<double>(section);
    const auto top = static_cast<double>(row);
    return QRectF(canvas().toPixel(left, top), canvas().toPixel(left + 1, top + 1)).normalized();
}

void HeatMapChart::paintCells(QCPPainter& painter) const {
    if (!m_empty.isEmpty())
        return;
    painter.save();
    painter.setClipRect(canvas().axisRect()->rect());
    for (std::size_t row = 0; row < m_map.runs.size(); ++row)
        for (std::size_t section = 0; section < m_map.sections; ++section)
            paintCell(painter, row, section);
    const QColor line = palette().color(QPalette::WindowText);
    painter.setBrush(Qt::NoBrush);
    for (std::size_t row = 0; row < m_map.runs.size() && m_map.sections > 0; ++row)
        if (m_map.runs[row] == m_run) {
            painter.setPen(QPen(line, 2));
            painter.drawRect(rectOf(row, 0).united(rectOf(row, m_map.sections - 1)));
        }
    if (m_section > 0 && m_section <= m_map.sections) {
        painter.setPen(QPen(line, 1, Qt::DashLine));
        painter.drawRect(
            rectOf(0, m_section - 1).united(rectOf(m_map.runs.size() - 1, m_section - 1)));
    }
    if (m_cursor) {
        painter.setPen(QPen(line, 2, Qt::DotLine));
        painter.drawRect(rectOf(m_cursor->row, m_cursor->section));
    }
    painter.restore();
}

void HeatMapChart::paintCell(QCPPainter& painter, std::size_t row, std::size_t section) const {
    const QRectF rect = rectOf(row, section);
    const auto tint = tintOf(row, section);
    if (tint)
        painter.fillRect(rect.adjusted(0.5, 0.5, -0.5, -0.5), *tint);
    QFont font = canvas().font();
    const QFontMetrics metrics(font);
    if (rect.height() < metrics.height())
        font.setPixelSize(std::max(1, static_cast<int>(rect.height() * 0.8)));
    const QString text = textOf(row, section);
    if (rect.height() < LeastText || QFontMetrics(font).horizontalAdvance(text) > rect.width())
        return;
    painter.setFont(font);
    painter.setPen(tint ? QColor(Qt::black) : theme::quietText(palette()));
    painter.drawText(rect, Qt::AlignCenter, text);
}

std::optional<HeatMapChart::Cursor> HeatMapChart::cellAt(const QPointF& position) const {
    if (!plotArea().contains(position))
        return std::nullopt;
    const double row = std::floor(canvas().yAxis->pixelToCoord(position.y()));
    const double section = std::floor(canvas().xAxis->pixelToCoord(position.x()));
    const bool isCell = row >= 0 && section >= 0 && row < static_cast<double>(m_map.runs.size()) &&
                        section < static_cast<double>(m_map.sections);
    return isCell ? std::optional(
                        Cursor{static_cast<std::size_t>(row), static_cast<std::size_t>(section)})
                  : std::nullopt;
}

HeatMapChart::Cursor HeatMapChart::marked() const {
    const auto row = std::ranges::find(m_map.runs, m_run) - m_map.runs.begin();
    return {static_cast<std::size_t>(row), m_section > 0 ? m_section - 1 : 0};
}

std::optional<HeatMapChart::Place> HeatMapChart::placeAt(const QPoint& position) const {
    if (!m_empty.isEmpty() || m_map.runs.empty())
        return std::nullopt;
    const auto cell =
        position.x() >= 0 ? cellAt(position) : std::optional(m_cursor.value_or(marked()));
    return cell ? std::optional(Place{m_map.runs[cell->row], cell->section + 1}) : std::nullopt;
}

QString HeatMapChart::readOutOf(const Cursor& cursor) const {
    QStringList rows{readOutRow({tr("S%1").arg(cursor.section + 1),
                                 textOf(cursor.row, cursor.section) + QStringLiteral(" %")})};
    if (m_map.runs[cursor.row] == m_reference)
        rows << readOutRow({tr("is the reference")});
    return readOutText(m_names[static_cast<qsizetype>(cursor.row)], rows);
}

void HeatMapChart::setCursor(std::optional<Cursor> cursor) {
    m_cursor = cursor;
    canvas().replot(QCustomPlot::rpQueuedReplot);
}

void HeatMapChart::hoverAt(const QPointF& position) {
    const auto cell = cellAt(position);
    if (!cell) {
        leaveCursor();
        return;
    }
    setCursor(cell);
    readOut().showAt(position, readOutOf(*cell));
}

void HeatMapChart::leaveCursor() {
    ChartFrame::leaveCursor();
    if (m_cursor)
        setCursor(std::nullopt);
}

std::optional<QPointF> HeatMapChart::cursorPlace() const {
    return m_cursor ? std::optional(rectOf(m_cursor->row, m_cursor->section).center())
                    : std::nullopt;
}

void HeatMapChart::moveTo(std::ptrdiff_t row, std::ptrdiff_t section) {
    const auto inside = [](std::ptrdiff_t place, std::size_t count) {
        return static_cast<std::size_t>(
            std::clamp<std::ptrdiff_t>(place, 0, static_cast<std::ptrdiff_t>(count) - 1));
    };
    if (m_map.runs.empty() || m_map.sections == 0)
        return;
    setCursor(Cursor{inside(row, m_map.runs.size()), inside(section, m_map.sections)});
    canvas().bringIntoView(static_cast<double>(m_cursor->section) + 0.5);
    readOut().showAt(rectOf(m_cursor->row, m_cursor->section).center(), readOutOf(*m_cursor));
}

void HeatMapChart::moveCursor(int steps) {
    const Cursor from = m_cursor.value_or(marked());
    moveTo(static_cast<std::ptrdiff_t>(from.row),
           static_cast<std::ptrdiff_t>(from.section) + (m_cursor ? steps : 0));
}

void HeatMapChart::moveNameFocus(int steps) {
    const Cursor from = m_cursor.value_or(marked());
    moveTo(static_cast<std::ptrdiff_t>(from.row) + (m_cursor ? steps : 0),
           static_cast<std::ptrdiff_t>(from.section));
}

std::optional<int> HeatMapChart::focusedName() const {
    return m_cursor ? std::optional(static_cast<int>(m_cursor->row)) : std::nullopt;
}

std::optional<int> HeatMapChart::nameAt(const QPointF& position) const {
    const QRectF plot = plotArea();
    const double row = std::floor(canvas().yAxis->pixelToCoord(position.y()));
    const bool isName = position.x() < plot.left() && position.y() >= plot.top() &&
                        position.y() <= plot.bottom() && row >= 0 &&
                        row < static_cast<double>(m_map.runs.size());
    return isName ? std::optional(static_cast<int>(row)) : std::nullopt;
}

void HeatMapChart::toggleSeries(int id) {
    if (const auto row = static_cast<std::size_t>(id); row < m_map.runs.size())
        emit referenceRequested(m_map.runs[row]);
}

void HeatMapChart::isolateSeries(int id) {
    const auto row = static_cast<std::size_t>(id);
    if (row >= m_map.runs.size())
        return;
    const Cursor cursor = m_cursor.value_or(marked());
    emit cellActivated(m_map.runs[row], cursor.section + 1);
}

void HeatMapChart::clickAt(const QPointF& position) {
    if (const auto cell = cellAt(position))
        emit cellActivated(m_map.runs[cell->row], cell->section + 1);
}

QString HeatMapChart::csvText() const {
    const QCPRange columns = canvas().xAxis->range();
    const QCPRange rows = canvas().yAxis->range();
    const auto isShown = [](const QCPRange& range, std::size_t place) {
        return range.contains(static_cast<double>(place) + 0.5);
    };
    QStringList header{tr("Run")};
    for (std::size_t section = 0; section < m_map.sections; ++section)
        if (isShown(columns, section))
            header << 'S' + QString::number(section + 1);
    QString text = csvLine(header);
    for (std::size_t row = 0; row < m_map.runs.size(); ++row) {
        if (!isShown(rows, row))
            continue;
        QStringList fields{m_names[static_cast<qsizetype>(row)]};
        for (std::size_t section = 0; section < m_map.sections; ++section)
            if (isShown(columns, section))
                fields << csvNumber(m_map.at(row, section));
        text += csvLine(fields);
    }
    return text;
}

} // namespace kavela::desktop
