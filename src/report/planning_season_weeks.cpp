#include "report/planning_season_weeks.h"

#include "planning/calendar_day.h"
#include "report/list_styles.h"
#include "report/planning_parts.h"
#include "report/said.h"

#include <QPainter>
#include <QStringList>

#include <algorithm>
#include <cmath>
#include <memory>

namespace kavela::report {

namespace {

constexpr TextStyle WeekRowStyle{7.5, false, Ink};
constexpr TextStyle WeekQuietStyle{7.5, false, Quiet};
constexpr TextStyle EventStyle{7.5, true, Ink};
constexpr TextStyle CycleStyle{7.5, true, Accent};
constexpr qreal WeekHeadHeight = 12 * Point;
constexpr qreal WeekRowHeight = 11.2 * Point;
constexpr qreal WeekCellGap = 7 * Point;
constexpr qreal WeekBarHeight = 6 * Point;
constexpr QColor CycleGround(0xe3, 0xee, 0xf3);

struct WeekRow {
    QString number;
    QString dates;
    QString macrocycle;
    QString mesocycle;
    QString load;
    double share = 0; ///< of the longest bar
    QString sessions;
    QString event;
    QString tests;
};

struct Places {
    QRectF number, dates, macrocycle, mesocycle, load, bar, sessions, event, tests;
};

Places places(const QRectF& line) {
    QRectF rest = line;
    const auto take = [&](qreal points) {
        QRectF cell = rest;
        cell.setWidth(points * Point);
        rest.setLeft(cell.right() + WeekCellGap);
        return cell;
    };
    Places at;
    at.number = take(16);
    at.dates = take(58);
    at.macrocycle = take(57);
    at.mesocycle = take(58);
    at.bar = take(40);
    at.load = take(17);
    at.sessions = take(14);
    at.event = take(rest.width() / Point * 0.55);
    at.tests = rest;
    return at;
}

QString eventText(const microsplanning_v5& week) {
    QStringList parts{reportText(week.event)};
    if (!parts.front().isEmpty() && !week.place.empty() && week.place != week.event)
        parts << reportText(week.place);
    return parts.join(QStringLiteral(", "));
}

QString shortTests(const microsplanning_v5& week) {
    QStringList tests;
    for (const std::string* test : {&week.watertest, &week.endurancetest, &week.bloodtest})
        if (const QString text = reportText(*test); !text.isEmpty())
            tests << text;
    return tests.join(QStringLiteral(" · "));
}

double loadOf(const microsplanning_v5& week) {
    return std::isfinite(week.percentaje) ? std::max(week.percentaje, 0.0) : 0;
}

WeekRow weekRowOf(const microsplanning_v5& week, double most) {
    const auto first = dayOfMidnight(week.monday);
    return {QString::number(week.number),
            first ? shortWeekDates(*first) : QStringLiteral("–"),
            reportText(week.macrocycle),
            reportText(week.mesocycle),
            amountText(std::round(loadOf(week))),
            loadOf(week) / most,
            amountText(static_cast<double>(week.sessions.size())),
            eventText(week),
            shortTests(week)};
}

class Weeks {
public:
    Weeks(const std::vector<microsplanning_v5>& weeks, Typeface typeface)
        : m_typeface(std::move(typeface)) {
        double most = 100;
        for (const microsplanning_v5& week : weeks)
            most = std::max(most, loadOf(week));
        for (const microsplanning_v5& week : weeks)
            m_rows.push_back(weekRowOf(week, most));
    }

    [[nodiscard]] std::size_t count() const { return m_rows.size(); }

    void paintHead(QPainter& painter, const QRectF& line) const {
        const Places at = places(line);
        const auto write = [&](const QRectF& place, Qt::Alignment alignment, const char* text) {
            m_typeface.draw(painter, place, alignment, said(text), HeadStyle);
        };
        write(at.number, Qt::AlignRight, KAVELA_TEXT("Week"));
        write(at.dates, Qt::AlignLeft, KAVELA_TEXT("Days"));
        write(at.macrocycle, Qt::AlignLeft, KAVELA_TEXT("Macrocycle"));
        write(at.mesocycle, Qt::AlignLeft, KAVELA_TEXT("Mesocycle"));
        write(at.bar | at.load, Qt::AlignLeft, KAVELA_TEXT("Load, %"));
        write(at.sessions.adjusted(-16 * Point, 0, 0, 0), Qt::AlignRight, KAVELA_TEXT("Sessions"));
        write(at.event, Qt::AlignLeft, KAVELA_TEXT("Event, place"));
        write(at.tests, Qt::AlignLeft, KAVELA_TEXT("Tests"));
        drawRule(painter, line, line.bottom(), Accent, 0.6);
    }

    /// `isFirst` of the page, where the cycles are named again.
    void paintRow(QPainter& painter, const QRectF& line, std::size_t index, bool isFirst) const {
        const WeekRow& row = m_rows[index];
        const Places at = places(line);
        paintCycle(painter, at.macrocycle, index, &WeekRow::macrocycle, isFirst);
        paintCycle(painter, at.mesocycle, index, &WeekRow::mesocycle, isFirst);
        const qreal top = line.center().y() - WeekBarHeight / 2;
        painter.fillRect(QRectF(at.bar.left(), top, at.bar.width() * row.share, WeekBarHeight),
                         AccentLight);
        m_typeface.draw(painter, at.number, Qt::AlignRight, row.number, WeekRowStyle);
        m_typeface.draw(painter, at.dates, Qt::AlignLeft, row.dates, WeekQuietStyle);
        m_typeface.draw(painter, at.load, Qt::AlignRight, row.load, WeekRowStyle);
        m_typeface.draw(painter, at.sessions, Qt::AlignRight, row.sessions, WeekRowStyle);
        m_typeface.draw(painter, at.event, Qt::AlignLeft, row.event, EventStyle);
        m_typeface.draw(painter, at.tests, Qt::AlignLeft, row.tests, WeekQuietStyle);
        drawRule(painter, line, line.bottom(), Rule, 0.25);
    }

private:
    /// The ground of a band, with its name in its first line.
    void paintCycle(QPainter& painter, const QRectF& place, std::size_t index,
                    QString WeekRow::*cycle, bool isFirst) const {
        const QString& name = m_rows[index].*cycle;
        if (name.isEmpty())
            return;
        const bool begins = index == 0 || m_rows[index - 1].*cycle != name;
        const bool ends = index + 1 == m_rows.size() || m_rows[index + 1].*cycle != name;
        const QRectF band =
            place.adjusted(-3 * Point, begins ? Point : 0, 0, ends ? -0.5 * Point : 0);
        painter.fillRect(band, CycleGround);
        painter.fillRect(QRectF(band.left(), band.top(), 1.2 * Point, band.height()), Accent);
        if (begins || isFirst)
            m_typeface.draw(painter, place.adjusted(2 * Point, 0, -Point, 0), Qt::AlignLeft, name,
                            CycleStyle);
    }

    Typeface m_typeface;
    std::vector<WeekRow> m_rows;
};

} // namespace

void putSeasonWeeks(PageBuilder& pages, const std::vector<microsplanning_v5>& weeks,
                    const Typeface& typeface) {
    const auto shown = std::make_shared<const Weeks>(weeks, typeface);
    const auto putHead = [&] {
        pages.put(WeekHeadHeight, [shown](QPainter& painter, const QRectF& place) {
            shown->paintHead(painter, place);
        });
    };
    putHead();
    bool isFirst = true;
    for (std::size_t week = 0; week < shown->count(); ++week, isFirst = false) {
        if (pages.space().height() < WeekRowHeight) {
            pages.newPage();
            putHead();
            isFirst = true;
        }
        pages.put(WeekRowHeight, [shown, week, isFirst](QPainter& painter, const QRectF& place) {
            shown->paintRow(painter, place, week, isFirst);
        });
    }
}

} // namespace kavela::report
