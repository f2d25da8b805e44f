#include "desktop/preview/page_view.h"

#include "desktop/shell/theme.h"
#include "report/paged_report.h"

#include <QKeyEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>
#include <array>
#include <cmath>

namespace kavela::desktop {

namespace {

constexpr double PixelsPerPoint = 96.0 / 72.0; ///< at the size of paper
constexpr double LargestFit = 2;               ///< wider screens show more desk, not larger letters
constexpr std::array ZoomSteps{0.25, 0.33, 0.5,  0.67, 0.75, 0.9, 1.0, 1.1,
                               1.25, 1.5,  1.75, 2.0,  2.5,  3.0, 4.0};
constexpr double SameZoom = 0.005;
constexpr int LineStep = 48;
constexpr double ScreenfulShare = 0.9;

QColor deskColour(const QPalette& palette) {
    return theme::isDark(palette) ? QColor(0x36, 0x3B, 0x3F) : QColor(0xC6, 0xCB, 0xCF);
}

/// A thin shadow that falls a little downwards.
void paintShadow(QPainter& painter, const QRect& page, bool isDark) {
    constexpr int Depth = 4;
    for (int i = Depth; i >= 1; --i)
        painter.fillRect(page.adjusted(1 - i, 1, i - 1, i), QColor(0, 0, 0, isDark ? 40 : 16));
}

} // namespace

PageView::PageView(QWidget* parent) : QAbstractScrollArea(parent) {
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::StrongFocus);
    // One that came and went would change the width that pages are fitted to.
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setAccessibleName(tr("Pages of the report"));
}

void PageView::setReport(const report::PagedReport* report) {
    m_report = report;
    m_images.setReport(report);
    m_pages = report ? report->pageCount() : 0;
    m_paper = report ? report->layout().fullRect(QPageLayout::Point).size() : QSizeF();
    if (m_isFitted)
        m_zoom = fittingZoom();
    updateScrollBars();
    m_current = std::clamp(m_current, 0, std::max(0, m_pages - 1));
    viewport()->update();
    emit changed();
}

void PageView::goToPage(int page) {
    if (m_pages == 0)
        return;
    page = std::clamp(page, 0, m_pages - 1);
    {
        const QScopedValueRollback moving(m_isMoving, true);
        verticalScrollBar()->setValue(places().page(page).top() - PagePlaces::Gap / 2);
    }
    setCurrentPage(page);
}

void PageView::zoomIn() {
    zoomStep(1, viewport()->rect().center());
}

void PageView::zoomOut() {
    zoomStep(-1, viewport()->rect().center());
}

void PageView::fitWidth() {
    m_isFitted = true;
    setZoom(fittingZoom(), viewport()->rect().center());
}

double PageView::fittingZoom() const {
    if (m_paper.isEmpty())
        return 1;
    const double width = viewport()->width() - 2 * PagePlaces::Margin;
    return std::clamp(width / (m_paper.width() * PixelsPerPoint), ZoomSteps.front(), LargestFit);
}

void PageView::zoomStep(int direction, QPointF anchor) {
    const auto isBeyond = [&](double step) { return (step - m_zoom) * direction > SameZoom; };
    double zoom = m_zoom;
    if (direction > 0) {
        const auto next = std::ranges::find_if(ZoomSteps, isBeyond);
        zoom = next == ZoomSteps.end() ? zoom : *next;
    } else {
        const auto next = std::find_if(ZoomSteps.rbegin(), ZoomSteps.rend(), isBeyond);
        zoom = next == ZoomSteps.rend() ? zoom : *next;
    }
    m_isFitted = false;
    setZoom(zoom, anchor);
}

void PageView::setZoom(double zoom, QPointF anchor) {
    if (m_pages == 0)
        return;
    // What lies under the anchor, as a share of its page, shall lie there afterwards.
    const QPointF before = anchor + scrolled();
    const int page = places().pageAt(static_cast<int>(before.y()));
    const QRectF old = places().page(page);
    const QPointF share((before.x() - old.left()) / old.width(),
                        (before.y() - old.top()) / old.height());
    m_zoom = zoom;
    const QScopedValueRollback moving(m_isMoving, true);
    updateScrollBars();
    const QRectF now = places().page(page);
    const QPointF after =
        now.topLeft() + QPointF(share.x() * now.width(), share.y() * now.height());
    horizontalScrollBar()->setValue(static_cast<int>(std::lround(after.x() - anchor.x())));
    verticalScrollBar()->setValue(static_cast<int>(std::lround(after.y() - anchor.y())));
    viewport()->update();
    emit changed();
}

PagePlaces PageView::places() const {
    return {m_pages, pageSize(), viewport()->width()};
}

QSize PageView::pageSize() const {
    return (m_paper * m_zoom * PixelsPerPoint).toSize().expandedTo({1, 1});
}

QPoint PageView::scrolled() const {
    return {horizontalScrollBar()->value(), verticalScrollBar()->value()};
}

void PageView::updateScrollBars() {
    const QSize desk = places().desk();
    const QSize seen = viewport()->size();
    verticalScrollBar()->setPageStep(seen.height());
    verticalScrollBar()->setSingleStep(LineStep);
    verticalScrollBar()->setRange(0, std::max(0, desk.height() - seen.height()));
    horizontalScrollBar()->setPageStep(seen.width());
    horizontalScrollBar()->setSingleStep(LineStep);
    horizontalScrollBar()->setRange(0, std::max(0, desk.width() - seen.width()));
}

void PageView::setCurrentPage(int page) {
    if (page == m_current)
        return;
    m_current = page;
    emit changed();
}

void PageView::resizeEvent(QResizeEvent*) {
    // The page looked at keeps its place at the top.
    if (m_isFitted)
        setZoom(fittingZoom(), {viewport()->width() / 2.0, 0});
    else
        updateScrollBars();
}

void PageView::scrollContentsBy(int, int) {
    if (!m_isMoving && m_pages > 0) {
        const int top = verticalScrollBar()->value();
        setCurrentPage(places().mostSeen(top, top + viewport()->height()));
    }
    viewport()->update();
}

void PageView::keyPressEvent(QKeyEvent* event) {
    const int screenful = static_cast<int>(viewport()->height() * ScreenfulShare);
    const bool isShifted = event->modifiers().testFlag(Qt::ShiftModifier);
    switch (event->key()) {
    case Qt::Key_PageDown:
        return goToPage(m_current + 1);
    case Qt::Key_PageUp:
        return goToPage(m_current - 1);
    case Qt::Key_Home:
        return goToPage(0);
    case Qt::Key_End:
        return goToPage(m_pages - 1);
    case Qt::Key_Space:
        verticalScrollBar()->setValue(verticalScrollBar()->value() +
                                      (isShifted ? -screenful : screenful));
        return;
    default:
        QAbstractScrollArea::keyPressEvent(event);
    }
}

void PageView::wheelEvent(QWheelEvent* event) {
    if (!event->modifiers().testFlag(Qt::ControlModifier)) {
        QAbstractScrollArea::wheelEvent(event);
        return;
    }
    // Fine wheels and touch pads tell each step in many small parts.
    m_wheel += event->angleDelta().y();
    const int steps = m_wheel / QWheelEvent::DefaultDeltasPerStep;
    m_wheel -= steps * QWheelEvent::DefaultDeltasPerStep;
    for (int step = 0; step < std::abs(steps); ++step)
        zoomStep(steps > 0 ? 1 : -1, event->position());
    event->accept();
}

void PageView::paintEvent(QPaintEvent*) {
    QPainter painter(viewport());
    painter.fillRect(viewport()->rect(), deskColour(palette()));
    if (m_pages == 0) {
        painter.setPen(theme::quietText(palette()));
        painter.drawText(viewport()->rect(), Qt::AlignCenter, tr("There is nothing to show."));
        return;
    }
    const PagePlaces pages = places();
    const int top = verticalScrollBar()->value();
    for (int page = pages.pageAt(top); page <= pages.pageAt(top + viewport()->height()); ++page)
        paintPage(painter, page, pages.page(page).translated(-scrolled()));
}

void PageView::paintPage(QPainter& painter, int page, const QRect& place) {
    if (!place.intersects(viewport()->rect()))
        return;
    paintShadow(painter, place, theme::isDark(palette()));
    const QPixmap& image = m_images.page(page, place.size(), devicePixelRatioF());
    painter.setRenderHint(QPainter::SmoothPixmapTransform, image.size() != place.size());
    painter.drawPixmap(place, image);
}

} // namespace kavela::desktop
