#include "report/run_sheet_splits.h"

#include "report/list_styles.h"
#include "report/said.h"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <functional>
#include <memory>

namespace kavela::report {

namespace {

constexpr qreal SplitTitleHeight = 17 * Point;
constexpr qreal SplitHeadLine = 9.5 * Point;
constexpr qreal SplitRowHeight = 12.5 * Point;
constexpr qreal SplitCellGap = 9 * Point;
constexpr qreal SplitBarHeight = 4.5 * Point;
constexpr qreal SplitWidestTitle = 146; ///< points
constexpr qreal TitleForStrokes = 34;   ///< that a title gives up for columns of strokes
constexpr std::size_t SplitMostRows = 14;

struct Column {
    const char* group = "";
    const char* title = "";
    qreal points = 0; ///< 0 takes the rest
    std::function<QString(const SheetSplit&)> text;
    Qt::Alignment alignment = Qt::AlignRight;
};

QString gapText(const SheetSplit& split) {
    if (!split.gap)
        return Dash;
    return std::round(*split.gap * 100) > 0 ? '+' + sheetSeconds(*split.gap) : said("best");
}

QString countText(const SheetStrokes& strokes) {
    return strokes.count ? QString::number(*strokes.count) : Dash;
}

QString rateText(const SheetStrokes& strokes) {
    const bool isKnown = strokes.rate && std::isfinite(*strokes.rate);
    return isKnown ? saidNumbers(QString::number(*strokes.rate, 'f', 1)) : Dash;
}

void addStrokes(std::vector<Column>& columns, const char* group, SheetStrokes SheetSplit::*which) {
    columns.push_back({group, KAVELA_TEXT("Strokes"), 36,
                       [which](const SheetSplit& s) { return countText(s.*which); }});
    columns.push_back({"", KAVELA_TEXT("per min"), 32,
                       [which](const SheetSplit& s) { return rateText(s.*which); }});
}

std::vector<Column> columnsOf(const RunSheetData& data) {
    const int strokes = data.hasMarkedStrokes + data.hasRecordedStrokes;
    const qreal title = SplitWidestTitle - strokes * TitleForStrokes;
    std::vector<Column> columns{
        {"", KAVELA_TEXT("Split"), title, [](const SheetSplit& s) { return s.title; },
         Qt::AlignLeft},
        {"", KAVELA_TEXT("Time"), 40,
         [](const SheetSplit& s) { return s.time == 0 ? Dash : sheetSeconds(s.time); }},
        {"", KAVELA_TEXT("Gap"), 36, gapText},
        {"", "", 0, {}, Qt::AlignLeft},
        {"", KAVELA_TEXT("Rank"), 24,
         [](const SheetSplit& s) { return s.rank ? QString::number(*s.rank) : Dash; }},
        {"", KAVELA_TEXT("Penalty"), 32,
         [](const SheetSplit& s) { return s.penalty == 0 ? Dash : QString::number(s.penalty); }}};
    if (data.hasMarkedStrokes)
        addStrokes(columns, KAVELA_TEXT("on the film"), &SheetSplit::marked);
    if (data.hasRecordedStrokes)
        addStrokes(columns, KAVELA_TEXT("recording"), &SheetSplit::recorded);
    return columns;
}

class SplitLines {
public:
    SplitLines(const RunSheetData& data, const Typeface& typeface)
        : m_columns(columnsOf(data)), m_typeface(typeface) {
        for (const SheetSplit& split : data.splits)
            m_greatestGap = std::max(m_greatestGap, split.gap.value_or(0));
    }

    void paintHead(QPainter& painter, const QRectF& line) const {
        QRectF upper = line;
        upper.setHeight(SplitHeadLine);
        forCells(line, [&](const QRectF& cell, std::size_t i) {
            QRectF place = cell;
            place.setTop(line.bottom() - SplitHeadLine);
            m_typeface.draw(painter, place, m_columns[i].alignment, said(m_columns[i].title),
                            HeadStyle);
            if (*m_columns[i].group == '\0')
                return;
            // The group stands above its two columns.
            QRectF group(cell.left(), line.top(),
                         cell.width() + SplitCellGap + m_columns[i + 1].points * Point,
                         SplitHeadLine);
            m_typeface.draw(painter, group, Qt::AlignRight, said(m_columns[i].group), HeadStyle);
        });
        drawRule(painter, line, line.bottom(), Accent, 0.6);
    }

    void paintRow(QPainter& painter, const QRectF& line, const SheetSplit& split,
                  bool isWhole) const {
        TextStyle style = RowStyle;
        style.isBold = isWhole;
        forCells(line, [&](const QRectF& cell, std::size_t i) {
            if (m_columns[i].text)
                m_typeface.draw(painter, cell, m_columns[i].alignment, m_columns[i].text(split),
                                style);
            else if (!isWhole)
                paintGap(painter, cell, split);
        });
        if (!isWhole)
            drawRule(painter, line, line.bottom(), Rule, 0.25);
    }

private:
    template <class Paint>
    void forCells(const QRectF& line, const Paint& paint) const {
        qreal rest = line.width() + SplitCellGap;
        for (const Column& column : m_columns)
            rest -= SplitCellGap + column.points * Point;
        QRectF cell = line;
        for (std::size_t i = 0; i < m_columns.size(); ++i) {
            cell.setWidth(m_columns[i].points > 0 ? m_columns[i].points * Point : rest);
            paint(cell, i);
            cell.moveLeft(cell.right() + SplitCellGap);
        }
    }

    void paintGap(QPainter& painter, const QRectF& cell, const SheetSplit& split) const {
        if (!split.gap)
            return;
        const qreal top = cell.center().y() - SplitBarHeight / 2;
        const qreal share = m_greatestGap > 0 ? *split.gap / m_greatestGap : 0;
        painter.fillRect(QRectF(cell.left(), top, cell.width() * share, SplitBarHeight),
                         AccentLight);
        painter.fillRect(QRectF(cell.left(), top - Point, 0.8 * Point, SplitBarHeight + 2 * Point),
                         Accent);
    }

    std::vector<Column> m_columns;
    Typeface m_typeface;
    double m_greatestGap = 0;
};

} // namespace

void putSplits(PageBuilder& pages, const RunSheetData& data, const Typeface& typeface) {
    if (data.splits.empty())
        return;
    const auto lines = std::make_shared<const SplitLines>(data, typeface);
    const auto put = [&](qreal height, const QString& left, const QString& right,
                         const TextStyle& style) {
        pages.put(height, [=](QPainter& painter, const QRectF& place) {
            typeface.draw(painter, place, Qt::AlignLeft, left, style);
            typeface.draw(painter, place.adjusted(place.width() * 0.3, 0, 0, 0), Qt::AlignRight,
                          right, {7, false, Quiet});
        });
    };
    const QString remark =
        said("gap and rank among all runs of the category; the run's with penalties");
    put(SplitTitleHeight, said("Splits"), remark, ListTitleStyle);
    const bool hasGroups = data.hasMarkedStrokes || data.hasRecordedStrokes;
    pages.put(hasGroups ? 2 * SplitHeadLine : SplitHeadLine,
              [=](QPainter& painter, const QRectF& place) { lines->paintHead(painter, place); });
    const std::size_t all = data.splits.size() + data.leftOutSplits;
    const bool isCut = data.splits.size() > SplitMostRows;
    const std::size_t shown = isCut ? SplitMostRows - 1 : data.splits.size();
    for (std::size_t k = 0; k < shown; ++k)
        pages.put(SplitRowHeight,
                  [=, split = data.splits[k]](QPainter& painter, const QRectF& place) {
                      lines->paintRow(painter, place, split, false);
                  });
    if (isCut)
        put(SplitRowHeight, said("and %1 more").arg(all - shown), {}, {7.5, false, Quiet});
    pages.put(SplitRowHeight, [=, whole = data.whole](QPainter& painter, const QRectF& place) {
        lines->paintRow(painter, place, whole, true);
    });
    if (!data.recordingNote.isEmpty())
        put(SplitRowHeight, {}, said("Recording: ") + data.recordingNote, RowStyle);
}

} // namespace kavela::report
