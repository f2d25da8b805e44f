#include "desktop/charts/chart_plot.h"

#include "desktop/charts/chart_colours.h"
#include "desktop/shell/theme.h"

#include <algorithm>
#include <vector>

namespace kavela::desktop {

namespace {

constexpr double NarrowestView = 0.005; ///< of the limits
constexpr double NarrowDrag = 16;       ///< pixels

void styleAxis(QCPAxis& axis, const QWidget& widget) {
    const QPalette palette = widget.palette();
    axis.setBasePen(Qt::NoPen);
    // Ticks without a pen would leave dots in a drawing.
    axis.setTickPen(QPen(Qt::transparent));
    axis.setSubTickPen(QPen(Qt::transparent));
    axis.setTickLabelFont(theme::captionFont(widget));
    axis.setTickLabelColor(palette.color(QPalette::WindowText));
    axis.setLabelFont(theme::captionFont(widget));
    axis.setLabelColor(theme::quietText(palette));
    axis.setTickLabelPadding(theme::SmallSpacing);
    axis.setLabelPadding(theme::SmallSpacing);
    axis.setTickLength(0, 0);
    axis.setSubTickLength(0, 0);
    axis.grid()->setPen(QPen(gridColour(palette), 1));
    axis.grid()->setSubGridPen(QPen(gridColour(palette), 1));
    axis.grid()->setZeroLinePen(Qt::NoPen);
}

} // namespace

PlotCaption::PlotCaption(QCustomPlot& plot) : QCPTextElement(&plot) {
    setTextFlags(Qt::AlignLeft | Qt::AlignVCenter);
    setLayer("legend");
}

QSize PlotCaption::minimumOuterSizeHint() const {
    return {0, QCPTextElement::minimumOuterSizeHint().height()};
}

void PlotCaption::draw(QCPPainter* painter) {
    painter->setFont(mFont);
    painter->setPen(QPen(mTextColor));
    const QString text = QFontMetrics(mFont).elidedText(mText, Qt::ElideRight, mRect.width());
    painter->drawText(mRect, mTextFlags, text);
}

ChartPlot::ChartPlot(QWidget* parent)
    : QCustomPlot(parent), m_title(new PlotCaption(*this)), m_subtitle(new PlotCaption(*this)) {
    setNoAntialiasingOnDrag(false);
    plotLayout()->insertRow(0);
    plotLayout()->insertRow(0);
    plotLayout()->addElement(0, 0, m_title);
    plotLayout()->addElement(1, 0, m_subtitle);
    plotLayout()->setRowSpacing(theme::SmallSpacing);
    plotLayout()->setMargins({theme::LargeSpacing, theme::Spacing, theme::Spacing, theme::Spacing});
    connect(xAxis, qOverload<const QCPRange&>(&QCPAxis::rangeChanged), this,
            [this] { keepInside(*xAxis, m_limits.x); });
    connect(yAxis, qOverload<const QCPRange&>(&QCPAxis::rangeChanged), this,
            [this] { keepInside(*yAxis, m_limits.y); });
    connect(yAxis2, qOverload<const QCPRange&>(&QCPAxis::rangeChanged), this, [this] {
        if (m_limits.right)
            keepInside(*yAxis2, *m_limits.right);
    });
    applyTheme();
}

void ChartPlot::setLimits(const QCPRange& x, const QCPRange& y) {
    applyLimits({x, y, {}});
}

void ChartPlot::setLimits(const QCPRange& x, const QCPRange& y, const QCPRange& right) {
    applyLimits({x, y, right});
}

void ChartPlot::applyLimits(const Limits& limits) {
    m_limits = limits;
    yAxis2->setVisible(limits.right.has_value());
    if (!m_isZoomed) {
        fit();
        return;
    }
    keepInside(*xAxis, limits.x);
    keepInside(*yAxis, limits.y);
    if (limits.right)
        keepInside(*yAxis2, *limits.right);
}

int ChartPlot::rightAxisWidth() const {
    if (!yAxis2->visible())
        return 0;
    QVector<double> ticks;
    QVector<QString> texts;
    yAxis2->ticker()->generate(yAxis2->range(), locale(), QLatin1Char('g'),
                               yAxis2->numberPrecision(), ticks, nullptr, &texts);
    const QFontMetrics metrics(yAxis2->tickLabelFont());
    int widest = 0;
    for (const QString& text : texts)
        widest = std::max(widest, metrics.horizontalAdvance(text));
    const int title = yAxis2->label().isEmpty()
                          ? 0
                          : QFontMetrics(yAxis2->labelFont()).height() + yAxis2->labelPadding();
    return yAxis2->tickLabelPadding() + widest + title;
}

void ChartPlot::fit() {
    m_isZoomed = false;
    xAxis->setRange(m_limits.x);
    yAxis->setRange(m_limits.y);
    if (m_limits.right)
        yAxis2->setRange(*m_limits.right);
    replot(rpQueuedReplot);
}

void ChartPlot::setCaptions(const QString& title, const QString& subtitle) {
    m_title->setText(title);
    m_subtitle->setText(subtitle);
    // A chart that is still empty keeps the name that it has from around it.
    if (const QString name = title.isEmpty() ? subtitle : title; !name.isEmpty())
        setAccessibleName(name);
    setAccessibleDescription(subtitle);
}

void ChartPlot::applyTheme() {
    setBackground(QBrush(chartGround(palette())));
    styleAxis(*xAxis, *this);
    styleAxis(*yAxis, *this);
    styleAxis(*yAxis2, *this);
    m_title->setFont(theme::titleFont(*this));
    m_title->setTextColor(palette().color(QPalette::WindowText));
    m_subtitle->setFont(theme::captionFont(*this));
    m_subtitle->setTextColor(theme::quietText(palette()));
}

QPointF ChartPlot::toPixel(double x, double y) const {
    return {xAxis->coordToPixel(x), yAxis->coordToPixel(y)};
}

void ChartPlot::keepInside(QCPAxis& axis, const QCPRange& limits) {
    QCPRange range = axis.range();
    const double narrowest = limits.size() * NarrowestView;
    if (range.size() < narrowest)
        range = {range.center() - narrowest / 2, range.center() + narrowest / 2};
    const QCPRange inside = range.bounded(limits.lower, limits.upper);
    if (inside != axis.range())
        axis.setRange(inside);
}

ChartSides ChartPlot::sidesAt(const QPointF& position) const {
    const QRectF rect = axisRect()->rect();
    const bool isInColumn = position.x() >= rect.left() && position.x() <= rect.right();
    const bool isInRow = position.y() >= rect.top() && position.y() <= rect.bottom();
    if (isInColumn && isInRow)
        return AllSides;
    if (isInColumn && position.y() > rect.bottom())
        return ChartSide::Across;
    if (isInRow && position.x() < rect.left())
        return ChartSide::Left;
    if (isInRow && position.x() > rect.right() && position.x() <= rect.right() + rightAxisWidth())
        return ChartSide::Right;
    return {};
}

void ChartPlot::noteView() {
    const bool isRightMoved = m_limits.right && yAxis2->range() != *m_limits.right;
    m_isZoomed = xAxis->range() != m_limits.x || yAxis->range() != m_limits.y || isRightMoved;
    replot(rpQueuedReplot);
}

/// The numbers of a zoomed axis may be longer and push the plot aside: the place is put right for
/// the plot where it then stands.
void ChartPlot::zoom(double factor, const QPointF& at, ChartSides sides) {
    struct Held {
        QCPAxis* axis;
        double pixel;
        double coordinate;
    };
    constexpr int Passes = 2; // putting it right may change the numbers once more
    std::vector<Held> held;
    const auto scale = [&](QCPAxis* axis, double pixel) {
        held.push_back({axis, pixel, axis->pixelToCoord(pixel)});
        axis->scaleRange(factor, held.back().coordinate);
    };
    if (sides & ChartSide::Across)
        scale(xAxis, at.x());
    if (sides & ChartSide::Left)
        scale(yAxis, at.y());
    if (sides & ChartSide::Right)
        scale(yAxis2, at.y());
    for (int pass = 0; pass < Passes; ++pass) {
        replot(); // only then the margins follow the numbers
        for (const Held& each : held)
            each.axis->moveRange(each.coordinate - each.axis->pixelToCoord(each.pixel));
    }
    noteView();
}

void ChartPlot::pan(const QPointF& by, ChartSides sides) {
    const auto move = [](QCPAxis& axis, double pixels) {
        axis.moveRange(axis.pixelToCoord(0) - axis.pixelToCoord(pixels));
    };
    if (sides & ChartSide::Across)
        move(*xAxis, by.x());
    if (sides & ChartSide::Left)
        move(*yAxis, by.y());
    if (sides & ChartSide::Right)
        move(*yAxis2, by.y());
    noteView();
}

QRectF ChartPlot::selectionOf(const QPointF& from, const QPointF& to) const {
    const QRectF plot = axisRect()->rect();
    QRectF area = QRectF(from, to).normalized();
    if (area.height() < NarrowDrag) {
        area.setTop(plot.top());
        area.setBottom(plot.bottom());
    } else if (area.width() < NarrowDrag) {
        area.setLeft(plot.left());
        area.setRight(plot.right());
    }
    return area & plot;
}

void ChartPlot::zoomInto(const QRectF& area) {
    const auto between = [](QCPAxis& axis, double a, double b) {
        QCPRange range(axis.pixelToCoord(a), axis.pixelToCoord(b));
        range.normalize();
        axis.setRange(range);
    };
    between(*xAxis, area.left(), area.right());
    between(*yAxis, area.top(), area.bottom());
    between(*yAxis2, area.top(), area.bottom());
    noteView();
}

void ChartPlot::bringIntoView(double x) {
    const QCPRange range = xAxis->range();
    if (range.contains(x))
        return;
    const double margin = range.size() / 20;
    xAxis->moveRange(x < range.lower ? x - margin - range.lower : x + margin - range.upper);
    noteView();
}

void ChartPlot::changeEvent(QEvent* event) {
    QCustomPlot::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange)
        emit themeChanged();
}

} // namespace kavela::desktop
