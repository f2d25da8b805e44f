#include "desktop/charts/chart_plot.h"

#include "desktop/charts/chart_colours.h"
#include "desktop/shell/theme.h"

#include <QApplication>
#include <QKeyEvent>

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
    applyTheme();
}

void ChartPlot::setLimits(const QCPRange& x, const QCPRange& y) {
    m_limits = {x, y};
    if (m_isZoomed) {
        keepInside(*xAxis, x);
        keepInside(*yAxis, y);
        return;
    }
    fit();
}

void ChartPlot::fit() {
    m_isZoomed = false;
    xAxis->setRange(m_limits.x);
    yAxis->setRange(m_limits.y);
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

Qt::Orientations ChartPlot::axesAt(const QPointF& position) const {
    const QRectF rect = axisRect()->rect();
    const bool isInColumn = position.x() >= rect.left() && position.x() <= rect.right();
    const bool isInRow = position.y() >= rect.top() && position.y() <= rect.bottom();
    if (isInColumn && isInRow)
        return Qt::Horizontal | Qt::Vertical;
    if (isInColumn && position.y() > rect.bottom())
        return Qt::Horizontal;
    if (isInRow && position.x() < rect.left())
        return Qt::Vertical;
    return {};
}

void ChartPlot::noteView() {
    m_isZoomed = xAxis->range() != m_limits.x || yAxis->range() != m_limits.y;
    replot(rpQueuedReplot);
}

void ChartPlot::zoom(double factor, const QPointF& at, Qt::Orientations axes) {
    if (!axes)
        return;
    if (axes.testFlag(Qt::Horizontal))
        xAxis->scaleRange(factor, xAxis->pixelToCoord(at.x()));
    if (axes.testFlag(Qt::Vertical))
        yAxis->scaleRange(factor, yAxis->pixelToCoord(at.y()));
    noteView();
}

void ChartPlot::zoomInto(const QRect& area) {
    const auto between = [](const QCPAxis& axis, double a, double b) {
        QCPRange range(axis.pixelToCoord(a), axis.pixelToCoord(b));
        range.normalize();
        return range;
    };
    const QCPRange x = between(*xAxis, area.left(), area.right());
    const QCPRange y = between(*yAxis, area.top(), area.bottom());
    xAxis->setRange(x);
    yAxis->setRange(y);
    noteView();
}

void ChartPlot::pan(const QPointF& to) {
    xAxis->moveRange(xAxis->pixelToCoord(m_panFrom->x()) - xAxis->pixelToCoord(to.x()));
    yAxis->moveRange(yAxis->pixelToCoord(m_panFrom->y()) - yAxis->pixelToCoord(to.y()));
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
    const Qt::Orientations axes = axesAt(event->position());
    const double notches = event->angleDelta().y() / 120.0;
    zoom(std::pow(WheelStep, notches), event->position(), axes);
    event->setAccepted(static_cast<bool>(axes));
}

void ChartPlot::keyPressEvent(QKeyEvent* event) {
    const QPointF centre = axisRect()->rect().center();
    switch (event->key()) {
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        zoom(KeyStep, centre, Qt::Horizontal | Qt::Vertical);
        return;
    case Qt::Key_Minus:
        zoom(1 / KeyStep, centre, Qt::Horizontal | Qt::Vertical);
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
