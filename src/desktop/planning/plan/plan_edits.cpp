#include "desktop/planning/plan/plan_view.h"

#include "desktop/planning/plan/session_dialog.h"
#include "desktop/planning/plan/week_texts.h"
#include "planning/add_within.h"
#include "planning/calendar_day.h"
#include "planning/week_totals.h"
#include "planning/weeks.h"

#include <QInputDialog>
#include <QTimeZone>

#include <algorithm>

/// What the plan view does to the season, one step of the undo stack each.
namespace kavela::desktop {

using namespace std::chrono;

namespace {

/// A session that stood on no day comes to stand on one.
void setDay(sessioninmicro_v5& session, sys_days day) {
    const year_month_day date(day);
    session.dateinInts = {static_cast<int>(date.year()), unsigned(date.month()),
                          unsigned(date.day())};
    session.trainingtime = midnightOf(day);
}

/// The season's year, as far as a calendar has it.
year yearOf(const yearsplannings_v6& season) {
    return year(static_cast<int>(std::clamp<std::int64_t>(season.year, 1, 9999)));
}

void setPart(sessioninmicro_v5& session, DayPart part) {
    if (partOf(session) == part)
        return;
    if (const auto time = usualTimeOf(part))
        setTimeOfDay(session, *time);
    else
        session.trainingtimeInt.clear();
}

} // namespace

QStringList PlanView::used(std::string sessioninmicro_v5::*field) const {
    QStringList texts;
    for (const microsplanning_v5& week : season()->micros)
        for (const sessioninmicro_v5& session : week.sessions)
            texts.append(QString::fromStdString(session.*field));
    texts.removeAll(QString());
    texts.removeDuplicates();
    return texts;
}

QStringList PlanView::usedTitles() const {
    QStringList texts;
    for (const microsplanning_v5& week : season()->micros)
        for (const sessioninmicro_v5& session : week.sessions)
            texts.append(titleOf(session));
    texts.removeAll(QString());
    texts.removeDuplicates();
    return texts;
}

/// In the chosen cell, in the zone of the session before it or of this computer.
sessioninmicro_v5 PlanView::newSession() const {
    sessioninmicro_v5 session;
    const microsplanning_v5& shown = *week();
    session.trainingtimezones = shown.sessions.empty() ? QTimeZone::systemTimeZoneId().toStdString()
                                                       : shown.sessions.back().trainingtimezones;
    session.trainingplace = shown.place;
    session.titleanddes = {"", ""};
    if (const auto first = dayOfMidnight(shown.monday)) {
        setDay(session, *first + days(m_grid->cell().day));
        setPart(session, m_grid->cell().part);
    }
    return session;
}

std::optional<sessioninmicro_v5> PlanView::asked(const sessioninmicro_v5& session) {
    const auto first = dayOfMidnight(week()->monday);
    if (!first) {
        emit refused(tr("The week's date is in no calendar, so that it has no days."));
        return std::nullopt;
    }
    SessionDialog dialog(session, *first, usedTitles(), used(&sessioninmicro_v5::trainingplace),
                         this);
    return dialog.exec() == QDialog::Accepted ? std::optional(dialog.session()) : std::nullopt;
}

void PlanView::addSession() {
    if (!week())
        return;
    const auto session = asked(newSession());
    if (!session)
        return;
    editWeek(tr("new session"), [&](microsplanning_v5& week) {
        week.sessions.push_back(*session);
        renumberDays(week);
    });
    m_grid->chooseSession(week()->sessions.size() - 1);
}

void PlanView::editSession() {
    const auto chosen = m_grid->session();
    if (!week() || !chosen)
        return;
    const auto session = asked(week()->sessions[*chosen]);
    if (session)
        editWeek(tr("session"), [&](microsplanning_v5& week) {
            week.sessions[*chosen] = *session;
            renumberDays(week);
        });
}

void PlanView::removeSession() {
    const auto chosen = m_grid->session();
    if (!week() || !chosen)
        return;
    editWeek(tr("removal of a session"), [&](microsplanning_v5& week) {
        week.sessions.erase(week.sessions.begin() + static_cast<std::ptrdiff_t>(*chosen));
        renumberDays(week);
    });
    m_grid->chooseCell(m_grid->cell());
}

void PlanView::copySession() {
    if (week() && m_grid->session())
        m_copiedSession = week()->sessions[*m_grid->session()];
}

/// Into the chosen cell; a session that had its time in that part of the day keeps it.
void PlanView::pasteSession() {
    const auto first = week() ? dayOfMidnight(week()->monday) : std::nullopt;
    if (!first || !m_copiedSession)
        return;
    sessioninmicro_v5 session = *m_copiedSession;
    const auto day = dayOf(session);
    const sys_days to = *first + days(m_grid->cell().day);
    const double offset = day ? session.trainingtime.seconds - midnightOf(*day).seconds : 0;
    setDay(session, to);
    session.trainingtime.seconds += offset;
    setPart(session, m_grid->cell().part);
    editWeek(tr("copied session"), [&](microsplanning_v5& week) {
        week.sessions.push_back(session);
        renumberDays(week);
    });
    m_grid->chooseSession(week()->sessions.size() - 1);
}

void PlanView::moveSession(std::size_t session, const DayCell& to) {
    const auto first = week() ? dayOfMidnight(week()->monday) : std::nullopt;
    if (!first || session >= week()->sessions.size())
        return;
    const sys_days day = *first + days(to.day);
    std::optional<SessionPlace> at;
    editWeeks(tr("move of a session"), [&](std::vector<microsplanning_v5>& weeks) {
        std::vector<sessioninmicro_v5>& sessions = weeks[m_block.current].sessions;
        at = SessionPlace{m_block.current, session};
        if (!dayOf(sessions[session]))
            setDay(sessions[session], day);
        else if (dayOf(sessions[session]) != day)
            at = kavela::moveSession(weeks, *at, day);
        if (at)
            setPart(weeks[at->week].sessions[at->session], to.part);
    });
    if (at && at->week == m_block.current)
        m_grid->chooseSession(at->session);
}

void PlanView::moveSessionBy(int weeks) {
    const auto chosen = m_grid->session();
    const auto day = week() && chosen ? dayOf(week()->sessions[*chosen]) : std::nullopt;
    if (!day)
        return;
    const sys_days to = *day + days(7 * weeks);
    if (!weekOf(season()->micros, to)) {
        emit refused(tr("There is no week there in this season."));
        return;
    }
    std::optional<SessionPlace> at;
    editWeeks(tr("move of a session"), [&](std::vector<microsplanning_v5>& all) {
        at = kavela::moveSession(all, {m_block.current, *chosen}, to);
    });
    if (!at)
        return;
    chooseBlock({at->week, at->week});
    m_grid->chooseSession(at->session);
}

void PlanView::copyWeek() {
    if (!week())
        return;
    m_copiedWeek = *week();
    emit told(tr("Week %1 is copied.").arg(week()->number));
}

void PlanView::pasteWeek() {
    if (!week() || !m_copiedWeek)
        return;
    const auto copy = copiedWeek(*m_copiedWeek, *week());
    if (!copy) {
        emit refused(tr("One of the two weeks has a date that is in no calendar."));
        return;
    }
    const std::size_t before = week()->sessions.size();
    editWeek(tr("copy of a week"), [&](microsplanning_v5& week) { week = *copy; });
    emit told(tr("Week %1 now holds the copied week; %2 sessions that stood there went. Ctrl+Z "
                 "brings them back.")
                  .arg(week()->number)
                  .arg(before));
}

void PlanView::repeatChosen(std::size_t times) {
    if (!week())
        return;
    std::size_t written = 0;
    editWeeks(tr("repeated weeks"), [&](std::vector<microsplanning_v5>& weeks) {
        written = repeatBlock(weeks, m_block.first(), m_block.count(), times);
    });
    emit told(tr("%1 weeks were written.").arg(written));
}

void PlanView::askToRepeat() {
    if (!week())
        return;
    const std::size_t behind = season()->micros.size() - m_block.last() - 1;
    const auto most = static_cast<int>((behind + m_block.count() - 1) / m_block.count());
    if (most == 0) {
        emit refused(tr("There is no week behind the chosen ones."));
        return;
    }
    bool isWanted = false;
    const int times = QInputDialog::getInt(
        this, tr("Repeat"),
        tr("How often do the %1 chosen weeks follow themselves?\nSessions, totals, load, cycles, "
           "place, tests and goals of the weeks behind are replaced; their events and health stay.")
            .arg(m_block.count()),
        1, 1, most, 1, &isWanted);
    if (isWanted)
        repeatChosen(static_cast<std::size_t>(times));
}

void PlanView::clearWeek() {
    editWeeks(tr("emptied weeks"), [&](std::vector<microsplanning_v5>& weeks) {
        for (std::size_t i = m_block.first(); i <= m_block.last() && i < weeks.size(); ++i) {
            microsplanning_v5 empty;
            empty.number = weeks[i].number;
            empty.monday = weeks[i].monday;
            weeks[i] = empty;
        }
    });
}

void PlanView::planAsInSessions() {
    editWeeks(tr("planned totals"), [&](std::vector<microsplanning_v5>& weeks) {
        for (std::size_t i = m_block.first(); i <= m_block.last() && i < weeks.size(); ++i)
            kavela::planAsInSessions(weeks[i]);
    });
}

void PlanView::addWeek() {
    const yearsplannings_v6* const shown = season();
    if (!shown)
        return;
    const auto last =
        shown->micros.empty() ? std::nullopt : dayOfMidnight(shown->micros.back().monday);
    const sys_days first = last ? *last + days(7) : firstMondayOf(yearOf(*shown));
    std::int64_t number = shown->micros.empty() ? 0 : shown->micros.back().number;
    addWithin(number, 1);
    editWeeks(tr("new week"), [&](std::vector<microsplanning_v5>& weeks) {
        weeks.push_back(newSeason(first, 1).front());
        weeks.back().number = number;
    });
    chooseBlock({season()->micros.size() - 1, season()->micros.size() - 1});
}

void PlanView::removeLastWeek() {
    if (week())
        editWeeks(tr("removal of the last week"),
                  [](std::vector<microsplanning_v5>& weeks) { weeks.pop_back(); });
}

} // namespace kavela::desktop
