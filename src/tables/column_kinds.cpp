#include "tables/column_kinds.h"

#include "common/folded_text.h"
#include "common/reference_date.h"
#include "common/text.h"
#include "common/typed_number.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <cmath>

namespace kavela {

namespace {

constexpr std::array<std::string_view, 6> KindNames{KAVELA_TEXT("whole"), KAVELA_TEXT("decimal"),
                                                    KAVELA_TEXT("time"),  KAVELA_TEXT("status"),
                                                    KAVELA_TEXT("date"),  KAVELA_TEXT("text")};

/// A count of whole numbers beyond this has lost its digits.
constexpr double LargestExact = 9e15;

/// A rank may have the point of its language: "1.".
std::optional<double> wholeIn(std::string_view text) {
    if (text.ends_with('.'))
        text.remove_suffix(1);
    const auto number = typedWhole(text);
    if (!number || std::abs(static_cast<double>(*number)) > LargestExact)
        return std::nullopt;
    return static_cast<double>(*number);
}

/// "92.45 (2)", "92.45 +2", "92.45": the time and what stands behind it.
CellValue timeIn(std::string_view text) {
    CellValue value;
    value.number = typedSeconds(text);
    if (value.number)
        return value;
    const std::size_t open = text.find_first_of("(+");
    if (open == text.npos || open == 0)
        return value;
    std::string_view penalty = text.substr(open + 1);
    if (text[open] == '(') {
        if (!penalty.ends_with(')'))
            return value;
        penalty.remove_suffix(1);
    }
    const auto time = typedSeconds(text.substr(0, open));
    const auto seconds = typedWhole(penalty);
    if (time && seconds && *seconds >= 0) {
        value.number = time;
        value.penalty = seconds;
    }
    return value;
}

/// Takes whole digits and the sign behind them; nothing where there are none.
std::optional<unsigned> datePart(std::string_view& text, char sign) {
    unsigned number = 0;
    const auto [rest, fault] = std::from_chars(text.data(), text.data() + text.size(), number);
    const auto used = static_cast<std::size_t>(rest - text.data());
    const bool isEnd = used == text.size();
    if (fault != std::errc() || used > 4 || (sign != 0 && (isEnd || *rest != sign)) ||
        (sign == 0 && !isEnd))
        return std::nullopt;
    text.remove_prefix(std::min(used + 1, text.size()));
    return number;
}

std::optional<double> dateIn(std::string_view text) {
    const std::size_t mark = text.find_first_of("-./");
    if (mark == text.npos)
        return std::nullopt;
    const char sign = text[mark];
    const bool isYearFirst = mark == 4;
    const auto first = datePart(text, sign);
    // "3. 5. 2026"
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    const auto month = datePart(text, sign);
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    const auto last = datePart(text, 0);
    if (!first || !month || !last || (!isYearFirst && *last < 1000) ||
        (isYearFirst && *first < 1000))
        return std::nullopt;
    using namespace std::chrono;
    const year_month_day day{year(static_cast<int>(isYearFirst ? *first : *last)),
                             std::chrono::month(*month),
                             std::chrono::day(isYearFirst ? *last : *first)};
    if (!day.ok())
        return std::nullopt;
    return static_cast<double>(sys_days(day).time_since_epoch().count());
}

std::string_view lackOf(ListColumnKind kind) {
    switch (kind) {
    case ListColumnKind::Whole:
        return translated("no whole number");
    case ListColumnKind::Decimal:
        return translated("no number");
    case ListColumnKind::Time:
        return translated("no time such as 92.45, 1:32.45 or 92.45 (2)");
    case ListColumnKind::Status:
        return translated("none of DNS, DNF, DSQ and the like");
    case ListColumnKind::Date:
        return translated("no day such as 2026-05-03 or 3.5.2026");
    case ListColumnKind::Text:
        break;
    }
    return "";
}

} // namespace

std::string_view kindName(ListColumnKind kind) {
    return KindNames.at(static_cast<std::size_t>(kind));
}

std::optional<ListColumnKind> columnKindNamed(std::string_view name) {
    const auto found = std::ranges::find(KindNames, name);
    return found == KindNames.end()
               ? std::nullopt
               : std::optional(static_cast<ListColumnKind>(found - KindNames.begin()));
}

bool isReckoned(ListColumnKind kind) {
    return kind <= ListColumnKind::Time;
}

bool isNoValue(std::string_view text) {
    constexpr std::array<std::string_view, 6> Dashes{"", "-", "--", "---", "–", "—"};
    return std::ranges::find(Dashes, text) != Dashes.end();
}

bool isStatusWord(std::string_view text) {
    constexpr std::array<std::string_view, 9> Words{"dns",  "dnf",   "dsq",   "dnq", "dq",
                                                    "dsqr", "dsq-r", "dsq-c", "disq"};
    constexpr std::size_t Longest = 6;
    return text.size() <= Longest && std::ranges::find(Words, folded(text)) != Words.end();
}

CellValue valueAs(ListColumnKind kind, std::string_view text) {
    CellValue value;
    if (kind == ListColumnKind::Text || isNoValue(text))
        return value;
    if (isStatusWord(text)) {
        value.isStatus = true;
        return value;
    }
    if (kind == ListColumnKind::Whole)
        value.number = wholeIn(text);
    else if (kind == ListColumnKind::Decimal)
        value.number = typedReal(text);
    else if (kind == ListColumnKind::Time)
        value = timeIn(text);
    else if (kind == ListColumnKind::Date)
        value.number = dateIn(text);
    if (!value.number || !std::isfinite(*value.number)) {
        value = {};
        value.reason = lackOf(kind);
    }
    return value;
}

ListColumnKind guessedKind(std::span<const std::string> texts) {
    std::array<std::size_t, KindNames.size()> taken{};
    std::size_t cells = 0;
    std::size_t words = 0;
    for (const std::string& text : texts) {
        if (isNoValue(text))
            continue;
        if (isStatusWord(text)) {
            ++words;
            continue;
        }
        ++cells;
        for (const ListColumnKind kind : {ListColumnKind::Whole, ListColumnKind::Decimal,
                                          ListColumnKind::Time, ListColumnKind::Date})
            if (valueAs(kind, text).number)
                ++taken.at(static_cast<std::size_t>(kind));
    }
    if (cells == 0)
        return words > 0 ? ListColumnKind::Status : ListColumnKind::Text;
    const auto most = std::ranges::max_element(taken); // the first, which is the narrowest
    const bool isEnough = *most * 3 >= cells * 2;
    return isEnough ? static_cast<ListColumnKind>(most - taken.begin()) : ListColumnKind::Text;
}

std::string dayNumberText(double days) {
    constexpr double SecondsPerDay = 86'400;
    return dayText({days * SecondsPerDay - SecondsFrom1970To2001});
}

bool isRunTime(double seconds) {
    constexpr double NoResult = 999;
    return seconds > 0 && seconds < NoResult;
}

} // namespace kavela
