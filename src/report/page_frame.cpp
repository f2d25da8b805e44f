#include "report/page_frame.h"

#include "report/said.h"

#include <QPainter>

#include <algorithm>

namespace kavela::report {

namespace {

constexpr qreal FrameBarHeight = 3 * Point;
constexpr qreal BarWidth = 34 * Point;
constexpr qreal FactGap = 26 * Point;
constexpr qreal WidestFact = 0.4; ///< of the page
constexpr TextStyle FactLabel{6.5, false, Quiet};
constexpr TextStyle FactValue{9.5, false, Ink};

void paintBar(QPainter& painter, const QRectF& place) {
    painter.fillRect(QRectF(place.left(), place.top(), BarWidth, FrameBarHeight), Accent);
}

/// The facts side by side, each with its label above it.
void paintFacts(QPainter& painter, const QRectF& place, const std::vector<HeadingFact>& facts,
                const Typeface& typeface) {
    const qreal half = place.height() / 2;
    qreal left = place.left();
    for (const HeadingFact& fact : facts) {
        const qreal wanted =
            std::max(typeface.width(fact.label, FactLabel), typeface.width(fact.value, FactValue));
        if (left >= place.right())
            return;
        const qreal most = std::min(place.width() * WidestFact, place.right() - left);
        const qreal width = std::min(wanted, most);
        typeface.draw(painter, {left, place.top(), width, half * 0.9}, Qt::AlignLeft, fact.label,
                      FactLabel);
        typeface.draw(painter, {left, place.top() + half * 0.9, width, half}, Qt::AlignLeft,
                      fact.value, FactValue);
        left += width + FactGap;
    }
}

} // namespace

void putTitleBlock(PageBuilder& pages, const ReportHeading& heading, const Typeface& typeface) {
    pages.put(12 * Point, [](QPainter& painter, const QRectF& place) { paintBar(painter, place); });
    pages.put(30 * Point, [heading, typeface](QPainter& painter, const QRectF& place) {
        typeface.draw(painter, place, Qt::AlignLeft, heading.title, {22, true, Ink});
    });
    if (!heading.subtitle.isEmpty())
        pages.put(16 * Point, [heading, typeface](QPainter& painter, const QRectF& place) {
            typeface.draw(painter, place, Qt::AlignLeft, heading.subtitle, {10, false, Quiet});
        });
    pages.skip(10 * Point);
    pages.put(26 * Point, [heading, typeface](QPainter& painter, const QRectF& place) {
        paintFacts(painter, place, heading.facts, typeface);
    });
    pages.skip(8 * Point);
    pages.put(18 * Point, [](QPainter& painter, const QRectF& place) {
        drawRule(painter, place, place.top(), Rule);
    });
}

void putShortTitle(PageBuilder& pages, const ReportHeading& heading, const Typeface& typeface) {
    pages.put(9 * Point, [](QPainter& painter, const QRectF& place) { paintBar(painter, place); });
    pages.put(20 * Point, [heading, typeface](QPainter& painter, const QRectF& place) {
        typeface.draw(painter, place, Qt::AlignLeft, heading.title, {15, true, Ink});
    });
    pages.put(14 * Point, [heading, typeface](QPainter& painter, const QRectF& place) {
        typeface.draw(painter, place, Qt::AlignLeft, heading.line, {8.5, false, Quiet});
    });
    pages.skip(6 * Point);
}

void paintPageHead(QPainter& painter, const QRectF& place, const ReportHeading& heading,
                   const Typeface& typeface) {
    constexpr TextStyle Title{8, true, Ink};
    constexpr TextStyle Line{7.5, false, Quiet};
    const qreal titleWidth = std::min(typeface.width(heading.title, Title), place.width() * 0.45);
    QRectF text = place.adjusted(0, 0, 0, -3 * Point);
    text.setWidth(titleWidth + Point);
    typeface.draw(painter, text, Qt::AlignLeft, heading.title, Title);
    text.setLeft(text.right() + 14 * Point);
    text.setRight(place.right());
    typeface.draw(painter, text, Qt::AlignRight, heading.line, Line);
    drawRule(painter, place, place.bottom(), Rule);
}

void paintPageNumber(QPainter& painter, const QRectF& place, int page, int pages,
                     const Typeface& typeface) {
    typeface.draw(painter, place, Qt::AlignRight, said("Page %1 / %2").arg(page).arg(pages),
                  {7.5, false, Quiet});
}

} // namespace kavela::report
