#include "report/planning_parts.h"

#include "common/number_text.h"
#include "report/list_styles.h"
#include "report/said.h"

#include <QDate>
#include <QLocale>
#include <QPainter>
#include <QStringList>

#include <algorithm>
#include <cmath>
#include <memory>

namespace kavela::report {

namespace {

constexpr TextStyle PartStyle{10, true, Accent};
constexpr TextStyle QuietStyle{8, false, Quiet};
constexpr qreal PartHeight = 17 * Point;
constexpr qreal HeadLine = 9.5 * Point;
constexpr qreal HeadHeight = 2 * HeadLine;
constexpr qreal RowHeight = 12.5 * Point;
constexpr qreal BarHeight = 4 * Point;
constexpr std::size_t MostCategories = 40;
constexpr qreal FullBar = 125; ///< percent

QString datesText(std::chrono::sys_days first, const QString& month) {
    const QLocale english = QLocale::c();
    const QDate from = dateOf(first);
    const QDate to = from.addDays(6);
    const bool isOneMonth = from.month() == to.month();
    return english.toString(from, isOneMonth ? QStringLiteral("d") : QStringLiteral("d ") + month) +
           QStringLiteral(" – ") + english.toString(to, QStringLiteral("d ") + month);
}

bool isEmpty(const CategoryTotal& total) {
    return total.sessions == 0 && total.plannedSessions == 0 && total.quantity == 0 &&
           total.plannedQuantity == 0;
}

/// The categories that a table shows.
std::vector<CategoryTotal> shownTotals(const std::vector<CategoryTotal>& totals) {
    std::vector<CategoryTotal> shown;
    for (const CategoryTotal& total : totals)
        if (!isEmpty(total) && shown.size() < MostCategories)
            shown.push_back(total);
    return shown;
}

/// The columns of a line of the totals.
struct TotalPlaces {
    QRectF category, planned, listed, plannedAmount, listedAmount, percent, bar;
};

TotalPlaces totalPlaces(const QRectF& line) {
    TotalPlaces at;
    QRectF rest = line;
    const auto fromRight = [&](qreal points) {
        QRectF cell = rest;
        cell.setLeft(rest.right() - points * Point);
        rest.setRight(cell.left() - 6 * Point);
        return cell;
    };
    at.bar = fromRight(40);
    at.percent = fromRight(25);
    at.listedAmount = fromRight(34);
    at.plannedAmount = fromRight(34);
    at.listed = fromRight(24);
    at.planned = fromRight(24);
    at.category = rest;
    return at;
}

void paintTotalsHead(QPainter& painter, const QRectF& line, const Typeface& typeface) {
    QRectF half = line;
    half.setHeight(HeadLine);
    const TotalPlaces above = totalPlaces(half);
    const TotalPlaces at = totalPlaces(half.translated(0, HeadLine));
    const auto write = [&](const QRectF& place, Qt::Alignment alignment, const char* text) {
        typeface.draw(painter, place, alignment, said(text), HeadStyle);
    };
    write(above.planned | above.listed, Qt::AlignRight, KAVELA_TEXT("Sessions"));
    write(above.plannedAmount | above.listedAmount, Qt::AlignRight, KAVELA_TEXT("Quantity"));
    write(at.category, Qt::AlignLeft, KAVELA_TEXT("Category"));
    for (const QRectF& place : {at.planned, at.plannedAmount})
        write(place, Qt::AlignRight, KAVELA_TEXT("plan"));
    for (const QRectF& place : {at.listed, at.listedAmount})
        write(place, Qt::AlignRight, KAVELA_TEXT("listed"));
    write(at.percent, Qt::AlignRight, "%");
    drawRule(painter, line, line.bottom(), Accent, 0.6);
}

void paintShareBar(QPainter& painter, const QRectF& place, double percent) {
    const qreal top = place.center().y() - BarHeight / 2;
    const double share = std::isfinite(percent) ? std::clamp(percent / FullBar, 0.0, 1.0) : 0;
    painter.fillRect(QRectF(place.left(), top, place.width(), BarHeight), Rule.lighter(112));
    painter.fillRect(QRectF(place.left(), top, place.width() * share, BarHeight), AccentLight);
    // The plan, all of it.
    painter.fillRect(QRectF(place.left() + place.width() * 100 / FullBar, top - Point, 0.8 * Point,
                            BarHeight + 2 * Point),
                     Accent);
}

void paintTotal(QPainter& painter, const QRectF& line, const CategoryTotal& total,
                const Typeface& typeface) {
    const TotalPlaces at = totalPlaces(line);
    const auto number = [&](const QRectF& place, const QString& text, const TextStyle& style) {
        typeface.draw(painter, place, Qt::AlignRight, text, style);
    };
    typeface.draw(painter, at.category, Qt::AlignLeft, reportText(total.category), RowStyle);
    number(at.planned, amountText(static_cast<double>(total.plannedSessions)), QuietStyle);
    number(at.listed, amountText(static_cast<double>(total.sessions)), RowStyle);
    number(at.plannedAmount, amountText(total.plannedQuantity), QuietStyle);
    number(at.listedAmount, amountText(total.quantity), RowStyle);
    if (const double percent = total.percentDone(); total.plannedQuantity > 0) {
        number(at.percent, amountText(std::round(percent)), RowStyle);
        paintShareBar(painter, at.bar, percent);
    }
    drawRule(painter, line, line.bottom(), Rule, 0.25);
}

} // namespace

QDate dateOf(std::chrono::sys_days day) {
    return QDate(1970, 1, 1).addDays(day.time_since_epoch().count());
}

QString amountText(double amount) {
    if (amount == 0 || !std::isfinite(amount))
        return Dash;
    const std::string text = saidNumber(shortestText(roundedToHundredths(amount)));
    constexpr std::size_t Longest = 9; // more digits only come from damaged files
    return text.size() > Longest ? QString::number(amount, 'g', 3) : QString::fromStdString(text);
}

QString weekDates(std::chrono::sys_days first) {
    return datesText(first, QStringLiteral("MMMM")) + ' ' +
           QString::number(dateOf(first).addDays(6).year());
}

QString shortWeekDates(std::chrono::sys_days first) {
    return datesText(first, QStringLiteral("MMM"));
}

QString testsText(const microsplanning_v5& week) {
    QStringList tests;
    const auto add = [&](const char* kind, const std::string& test) {
        if (const QString text = reportText(test); !text.isEmpty())
            tests << QString::fromLatin1(kind) + text;
    };
    add("water: ", week.watertest);
    add("endurance: ", week.endurancetest);
    add("blood: ", week.bloodtest);
    return tests.join(QStringLiteral("  ·  "));
}

void putPartTitle(PageBuilder& pages, const QString& title, qreal needed,
                  const Typeface& typeface) {
    if (pages.space().height() < PartHeight + needed)
        pages.newPage();
    pages.put(PartHeight, [=](QPainter& painter, const QRectF& place) {
        typeface.draw(painter, place, Qt::AlignLeft, title, PartStyle);
    });
}

qreal totalsHeight(const std::vector<CategoryTotal>& totals) {
    return HeadHeight + static_cast<qreal>(shownTotals(totals).size()) * RowHeight;
}

void putTotals(PageBuilder& pages, const std::vector<CategoryTotal>& totals, qreal width,
               const Typeface& typeface) {
    const auto shown = std::make_shared<const std::vector<CategoryTotal>>(shownTotals(totals));
    const auto put = [&](qreal height, const auto& paint) {
        if (pages.space().height() < height)
            pages.newPage();
        pages.put(height, [=](QPainter& painter, QRectF place) {
            place.setWidth(width);
            paint(painter, place);
        });
    };
    if (shown->empty())
        return put(RowHeight, [=](QPainter& painter, const QRectF& place) {
            typeface.draw(painter, place, Qt::AlignLeft,
                          said("Nothing is planned and nothing entered."), QuietStyle);
        });
    put(HeadHeight,
        [=](QPainter& painter, const QRectF& place) { paintTotalsHead(painter, place, typeface); });
    for (std::size_t row = 0; row < shown->size(); ++row)
        put(RowHeight, [=](QPainter& painter, const QRectF& place) {
            paintTotal(painter, place, (*shown)[row], typeface);
        });
}

} // namespace kavela::report
