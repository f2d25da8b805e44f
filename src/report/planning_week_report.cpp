#include "report/planning_week_report.h"

#include "planning/calendar_day.h"
#include "report/page_frame.h"
#include "report/planning_parts.h"
#include "report/planning_week_days.h"
#include "report/said.h"
#include "report/sheet_report.h"
#include "report/wrapped_text.h"

#include <QPainter>

namespace kavela::report {

namespace {

constexpr TextStyle WeekGoalStyle{8.5, false, Ink};
constexpr TextStyle TestStyle{8.5, false, Ink};
constexpr qreal WeekPartGap = 12 * Point;
constexpr qreal GoalIndent = 9 * Point;
constexpr qreal TotalsShare = 0.64; ///< of the width, where goals stand beside them
constexpr qreal WeekColumnGap = 22 * Point;
constexpr qreal PartTitleHeight = 17 * Point;
constexpr qreal NoteLine = 20 * Point;
constexpr std::size_t WeekMostNoteLines = 8;
constexpr std::size_t FewestNoteLines = 4;
constexpr std::size_t MostBeside = 1000; ///< characters of goals
const auto Bullet = QStringLiteral("•");

ReportHeading weekHeadingOf(std::string_view athlete, const microsplanning_v5& week) {
    ReportHeading heading;
    heading.title = reportText(athlete);
    if (heading.title.isEmpty())
        heading.title = said("Training week");
    const auto first = dayOfMidnight(week.monday);
    heading.subtitle = said("Week %1").arg(week.number);
    if (first)
        heading.subtitle += QStringLiteral("  ·  ") + weekDates(*first);
    heading.line = heading.subtitle;
    const auto add = [&](const char* label, const QString& value) {
        if (!value.isEmpty())
            heading.facts.push_back({QString::fromLatin1(label), value});
    };
    add("Event", reportText(week.event));
    add("Place", reportText(week.place));
    add("Mesocycle", reportText(week.mesocycle));
    add("Macrocycle", reportText(week.macrocycle));
    if (week.percentaje != 0)
        add("Load", amountText(week.percentaje) + QStringLiteral(" %"));
    return heading;
}

void putTests(PageBuilder& pages, const microsplanning_v5& week, const Typeface& typeface) {
    const QString tests = testsText(week);
    if (tests.isEmpty())
        return;
    constexpr TextStyle Label{8.5, true, Accent};
    const QString label = said("Tests");
    const qreal indent = typeface.width(label, Label) + 8 * Point;
    const QRectF line = pages.space();
    const auto lines =
        wrappedLines(tests.toStdString(), typeface, TestStyle, line.width() - indent);
    pages.putAt({line.topLeft(), QSizeF(indent, lineHeight(Label))},
                [=](QPainter& painter, const QRectF& place) {
                    typeface.draw(painter, place, Qt::AlignLeft, label, Label);
                });
    putLines(pages, lines, TestStyle, typeface, {}, indent);
    pages.skip(6 * Point);
}

std::vector<std::vector<QString>> goalLines(const microsplanning_v5& week, qreal width,
                                            const Typeface& typeface) {
    std::vector<std::vector<QString>> goals;
    for (const std::string& goal : week.goals)
        if (auto lines = wrappedLines(goal, typeface, WeekGoalStyle, width - GoalIndent);
            !lines.empty() && goals.size() < MostGoals)
            goals.push_back(std::move(lines));
    return goals;
}

/// Puts goals beside the totals that were put below `top`; false where they need more height.
bool putGoalsBeside(PageBuilder& pages, const microsplanning_v5& week, const QRectF& place,
                    const Typeface& typeface) {
    std::size_t characters = 0;
    for (const std::string& goal : week.goals)
        characters += goal.size();
    if (characters > MostBeside)
        return false;
    const auto goals = goalLines(week, place.width(), typeface);
    std::size_t count = 0;
    for (const auto& lines : goals)
        count += lines.size();
    if (static_cast<qreal>(count) * lineHeight(WeekGoalStyle) > place.height() - PartTitleHeight)
        return false;
    QRectF line(place.left(), place.top(), place.width(), PartTitleHeight);
    pages.putAt(line, [=](QPainter& painter, const QRectF& at) {
        typeface.draw(painter, at, Qt::AlignLeft, said("Goals of the week"), {10, true, Accent});
    });
    line = {line.left(), line.bottom(), line.width(), lineHeight(WeekGoalStyle)};
    for (const auto& lines : goals)
        for (std::size_t i = 0; i < lines.size(); ++i) {
            pages.putAt(line, [=, text = lines[i]](QPainter& painter, const QRectF& at) {
                typeface.draw(painter, at, Qt::AlignLeft, i == 0 ? Bullet : QString(),
                              WeekGoalStyle);
                typeface.draw(painter, at.adjusted(GoalIndent, 0, 0, 0), Qt::AlignLeft, text,
                              WeekGoalStyle);
            });
            line.translate(0, line.height());
        }
    return true;
}

void putWeekGoals(PageBuilder& pages, const microsplanning_v5& week, const Typeface& typeface) {
    pages.skip(WeekPartGap);
    putPartTitle(pages, said("Goals of the week"), lineHeight(WeekGoalStyle), typeface);
    for (const auto& lines : goalLines(week, pages.space().width(), typeface))
        putLines(pages, lines, WeekGoalStyle, typeface, Bullet, GoalIndent);
}

void putTotalsAndGoals(PageBuilder& pages, const microsplanning_v5& week,
                       const Typeface& typeface) {
    pages.skip(WeekPartGap);
    const std::vector<CategoryTotal> totals = weekTotals(week);
    const QRectF space = pages.space();
    const qreal height = totalsHeight(totals);
    const qreal width = week.goals.empty() ? space.width() : space.width() * TotalsShare;
    putPartTitle(pages, said("Training by category"),
                 std::min(height, bodyPlace(pages.orientation()).height() / 2), typeface);
    const QRectF below = pages.space();
    const QRectF beside(below.left() + width + WeekColumnGap, below.top() - PartTitleHeight,
                        below.width() - width - WeekColumnGap, height + PartTitleHeight);
    const bool isBeside = !week.goals.empty() && height <= below.height() &&
                          putGoalsBeside(pages, week, beside, typeface);
    putTotals(pages, totals, isBeside ? width : below.width(), typeface);
    if (!week.goals.empty() && !isBeside)
        putWeekGoals(pages, week, typeface);
}

/// Lines to write on, as many as the page has room for.
void putNotes(PageBuilder& pages, const Typeface& typeface) {
    pages.skip(WeekPartGap);
    putPartTitle(pages, said("Notes"), FewestNoteLines * NoteLine, typeface);
    const auto room = static_cast<std::size_t>(pages.space().height() / NoteLine);
    for (std::size_t line = 0; line < std::min(room, WeekMostNoteLines); ++line)
        pages.put(NoteLine, [](QPainter& painter, const QRectF& place) {
            drawRule(painter, place, place.bottom(), Rule);
        });
}

} // namespace

std::unique_ptr<PagedReport> planningWeekReport(std::string_view athlete,
                                                const microsplanning_v5& week) {
    const Typeface typeface;
    ReportHeading heading = weekHeadingOf(athlete, week);
    PageBuilder pages(QPageLayout::Portrait);
    putTitleBlock(pages, heading, typeface);
    putTests(pages, week, typeface);
    putWeekDays(pages, week, typeface);
    putTotalsAndGoals(pages, week, typeface);
    putNotes(pages, typeface);
    return std::make_unique<SheetReport>(std::move(heading), std::move(pages));
}

} // namespace kavela::report
