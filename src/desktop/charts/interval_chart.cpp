#include "desktop/charts/interval_chart.h"

#include "desktop/charts/chart_csv.h"
#include "desktop/charts/chart_markers.h"
#include "desktop/charts/chart_plot.h"
#include "desktop/charts/read_out.h"
#include "desktop/charts/river_strip.h"
#include "desktop/charts/series_axis.h"
#include "desktop/charts/series_labels.h"
#include "desktop/shell/theme.h"

#include <algorithm>
#include <cmath>

namespace kavela::desktop {

namespace {

constexpr std::size_t ValueSlot = 0;
constexpr double PlainSize = 8;
constexpr double BoldSize = 12;
constexpr double CapWidth = 7; ///< of the ends of an interval
constexpr double BareWidth = 9;
constexpr double Headroom = 1.12;  ///< of the height
constexpr double LongestName = 96; ///< pixels that a name which stands upright may take
constexpr double NarrowestPatch = 20;
constexpr float ChosenOpacity = 0.18F;
constexpr double BackdropOpacity = 0.22; ///< the intervals stay what is seen first

SeriesStyle styleOf(const IntervalMark& mark, const QPalette& palette) {
    SeriesStyle style = seriesStyle(ValueSlot, palette);
    style.shape = mark.isUpstream ? MarkerShape::Triangle : MarkerShape::Circle;
    return style;
}

QStringList namesIn(const IntervalChartContent& content) {
    QStringList names;
    for (const IntervalMark& mark : content.marks)
        names << mark.name;
    return names;
}

} // namespace

IntervalChart::IntervalChart(QWidget* parent) : ChartFrame(parent) {
    canvas().xAxis->setTickLabels(false);
    canvas().xAxis->setTicks(false);
    canvas().xAxis->grid()->setVisible(false);
    new PaintedLayer(canvas(), "axes", [this](QCPPainter& painter) { paintBelow(painter); });
    new PaintedLayer(canvas(), "background",
                     [this](QCPPainter& painter) { paintBackdrop(painter); });
    new PaintedLayer(canvas(), "grid", [this](QCPPainter& painter) {
        paintChosen(painter);
        paintSections(painter);
        paintGroups(painter);
    });
    new PaintedLayer(canvas(), "main", [this](QCPPainter& painter) { paintMarks(painter); });
}

void IntervalChart::show(IntervalChartContent content) {
    if (namesIn(content) != namesIn(m_content)) {
        showAgain([](int) { return true; });
        fit();
    }
    leaveCursor();
    m_chosen.reset(); // it was a place among the marks from before
    m_content = std::move(content);
    setAccessibleName(m_content.title);
    setAccessibleDescription(m_content.subtitle);
    invalidate();
}

void IntervalChart::showChosen(std::optional<std::size_t> mark) {
    const auto chosen = mark && *mark < m_content.marks.size() ? mark : std::nullopt;
    if (m_chosen == chosen)
        return;
    m_chosen = chosen;
    canvas().replot(QCustomPlot::rpQueuedReplot);
}

QString IntervalChart::emptyReason() const {
    return m_content.marks.empty() ? m_content.emptyText : QString();
}

void IntervalChart::fill() {
    canvas().setCaptions(m_content.title, m_content.subtitle);
    // An axis without a title keeps no room for the names, which are painted beside it.
    canvas().xAxis->setLabel(m_content.xTitle.isEmpty() ? QStringLiteral(" ") : m_content.xTitle);
    const double room = m_content.isCourse ? RiverHeight : roomOfNames();
    canvas().xAxis->setLabelPadding(static_cast<int>(room) + theme::SmallSpacing);
    canvas().yAxis->setLabel(m_content.yTitle);
    showLabels();
    setLimits();
    canvas().replot(QCustomPlot::rpQueuedReplot);
}

/// The height of the longest name when names stand upright.
double IntervalChart::roomOfNames() const {
    const QFontMetrics metrics(canvas().xAxis->tickLabelFont());
    int longest = metrics.height();
    for (const IntervalMark& mark : m_content.marks)
        longest = std::max(longest, metrics.horizontalAdvance(mark.label));
    return std::min<double>(longest + theme::SmallSpacing, LongestName);
}

/// All names lie or all stand upright: a mixture looks like two kinds of marks.
bool IntervalChart::hasRoomForNames() const {
    QFont font = canvas().xAxis->tickLabelFont();
    font.setBold(true);
    const QFontMetrics metrics(font);
    const double room = pixelsOfMark() - theme::SmallSpacing;
    return std::ranges::all_of(m_content.marks, [&](const IntervalMark& mark) {
        return metrics.horizontalAdvance(mark.label) <= room;
    });
}

void IntervalChart::showLabels() {
    std::vector<SeriesLabel> labels;
    const auto add = [&](int id, const QString& name, const QColor& colour, bool isBar) {
        SeriesLabel label;
        label.id = id;
        label.name = name;
        label.style = seriesStyle(ValueSlot, palette());
        label.style.colour = colour;
        label.isHidden = !isShown(id);
        label.isBar = isBar;
        labels.push_back(label);
    };
    add(ValueSeries, m_content.valueName, seriesStyle(ValueSlot, palette()).colour, false);
    if (!m_content.bareName.isEmpty())
        add(BareSeries, m_content.bareName, theme::quietText(palette()), true);
    if (!m_content.commonName.isEmpty()) {
        add(CommonSeries, m_content.commonName, theme::quietText(palette()), true);
        labels.back().value = valueText(m_content.common);
    }
    seriesLabels().setLabels(std::move(labels));
}

/// From 0, or from below it where a figure can be less than nothing.
void IntervalChart::setLimits() {
    double highest = std::max(m_content.common, 0.0);
    double lowest = std::min(m_content.common, 0.0);
    for (const IntervalMark& mark : m_content.marks) {
        highest = std::max({highest, mark.high, mark.bare.value_or(0)});
        lowest = std::min({lowest, mark.low, mark.bare.value_or(0)});
    }
    const auto count = static_cast<double>(m_content.marks.size());
    const double top = highest > 0 || lowest < 0 ? highest * Headroom : 1;
    canvas().setLimits({0.4, count + 0.6}, {lowest * Headroom, top});
}

double IntervalChart::pixelsOfMark() const {
    return canvas().axisRect()->width() / canvas().xAxis->range().size();
}

double IntervalChart::pixelOf(std::size_t mark) const {
    return canvas().xAxis->coordToPixel(static_cast<double>(mark + 1));
}

bool IntervalChart::isInView(std::size_t mark) const {
    return canvas().xAxis->range().contains(static_cast<double>(mark + 1));
}

QPointF IntervalChart::placeOf(std::size_t mark) const {
    return canvas().toPixel(static_cast<double>(mark + 1), m_content.marks.at(mark).value);
}

void IntervalChart::paintChosen(QCPPainter& painter) const {
    if (!m_chosen || !isInView(*m_chosen))
        return;
    const QRectF plot = canvas().axisRect()->rect();
    const double room = pixelsOfMark();
    const QRectF column(pixelOf(*m_chosen) - room / 2, plot.top(), room, plot.height());
    QColor ground = palette().color(QPalette::Highlight);
    ground.setAlphaF(ChosenOpacity);
    painter.fillRect(column.intersected(plot), ground);
}

void IntervalChart::paintMarks(QCPPainter& painter) const {
    painter.save();
    const QRectF plot = canvas().axisRect()->rect();
    painter.setClipRect(plot.adjusted(0, -1, 0, BoldSize));
    if (isShown(CommonSeries) && !m_content.commonName.isEmpty()) {
        const double y = canvas().yAxis->coordToPixel(m_content.common);
        painter.setPen(QPen(theme::quietText(palette()), 1, Qt::DashLine));
        painter.drawLine(QPointF(plot.left(), y), QPointF(plot.right(), y));
    }
    for (std::size_t i = 0; i < m_content.marks.size(); ++i)
        if (isInView(i))
            paintMark(painter, i);
    painter.restore();
}

void IntervalChart::paintMark(QCPPainter& painter, std::size_t index) const {
    const IntervalMark& mark = m_content.marks[index];
    const double x = pixelOf(index);
    const auto pixel = [&](double value) { return canvas().yAxis->coordToPixel(value); };
    if (isShown(BareSeries) && mark.bare) {
        painter.setPen(QPen(theme::quietText(palette()), 2));
        painter.drawLine(QPointF(x - BareWidth / 2, pixel(*mark.bare)),
                         QPointF(x + BareWidth / 2, pixel(*mark.bare)));
    }
    if (!isShown(ValueSeries))
        return;
    const SeriesStyle style = styleOf(mark, palette());
    if (mark.hasInterval) {
        painter.setPen(QPen(style.colour, mark.isBold ? 3.2 : 1.4));
        painter.drawLine(QPointF(x, pixel(mark.low)), QPointF(x, pixel(mark.high)));
        for (const double end : {mark.low, mark.high})
            painter.drawLine(QPointF(x - CapWidth / 2, pixel(end)),
                             QPointF(x + CapWidth / 2, pixel(end)));
    }
    const QCPScatterStyle drawn = markerOf(style, mark.isBold ? BoldSize : PlainSize, mark.isBold);
    drawn.applyTo(&painter, QPen());
    drawn.drawShape(&painter, QPointF(x, pixel(mark.value)));
    if (!mark.isBold)
        return;
    QFont font = canvas().xAxis->tickLabelFont();
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(palette().color(QPalette::Text));
    const double height = QFontMetrics(font).height();
    painter.drawText(QRectF(x - 80, pixel(mark.high) - height - 1, 160, height), Qt::AlignCenter,
                     valueText(std::round(mark.value * 10) / 10)); // as fine as it is known
}

void IntervalChart::paintBackdrop(QCPPainter& painter) const {
    if (m_content.backdrop.isNull() || m_content.marks.empty())
        return;
    const QRectF plot = canvas().axisRect()->rect();
    QRectF place(QPointF(),
                 QSizeF(m_content.backdrop.size()).scaled(plot.size(), Qt::KeepAspectRatio));
    place.moveCenter(plot.center());
    painter.save();
    painter.setOpacity(BackdropOpacity);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(place, m_content.backdrop);
    painter.restore();
}

/// A line before the first gate of each section, its number at the top.
void IntervalChart::paintSections(QCPPainter& painter) const {
    if (!m_content.isCourse)
        return;
    painter.setFont(canvas().xAxis->tickLabelFont());
    for (std::size_t i = 0; i < m_content.marks.size(); ++i) {
        const auto& section = m_content.marks[i].section;
        if (section && (i == 0 || m_content.marks[i - 1].section != section))
            paintSectionStart(painter, i);
    }
}

void IntervalChart::paintSectionStart(QCPPainter& painter, std::size_t mark) const {
    const QRectF plot = canvas().axisRect()->rect();
    const double x = pixelOf(mark) - pixelsOfMark() / 2;
    if (x < plot.left() - 1 || x > plot.right())
        return;
    painter.setPen(QPen(theme::hairline(palette()), 1, Qt::DashLine));
    painter.drawLine(QPointF(x, plot.top()), QPointF(x, plot.bottom() + RiverHeight));
    painter.setPen(theme::quietText(palette()));
    painter.drawText(QRectF(x + 3, plot.top(), 160, painter.fontMetrics().height()),
                     Qt::AlignLeft | Qt::AlignVCenter,
                     QStringLiteral("S%1").arg(*m_content.marks[mark].section));
}

/// The same before each group, its name cut where the next one begins.
void IntervalChart::paintGroups(QCPPainter& painter) const {
    const QRectF plot = canvas().axisRect()->rect();
    painter.setFont(canvas().xAxis->tickLabelFont());
    const auto& marks = m_content.marks;
    for (std::size_t first = 0, end = 0; first < marks.size(); first = end) {
        for (end = first + 1; end < marks.size() && marks[end].group == marks[first].group;)
            ++end;
        if (marks[first].group.isEmpty())
            continue;
        const double half = pixelsOfMark() / 2;
        const double left = std::max(pixelOf(first) - half, plot.left());
        const double right = std::min(pixelOf(end - 1) + half, plot.right());
        if (right <= left)
            continue;
        painter.setPen(QPen(theme::hairline(palette()), 1, Qt::DashLine));
        painter.drawLine(QPointF(left, plot.top()), QPointF(left, plot.bottom()));
        painter.setPen(theme::quietText(palette()));
        const QFontMetrics metrics = painter.fontMetrics();
        const int room = static_cast<int>(right - left) - theme::SmallSpacing;
        painter.drawText(QPointF(left + 3, plot.top() + metrics.ascent()),
                         metrics.elidedText(marks[first].group, Qt::ElideRight, room));
    }
}

void IntervalChart::paintBelow(QCPPainter& painter) const {
    const QRectF plot = canvas().axisRect()->rect();
    painter.setFont(canvas().xAxis->tickLabelFont());
    if (!m_content.isCourse) {
        const bool isLying = hasRoomForNames();
        for (std::size_t i = 0; i < m_content.marks.size(); ++i)
            if (isInView(i))
                paintName(painter, i, isLying);
        return;
    }
    const QRectF river(plot.left(), plot.bottom() + 2, plot.width(), RiverHeight);
    paintRiver(painter, river, palette());
    const double room = pixelsOfMark();
    const auto step = static_cast<std::size_t>(std::ceil(NarrowestPatch / std::max(room, 1.0)));
    for (std::size_t i = 0; i < m_content.marks.size(); ++i) {
        const IntervalMark& mark = m_content.marks[i];
        if (isInView(i))
            paintRiverGate(painter, river,
                           {mark.label, pixelOf(i), mark.isUpstream, mark.isBold, mark.share,
                            i % step == 0 || mark.isBold},
                           room, palette());
    }
}

void IntervalChart::paintName(QCPPainter& painter, std::size_t index, bool isLying) const {
    const IntervalMark& mark = m_content.marks[index];
    QFont font = canvas().xAxis->tickLabelFont();
    font.setBold(mark.isBold);
    painter.setFont(font);
    painter.setPen(palette().color(QPalette::Text));
    const QFontMetrics metrics(font);
    const double room = pixelsOfMark() - theme::SmallSpacing;
    const double top = canvas().axisRect()->rect().bottom() + theme::SmallSpacing;
    if (isLying) {
        painter.drawText(QRectF(pixelOf(index) - room / 2, top, room, metrics.height()),
                         Qt::AlignCenter, mark.label);
        return;
    }
    painter.save();
    painter.translate(pixelOf(index), top);
    painter.rotate(90);
    painter.drawText(QRectF(0, -metrics.height() / 2.0, LongestName, metrics.height()),
                     Qt::AlignLeft | Qt::AlignVCenter,
                     metrics.elidedText(mark.label, Qt::ElideRight, static_cast<int>(LongestName)));
    painter.restore();
}

std::optional<std::size_t> IntervalChart::markAt(const QPointF& position) const {
    const QRectF plot = canvas().axisRect()->rect();
    const double number = std::round(canvas().xAxis->pixelToCoord(position.x()));
    const bool isInside = position.x() >= plot.left() && position.x() <= plot.right() &&
                          position.y() >= plot.top() && position.y() <= plot.bottom() + RiverHeight;
    if (!isInside || number < 1 || number > static_cast<double>(m_content.marks.size()))
        return {};
    return static_cast<std::size_t>(number) - 1;
}

QString IntervalChart::readOutOf(std::size_t index) const {
    const IntervalMark& mark = m_content.marks.at(index);
    const QColor colour = seriesStyle(ValueSlot, palette()).colour;
    // A range from a number below 0 to another reads badly with a dash.
    const QString range = !mark.hasInterval ? tr("too few")
                          : mark.low < 0
                              ? tr("%1 to %2").arg(valueText(mark.low), valueText(mark.high))
                              : valueText(mark.low) + "–" + valueText(mark.high);
    QStringList rows{
        readOutRow({m_content.valueName, valueText(mark.value) + " (" + range + ")"}, colour)};
    if (mark.bare)
        rows << readOutRow({m_content.bareName, valueText(*mark.bare)});
    for (const QString& line : mark.told)
        rows << readOutRow({line});
    return readOutText(mark.name, rows);
}

void IntervalChart::hoverAt(const QPointF& position) {
    const auto mark = markAt(position);
    if (!mark)
        return leaveCursor();
    m_current = mark;
    readOut().showAt(position, readOutOf(*mark));
}

void IntervalChart::leaveCursor() {
    ChartFrame::leaveCursor();
    m_current.reset();
}

std::vector<QPointF> IntervalChart::stops() const {
    std::vector<QPointF> stops;
    for (std::size_t i = 0; i < m_content.marks.size(); ++i)
        stops.emplace_back(static_cast<double>(i + 1), canvas().yAxis->range().center());
    return stops;
}

void IntervalChart::clickAt(const QPointF& position) {
    if (const auto mark = markAt(position))
        emit markActivated(*mark);
}

QString IntervalChart::csvText() const {
    QString text = csvLine(m_content.csvTitles);
    for (std::size_t i = 0; i < m_content.marks.size(); ++i)
        if (isInView(i))
            text += csvLine(m_content.marks[i].fields);
    return text;
}

} // namespace kavela::desktop
