#include "report/planning_week_days.h"

#include "planning/calendar_day.h"
#include "planning/day_parts.h"
#include "planning/training_categories.h"
#include "report/planning_parts.h"
#include "report/said.h"
#include "report/wrapped_text.h"
#include "splitdata/run_timing.h"

#include <QDate>
#include <QLocale>
#include <QPainter>
#include <QStringList>

#include <algorithm>
#include <array>
#include <cmath>
#include <memory>

namespace kavela::report {

namespace {

using namespace std::chrono;

constexpr TextStyle DayHeadStyle{7, true, Quiet};
constexpr TextStyle DayStyle{8.5, true, Accent};
constexpr TextStyle DateStyle{7.5, false, Quiet};
constexpr TextStyle DayTitleStyle{8, true, Ink};
constexpr TextStyle PlaceStyle{7.5, false, Quiet};
constexpr TextStyle TextLine{7.5, false, Ink};
constexpr TextStyle ValueStyle{7, false, Accent};
constexpr qreal DayLineHeight = 10.5 * Point;
constexpr qreal DayHeadHeight = 13 * Point;
constexpr qreal DayWidth = 58 * Point;
constexpr qreal DayColumnGap = 10 * Point;
constexpr qreal RowMargin = 4 * Point; ///< above and below the lines of a day
constexpr std::size_t FewestLines = 3; ///< of a day at the foot of a page
constexpr std::size_t MostValues = 40;

/// The columns; the last one only where a session stands in it.
constexpr std::array DayColumns{DayPart::Morning, DayPart::Afternoon, DayPart::Evening,
                                DayPart::AnyTime};
constexpr std::array ColumnNames{KAVELA_TEXT("Morning"), KAVELA_TEXT("Afternoon"),
                                 KAVELA_TEXT("Evening"), KAVELA_TEXT("Any time")};

struct DayLine {
    QString text;
    TextStyle style;
};

/// A row of the page: a day, or the sessions on none.
struct Day {
    QString name;
    QString date;
    std::array<std::vector<DayLine>, DayColumns.size()> columns;

    [[nodiscard]] std::size_t lines() const {
        std::size_t most = 2; // name and date
        for (const auto& column : columns)
            most = std::max(most, column.size());
        return most;
    }
};

std::string valuesText(const sessioninmicro_v5& session) {
    std::string text;
    const std::size_t count = std::min(session.data.size(), MostValues);
    for (std::size_t i = 0; i < count; ++i)
        if (session.data[i] != 0 && std::isfinite(session.data[i]))
            text += (text.empty() ? "" : ", ") + amountText(session.data[i]).toStdString() + ' ' +
                    trainingCategory(i);
    return text;
}

std::string titleText(const sessioninmicro_v5& session) {
    std::string title = entryOrZero(session.titleanddes, 0);
    if (title.empty())
        title = say("Session");
    const auto time = timeOf(session);
    if (!time)
        return title;
    return QStringLiteral("%1:%2 ")
               .arg(time->count() / 60, 2, 10, QChar('0'))
               .arg(time->count() % 60, 2, 10, QChar('0'))
               .toStdString() +
           title;
}

/// The days of a week with their lines, broken for columns of a width.
class Days {
public:
    Days(const microsplanning_v5& week, Typeface typeface, qreal width)
        : m_typeface(std::move(typeface)) {
        const bool hasAnyTime = std::ranges::any_of(
            week.sessions, [](const auto& session) { return partOf(session) == DayPart::AnyTime; });
        m_columns = hasAnyTime ? DayColumns.size() : DayColumns.size() - 1;
        m_columnWidth = (width - DayWidth) / static_cast<qreal>(m_columns) - DayColumnGap;
        const WeekSessions sessions = sessionsByDay(week);
        if (const auto first = dayOfMidnight(week.monday))
            for (std::size_t day = 0; day < sessions.days.size(); ++day)
                addDay(week, sessions, day, *first + days(day));
        if (!sessions.elsewhere.empty())
            addOtherDays(week, sessions.elsewhere);
    }

    [[nodiscard]] const std::vector<Day>& all() const { return m_days; }

    void paintHead(QPainter& painter, const QRectF& place) const {
        for (std::size_t i = 0; i < m_columns; ++i)
            m_typeface.draw(painter, column(place, i), Qt::AlignLeft, said(ColumnNames[i]),
                            DayHeadStyle);
        drawRule(painter, place, place.bottom(), Accent, 0.6);
    }

    /// Lines `first` to `end` of a day.
    void paint(QPainter& painter, const QRectF& place, std::size_t index, std::size_t first,
               std::size_t end) const {
        const Day& day = m_days[index];
        const qreal top = place.top() + RowMargin;
        QRectF label(place.left(), top, DayWidth - 4 * Point, DayLineHeight);
        m_typeface.draw(painter, label, Qt::AlignLeft, day.name, DayStyle);
        label.translate(0, DayLineHeight);
        m_typeface.draw(painter, label, Qt::AlignLeft, first == 0 ? day.date : said("continued"),
                        DateStyle);
        for (std::size_t part = 0; part < m_columns; ++part) {
            const auto& lines = day.columns[part];
            QRectF line = column(place, part);
            line.setRect(line.left(), top, line.width(), DayLineHeight);
            for (std::size_t i = first; i < std::min(end, lines.size()); ++i) {
                m_typeface.draw(painter, line, Qt::AlignLeft, lines[i].text, lines[i].style);
                line.translate(0, DayLineHeight);
            }
        }
        drawRule(painter, place, place.bottom(), Rule, 0.5);
    }

private:
    void addDay(const microsplanning_v5& week, const WeekSessions& sessions, std::size_t index,
                sys_days date) {
        const QLocale english = QLocale::c();
        Day& day = m_days.emplace_back(Day{english.toString(dateOf(date), QStringLiteral("dddd")),
                                           english.toString(dateOf(date), QStringLiteral("d MMMM")),
                                           {}});
        for (std::size_t i = 0; i < m_columns; ++i)
            for (const std::size_t session : sessions.at(index, DayColumns[i]))
                addLines(day.columns[i], week.sessions[session], {});
    }

    void addOtherDays(const microsplanning_v5& week, const std::vector<std::size_t>& sessions) {
        Day& day = m_days.emplace_back(Day{said("Other days"), {}, {}});
        for (const std::size_t index : sessions) {
            const sessioninmicro_v5& session = week.sessions[index];
            const auto date = dayOf(session);
            const auto column = std::ranges::find(DayColumns, partOf(session)) - DayColumns.begin();
            addLines(day.columns[static_cast<std::size_t>(column)], session,
                     date ? dayText(midnightOf(*date)) : std::string());
        }
    }

    void addLines(std::vector<DayLine>& lines, const sessioninmicro_v5& session,
                  const std::string& date) const {
        if (!lines.empty())
            lines.emplace_back();
        const auto add = [&](const std::string& text, const TextStyle& style) {
            for (QString& line : wrappedLines(text, m_typeface, style, m_columnWidth))
                lines.push_back({std::move(line), style});
        };
        add(titleText(session), DayTitleStyle);
        add(date, PlaceStyle);
        add(session.trainingplace, PlaceStyle);
        add(entryOrZero(session.titleanddes, 1), TextLine);
        add(valuesText(session), ValueStyle);
    }

    [[nodiscard]] QRectF column(const QRectF& place, std::size_t index) const {
        return {place.left() + DayWidth +
                    static_cast<qreal>(index) * (m_columnWidth + DayColumnGap),
                place.top(), m_columnWidth, place.height()};
    }

    Typeface m_typeface;
    std::size_t m_columns = 0;
    qreal m_columnWidth = 0;
    std::vector<Day> m_days;
};

qreal heightOf(std::size_t lines) {
    return static_cast<qreal>(lines) * DayLineHeight + 2 * RowMargin;
}

void putDayHead(PageBuilder& pages, const std::shared_ptr<const Days>& days) {
    pages.put(DayHeadHeight,
              [days](QPainter& painter, const QRectF& place) { days->paintHead(painter, place); });
}

void putDay(PageBuilder& pages, const std::shared_ptr<const Days>& days, std::size_t index) {
    const std::size_t count = days->all()[index].lines();
    const qreal page = bodyPlace(pages.orientation()).height() - DayHeadHeight;
    for (std::size_t first = 0; first < count;) {
        const std::size_t rest = count - first;
        const qreal least = heightOf(heightOf(rest) <= page ? rest : FewestLines);
        if (pages.space().height() < least) {
            pages.newPage();
            putDayHead(pages, days);
        }
        const auto room =
            static_cast<std::size_t>((pages.space().height() - 2 * RowMargin) / DayLineHeight);
        // Name and date of the day need two lines, however few are left.
        const std::size_t taken = std::min(rest, room);
        pages.put(heightOf(std::max<std::size_t>(taken, 2)),
                  [=](QPainter& painter, const QRectF& place) {
                      days->paint(painter, place, index, first, first + taken);
                  });
        first += taken;
    }
}

} // namespace

void putWeekDays(PageBuilder& pages, const microsplanning_v5& week, const Typeface& typeface) {
    const auto days = std::make_shared<const Days>(week, typeface, pages.space().width());
    putDayHead(pages, days);
    for (std::size_t index = 0; index < days->all().size(); ++index)
        putDay(pages, days, index);
}

} // namespace kavela::report
