#include "planning/calendar_text.h"

#include "common/display_text.h"
#include "common/number_text.h"
#include "planning/calendar_day.h"
#include "planning/session_length.h"
#include "planning/training_categories.h"
#include "splitdata/run_timing.h"

#include <fmt/format.h>

namespace kavela {

using namespace std::chrono;

namespace {

constexpr minutes UsualLength = hours(1);

std::string dayDigits(sys_days day) {
    const year_month_day date(day);
    return fmt::format("{:04}{:02}{:02}", static_cast<int>(date.year()),
                       static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()));
}

std::string momentDigits(sys_days day, minutes time) {
    const sys_days shown = day + floor<days>(time);
    const hh_mm_ss ofDay(time - floor<days>(time));
    return fmt::format("{}T{:02}{:02}00", dayDigits(shown), ofDay.hours().count(),
                       ofDay.minutes().count());
}

std::string escaped(const std::string& text) {
    std::string safe;
    for (const char c : validUtf8(text)) {
        if (c == '\n')
            safe += "\\n";
        else if (c == '\\' || c == ';' || c == ',')
            (safe += '\\') += c;
        else if (static_cast<unsigned char>(c) >= ' ')
            safe += c;
    }
    return safe;
}

/// A content line, broken where it is longer than 75 bytes and never within a character.
std::string contentLine(const std::string& content) {
    constexpr std::size_t Longest = 75;
    std::string lines;
    std::size_t length = 0;
    for (std::size_t i = 0; i < content.size();) {
        std::size_t end = i + 1;
        while (end < content.size() && (static_cast<unsigned char>(content[end]) & 0xC0U) == 0x80U)
            ++end;
        if (length + end - i > Longest) {
            lines += "\r\n ";
            length = 1;
        }
        lines.append(content, i, end - i);
        length += end - i;
        i = end;
    }
    return lines + "\r\n";
}

std::string descriptionOf(const sessioninmicro_v5& session) {
    std::string text = entryOrZero(session.titleanddes, 1);
    for (std::size_t i = 0; i < session.data.size(); ++i)
        if (session.data[i] != 0)
            text += (text.empty() ? "" : "\n") + trainingCategory(i) + ": " +
                    shortestText(session.data[i]);
    return text;
}

std::string titleOf(const sessioninmicro_v5& session) {
    const std::string title = entryOrZero(session.titleanddes, 0);
    return title.empty() ? "Training" : title;
}

std::string timesOf(const sessioninmicro_v5& session, sys_days day, minutes length) {
    const auto time = timeOf(session);
    if (!time)
        return contentLine("DTSTART;VALUE=DATE:" + dayDigits(day));
    return contentLine("DTSTART:" + momentDigits(day, *time)) +
           contentLine("DTEND:" + momentDigits(day, *time + length));
}

/// The same at every export, so that a calendar replaces a session and does not show it twice.
std::string identifier(const std::string& athlete, const std::string& place) {
    std::uint64_t hash = 14695981039346656037U; // FNV-1a
    for (const char c : athlete)
        hash = (hash ^ static_cast<unsigned char>(c)) * 1099511628211U;
    return fmt::format("{}-{:016x}@kavela", place, hash);
}

} // namespace

std::string weekCalendar(const athletesplanning_v6& athlete, const microsplanning_v5& week,
                         std::span<const favInvervalSessions_v2> intervalSessions,
                         ReferenceDate written) {
    const sys_days stampDay = dayOfMoment(written).value_or(sys_days());
    const auto sinceMidnight = seconds(static_cast<std::int64_t>(
        dayOfMoment(written) ? written.seconds - midnightOf(stampDay).seconds : 0));
    const std::string stamp = momentDigits(stampDay, floor<minutes>(sinceMidnight)) + 'Z';
    std::string text = "BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:-//Kavela//Planning//EN\r\n";
    for (const sessioninmicro_v5& session : week.sessions) {
        const auto day = dayOf(session);
        if (!day)
            continue;
        const std::string place = dayDigits(*day) + '-' + std::to_string(session.dayPosition);
        text += "BEGIN:VEVENT\r\n";
        text += contentLine("UID:" + identifier(athlete.name, place));
        text += contentLine("DTSTAMP:" + stamp);
        text +=
            timesOf(session, *day, plannedLength(session, intervalSessions).value_or(UsualLength));
        text += contentLine("SUMMARY:" + escaped(titleOf(session)));
        if (!session.trainingplace.empty())
            text += contentLine("LOCATION:" + escaped(session.trainingplace));
        if (const std::string description = descriptionOf(session); !description.empty())
            text += contentLine("DESCRIPTION:" + escaped(description));
        text += "END:VEVENT\r\n";
    }
    return text + "END:VCALENDAR\r\n";
}

} // namespace kavela
