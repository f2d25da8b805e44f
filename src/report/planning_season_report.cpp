#include "report/planning_season_report.h"

#include "planning/calendar_day.h"
#include "planning/season_goals.h"
#include "report/page_frame.h"
#include "report/planning_parts.h"
#include "report/planning_season_weeks.h"
#include "report/said.h"
#include "report/sheet_report.h"
#include "report/wrapped_text.h"

#include <QPainter>

#include <algorithm>
#include <set>

namespace kavela::report {

namespace {

constexpr TextStyle GroupStyle{9, true, Ink};
constexpr TextStyle SeasonGoalStyle{8.5, true, Ink};
constexpr TextStyle SubgoalStyle{8.5, false, Ink};
constexpr TextStyle StatusStyle{8.5, false, Quiet};
constexpr TextStyle SeasonNoteStyle{9, false, Quiet};
constexpr qreal SeasonPartGap = 14 * Point;
constexpr qreal GroupGap = 6 * Point;
constexpr qreal StatusWidth = 76 * Point;
constexpr qreal BoxSide = 6 * Point;
constexpr qreal Indent = 12 * Point;

QString countOf(std::size_t count) {
    return QString::number(count);
}

std::size_t macrocycleCount(const std::vector<microsplanning_v5>& weeks) {
    std::set<std::string_view> names;
    for (const microsplanning_v5& week : weeks)
        if (!week.macrocycle.empty())
            names.insert(week.macrocycle);
    return names.size();
}

ReportHeading seasonHeadingOf(std::string_view athlete, const yearsplannings_v6& season) {
    ReportHeading heading;
    heading.title = reportText(athlete);
    heading.subtitle = said("Season %1").arg(season.year);
    if (heading.title.isEmpty())
        heading.title = std::exchange(heading.subtitle, QString());
    heading.line = said("Season %1").arg(season.year);
    std::size_t sessions = 0;
    for (const microsplanning_v5& week : season.micros)
        sessions += week.sessions.size();
    const auto events = std::ranges::count_if(
        season.micros, [](const microsplanning_v5& week) { return !week.event.empty(); });
    heading.facts = {{said("Weeks"), countOf(season.micros.size())},
                     {said("Macrocycles"), countOf(macrocycleCount(season.micros))},
                     {said("Weeks with an event"), countOf(static_cast<std::size_t>(events))},
                     {said("Sessions"), countOf(sessions)},
                     {said("Races run"), countOf(season.statisticsdata.racedata.date.size())}};
    return heading;
}

void putNote(PageBuilder& pages, const char* text, const Typeface& typeface) {
    pages.put(16 * Point, [=](QPainter& painter, const QRectF& place) {
        typeface.draw(painter, place, Qt::AlignLeft, said(text), SeasonNoteStyle);
    });
}

/// An open box, a filled one where the sub-goal is reached, a crossed out one where given up.
void paintBox(QPainter& painter, const QRectF& line, int status) {
    const QRectF box(line.left(), line.center().y() - BoxSide / 2, BoxSide, BoxSide);
    painter.save();
    painter.setPen(QPen(Accent, 0.8 * Point));
    painter.setBrush(status == 2 ? QBrush(Accent) : QBrush(Qt::NoBrush));
    painter.drawRect(box);
    if (status == 3)
        painter.drawLine(box.bottomLeft(), box.topRight());
    else if (status == 1)
        painter.fillRect(QRectF(box.left(), box.center().y(), BoxSide, BoxSide / 2), Accent);
    painter.restore();
}

/// Puts a sub-goal with its status to the right of its first line.
void putSubgoal(PageBuilder& pages, const std::string& text, const std::string& status,
                const Typeface& typeface) {
    const qreal width = pages.space().width() - 2 * Indent - StatusWidth;
    auto lines = wrappedLines(text, typeface, SubgoalStyle, width);
    if (lines.empty())
        lines.push_back(QStringLiteral("–"));
    const qreal height = lineHeight(SubgoalStyle);
    if (pages.space().height() < height)
        pages.newPage();
    const QString word = status.empty() ? QStringLiteral("–") : reportText(status);
    QRectF line = pages.space();
    line.setHeight(height);
    pages.putAt(line, [=, kind = goalStatus(status)](QPainter& painter, const QRectF& place) {
        paintBox(painter, place.adjusted(Indent, 0, 0, 0), kind);
        QRectF right = place;
        right.setLeft(place.right() - StatusWidth + 6 * Point);
        typeface.draw(painter, right, Qt::AlignLeft, word, StatusStyle);
    });
    putLines(pages, lines, SubgoalStyle, typeface, {}, 2 * Indent);
}

void putGroup(PageBuilder& pages, const yearsplannings_v6& season, std::size_t group,
              const Typeface& typeface) {
    const GoalProgress progress = goalProgress(season, group);
    QString title = reportText(goalGroupName(season, group));
    if (title.isEmpty())
        title = said("Group %1").arg(group + 1);
    if (progress.count > 0)
        title += said("  ·  %1 of %2 reached").arg(progress.reached).arg(progress.count);
    if (pages.space().height() < 3 * lineHeight(GroupStyle))
        pages.newPage();
    putLines(pages, {title}, GroupStyle, typeface);
    const auto& goals = goalsOf(season, group);
    for (std::size_t i = 0; i < std::min(goals.size(), MostGoals); ++i)
        putLines(pages,
                 wrappedLines(goals[i], typeface, SeasonGoalStyle, pages.space().width() - Indent),
                 SeasonGoalStyle, typeface, {}, Indent);
    const auto& subgoals = subgoalsOf(season, group);
    for (std::size_t i = 0; i < std::min(subgoals.size(), MostGoals); ++i)
        putSubgoal(pages, subgoals[i], subgoalStatus(season, group, i), typeface);
    pages.skip(GroupGap);
}

void putSeasonGoals(PageBuilder& pages, const yearsplannings_v6& season, const Typeface& typeface) {
    const std::size_t groups = goalGroupCount(season);
    if (groups == 0)
        return;
    pages.skip(SeasonPartGap);
    putPartTitle(pages, said("Goals of the season"), 4 * lineHeight(GroupStyle), typeface);
    for (std::size_t group = 0; group < groups; ++group)
        putGroup(pages, season, group, typeface);
}

} // namespace

std::unique_ptr<PagedReport> planningSeasonReport(std::string_view athlete,
                                                  const yearsplannings_v6& season) {
    const Typeface typeface;
    ReportHeading heading = seasonHeadingOf(athlete, season);
    PageBuilder pages(QPageLayout::Portrait);
    putTitleBlock(pages, heading, typeface);
    if (season.micros.empty())
        putNote(pages, KAVELA_TEXT("No week of this season is planned yet."), typeface);
    else
        putSeasonWeeks(pages, season.micros, typeface);
    pages.skip(SeasonPartGap);
    const std::vector<CategoryTotal> totals = totalsOf(season.micros);
    putPartTitle(pages, said("Training by category"),
                 std::min(totalsHeight(totals), bodyPlace(pages.orientation()).height() / 2),
                 typeface);
    putTotals(pages, totals, pages.space().width(), typeface);
    putSeasonGoals(pages, season, typeface);
    return std::make_unique<SheetReport>(std::move(heading), std::move(pages));
}

} // namespace kavela::report
