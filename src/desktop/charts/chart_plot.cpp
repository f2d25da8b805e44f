#include "desktop/charts/chart_plot.h"

#include "desktop/charts/chart_colours.h"
#include "desktop/shell/theme.h"

#include <QApplication>
#include <QKeyEvent>

#include <algorithm>
#include <cmath>

namespace kavela::desktop {

namespace {

constexpr double WheelStep = 0.85; ///< of the range, for one notch
constexpr double KeyStep = 0.7;
constexpr double NarrowestView = 0.005; ///< of the limits
constexpr int NarrowDrag = 16;          ///< pixels

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
    : QCustomPlot(parent),
      m_band(QRubberBand::Rectangle, this),
      m_title(new PlotCaption(*this)),
      m_subtitle(new PlotCaption(*this)) {
    setFocusPolicy(Qt::StrongFocus);
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
    setAccessibleName(title);
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

int ChartPlot::axesAt(const QPointF& position) const {
    const QRectF rect = axisRect()->rect();
    const bool isInColumn = position.x() >= rect.left() && position.x() <= rect.right();
    const bool isInRow = position.y() >= rect.top() && position.y() <= rect.bottom();
    if (isInColumn && isInRow)
        return All;
    if (isInColumn && position.y() > rect.bottom())
        return Across;
    if (isInRow && position.x() < rect.left())
        return Left;
    if (isInRow && position.x() > rect.right() && position.x() <= rect.right() + rightAxisWidth())
        return Right;
    return NoSide;
}

void ChartPlot::noteView() {
    const bool isRightMoved = m_limits.right && yAxis2->range() != *m_limits.right;
    m_isZoomed = xAxis->range() != m_limits.x || yAxis->range() != m_limits.y || isRightMoved;
    replot(rpQueuedReplot);
}

void ChartPlot::zoom(double factor, const QPointF& at, int sides) {
    if (sides == NoSide)
        return;
    if (sides & Across)
        xAxis->scaleRange(factor, xAxis->pixelToCoord(at.x()));
    if (sides & Left)
        yAxis->scaleRange(factor, yAxis->pixelToCoord(at.y()));
    if (sides & Right)
        yAxis2->scaleRange(factor, yAxis2->pixelToCoord(at.y()));
    noteView();
}

void ChartPlot::zoomInto(const QRect& area) {
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

void ChartPlot::pan(const QPointF& to) {
    const auto move = [](QCPAxis& axis, double from, double pixel) {
        axis.moveRange(axis.pixelToCoord(from) - axis.pixelToCoord(pixel));
    };
    move(*xAxis, m_panFrom->x(), to.x());
    move(*yAxis, m_panFrom->y(), to.y());
    move(*yAxis2, m_panFrom->y(), to.y());
    m_panFrom = to;
    noteView();
}

QRect ChartPlot::dragArea(const QPoint& to) const {
    const QRect plot = axisRect()->rect();
    QRect area = QRect(*m_press, to).normalized();
    if (area.height() < NarrowDrag) {
        area.setTop(plot.top());
        area.setBottom(plot.bottom());
    } else if (area.width() < NarrowDrag) {
        area.setLeft(plot.left());
        area.setRight(plot.right());
    }
    return area & plot;
}

void ChartPlot::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton)
        m_press = event->pos();
    else if (event->button() == Qt::MiddleButton) {
        m_panFrom = event->position();
        setCursor(Qt::ClosedHandCursor);
    }
}

void ChartPlot::mouseMoveEvent(QMouseEvent* event) {
    if (m_panFrom) {
        pan(event->position());
        return;
    }
    if (!m_press) {
        emit hovered(event->position());
        return;
    }
    const bool isDrag =
        (event->pos() - *m_press).manhattanLength() >= QApplication::startDragDistance();
    if (isDrag && axisRect()->rect().contains(*m_press)) {
        emit hoverEnded();
        m_band.setGeometry(dragArea(event->pos()));
        m_band.show();
    }
}

void ChartPlot::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::MiddleButton && m_panFrom) {
        m_panFrom.reset();
        unsetCursor();
    }
    if (event->button() != Qt::LeftButton || !m_press)
        return;
    const QRect area = dragArea(event->pos());
    m_press.reset();
    if (!m_band.isVisible()) {
        emit clicked(event->position());
        return;
    }
    m_band.hide();
    zoomInto(area);
}

void ChartPlot::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton)
        emit doubleClicked(event->position());
}

void ChartPlot::wheelEvent(QWheelEvent* event) {
    const int axes = axesAt(event->position());
    const double notches = event->angleDelta().y() / 120.0;
    zoom(std::pow(WheelStep, notches), event->position(), axes);
    event->setAccepted(axes != NoSide);
}

void ChartPlot::keyPressEvent(QKeyEvent* event) {
    const QPointF centre = axisRect()->rect().center();
    switch (event->key()) {
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        zoom(KeyStep, centre, All);
        return;
    case Qt::Key_Minus:
        zoom(1 / KeyStep, centre, All);
        return;
    case Qt::Key_0:
        fit();
        return;
    case Qt::Key_Escape:
        if (m_band.isVisible()) {
            m_band.hide();
            m_press.reset();
            return;
        }
        break;
    default:
        break;
    }
    event->ignore();
    emit keyPressed(event);
}

void ChartPlot::changeEvent(QEvent* event) {
    QCustomPlot::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange)
        emit themeChanged();
}

void ChartPlot::leaveEvent(QEvent* event) {
    QCustomPlot::leaveEvent(event);
    emit hoverEnded();
}

} // namespace kavela::desktop
