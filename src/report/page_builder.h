#pragma once

#include <QPageLayout>
#include <QRectF>

#include <functional>
#include <vector>

class QPainter;

namespace kavela::report {

/// Paints itself into the place that it is given.
using Painting = std::function<void(QPainter&, const QRectF&)>;

/// A place on a page and what is painted there.
struct Piece {
    QRectF place;
    Painting paint;
};

using Page = std::vector<Piece>;

/// Fills A4 pages from top to bottom. Each page keeps room for its head and its foot, which whoever
/// knows the number of pages paints.
class PageBuilder {
public:
    explicit PageBuilder(QPageLayout::Orientation orientation);

    /// What is left of the page, over its whole width.
    [[nodiscard]] QRectF space() const;
    [[nodiscard]] QPageLayout::Orientation orientation() const { return m_orientation; }

    /// Puts a painting at the top of what is left, and takes its height off, which must be there.
    void put(qreal height, Painting paint);
    /// Puts a painting anywhere, without taking space.
    void putAt(const QRectF& place, Painting paint);
    void skip(qreal height);
    void newPage();

    [[nodiscard]] std::vector<Page> pages() && { return std::move(m_pages); }

private:
    QPageLayout::Orientation m_orientation;
    std::vector<Page> m_pages;
    qreal m_top = 0;
};

/// The places of a page, in the units of the report.
[[nodiscard]] QRectF headPlace(QPageLayout::Orientation orientation);
[[nodiscard]] QRectF bodyPlace(QPageLayout::Orientation orientation);
[[nodiscard]] QRectF footPlace(QPageLayout::Orientation orientation);

/// An A4 page without margins of the printer's own: a report brings its own.
[[nodiscard]] QPageLayout pageLayout(QPageLayout::Orientation orientation);

} // namespace kavela::report
