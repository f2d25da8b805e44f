#include "report/page_builder.h"

#include "report/typeface.h"

#include <algorithm>

namespace kavela::report {

namespace {

constexpr qreal SideMargin = 42 * Point;
constexpr qreal TopMargin = 36 * Point;
constexpr qreal BottomMargin = 30 * Point;
constexpr qreal PageHeadHeight = 14 * Point;
constexpr qreal FootHeight = 12 * Point;
constexpr qreal BodyGap = 14 * Point; ///< between the body and the head and foot

QRectF insideMargins(QPageLayout::Orientation orientation) {
    const QRectF paper = pageLayout(orientation).fullRect(QPageLayout::Point);
    return QRectF(paper.topLeft() * Point, paper.size() * Point)
        .adjusted(SideMargin, TopMargin, -SideMargin, -BottomMargin);
}

} // namespace

QPageLayout pageLayout(QPageLayout::Orientation orientation) {
    return {QPageSize(QPageSize::A4), orientation, QMarginsF()};
}

QRectF headPlace(QPageLayout::Orientation orientation) {
    QRectF place = insideMargins(orientation);
    place.setHeight(PageHeadHeight);
    return place;
}

QRectF bodyPlace(QPageLayout::Orientation orientation) {
    return insideMargins(orientation)
        .adjusted(0, PageHeadHeight + BodyGap, 0, -FootHeight - BodyGap / 2);
}

QRectF footPlace(QPageLayout::Orientation orientation) {
    QRectF place = insideMargins(orientation);
    place.setTop(place.bottom() - FootHeight);
    return place;
}

PageBuilder::PageBuilder(QPageLayout::Orientation orientation)
    : m_orientation(orientation),
      m_pages(1),
      // The first page has its title where the others have their head.
      m_top(headPlace(orientation).top()) {}

QRectF PageBuilder::space() const {
    QRectF space = bodyPlace(m_orientation);
    space.setTop(std::min(m_top, space.bottom()));
    return space;
}

void PageBuilder::put(qreal height, Painting paint) {
    QRectF place = space();
    place.setHeight(height);
    putAt(place, std::move(paint));
    skip(height);
}

void PageBuilder::putAt(const QRectF& place, Painting paint) {
    m_pages.back().push_back({place, std::move(paint)});
}

void PageBuilder::skip(qreal height) {
    m_top += height;
}

void PageBuilder::newPage() {
    m_pages.emplace_back();
    m_top = bodyPlace(m_orientation).top();
}

} // namespace kavela::report
