#include "splittaking/race_day/start_list.h"

#include "common/delimited_text.h"
#include "common/folded_text.h"
#include "common/text.h"
#include "splittaking/race_day/list_columns.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <map>
#include <span>
#include <utility>

namespace kavela {

namespace {

/// Of a list without titles.
const std::map<ListColumn, std::size_t> PlainPlaces = {
    {ListColumn::Bib, 0}, {ListColumn::Name, 1}, {ListColumn::Category, 2}, {ListColumn::Start, 3}};

/// A start before it has its place in the list.
struct ListedStart {
    DayStart start;
    std::optional<std::int64_t> order;
    std::int64_t line = 0;
};

/// Reads lines one after another; what is wrong with one is thrown as its reason.
class ListReading {
public:
    StartList read(std::string_view text) {
        DelimitedReader reader(text);
        for (bool isFirst = true; reader.next(); isFirst = false) {
            if (isFirst)
                if (ListColumns titled = ListColumns::byTitle(reader.fields()); titled.hasName()) {
                    m_columns = std::move(titled);
                    continue;
                }
            m_line = &reader;
            m_reason.clear();
            take();
            if (!m_reason.empty())
                m_list.refused.push_back({reader.number(), m_reason});
        }
        putInOrder();
        return std::move(m_list);
    }

private:
    [[nodiscard]] std::string text(ListColumn column) const {
        return m_columns.text(*m_line, column);
    }

    void take() {
        ListedStart listed;
        listed.line = m_line->number();
        listed.start.name = m_columns.name(*m_line);
        listed.start.cat = text(ListColumn::Category);
        if (listed.start.name.empty())
            m_reason = m_line->fields().size() < 2
                           ? say("1 field where a bib and a name are needed")
                           : say("there is no name");
        else if (takeBib(listed.start) && takeStart(listed))
            m_starts.push_back(std::move(listed));
    }

    bool takeBib(DayStart& start) {
        const std::string typed = text(ListColumn::Bib);
        if (typed.empty())
            return true;
        if (!parseField(typed, start.bib) || start.bib <= 0)
            m_reason = say("the bib \"{}\" is no number above 0", typed);
        else if (const auto [before, isNew] = m_bibs.try_emplace(start.bib, m_line->number());
                 !isNew)
            m_reason = say("the bib {} is on line {} already", typed, before->second);
        return m_reason.empty();
    }

    bool takeStart(ListedStart& listed) {
        std::string typed = text(ListColumn::Start);
        if (typed.empty())
            typed = text(ListColumn::Order);
        std::int64_t order = 0;
        if (const auto time = timeOfDay(typed))
            listed.start.starttime = *time;
        else if (!typed.empty() && parseField(std::string_view(typed), order))
            listed.order = order;
        else if (!typed.empty())
            m_reason =
                say("the start \"{}\" is neither a time of day such as 10:01:30 nor a number in "
                    "an order",
                    typed);
        const Kind kind = listed.start.starttime >= 0 ? Kind::Time
                          : listed.order              ? Kind::Order
                                                      : Kind::Line;
        if (m_reason.empty() && m_kind.value_or(kind) != kind)
            m_reason = *m_kind == Kind::Time ? say("there is no start time, which the others have")
                       : *m_kind == Kind::Order ? say("there is no number in the order")
                                                : say("the lines before have no start");
        if (m_reason.empty())
            m_kind = kind;
        else if (listed.start.bib > 0)
            m_bibs.erase(listed.start.bib); // another line may have it
        return m_reason.empty();
    }

    void putInOrder() {
        std::ranges::stable_sort(m_starts, [](const ListedStart& a, const ListedStart& b) {
            return a.order && b.order ? *a.order < *b.order : a.start.starttime < b.start.starttime;
        });
        for (ListedStart& listed : m_starts)
            m_list.starts.push_back(std::move(listed.start));
    }

    enum class Kind { Time, Order, Line };

    ListColumns m_columns{PlainPlaces};
    const DelimitedReader* m_line = nullptr;
    std::string m_reason;
    std::optional<Kind> m_kind;
    std::map<std::int64_t, std::int64_t> m_bibs; ///< with the lines that have them
    std::vector<ListedStart> m_starts;
    StartList m_list;
};

/// The start of a phase that a line of a list is about, among those that were there before the
/// list; null for a new one.
DayStart* sameBoat(std::span<DayStart> before, const DayStart& listed, std::string_view phase) {
    const auto found = std::ranges::find_if(before, [&](const DayStart& start) {
        if (start.phase != phase)
            return false;
        return listed.bib > 0 && start.bib > 0 ? start.bib == listed.bib
                                               : folded(start.name) == folded(listed.name);
    });
    return found == before.end() ? nullptr : &*found;
}

constexpr double SecondsInMinute = 60;
constexpr double MinutesInHour = 60;
constexpr double HoursInDay = 24;

} // namespace

StartList parseStartList(std::string_view text) {
    return ListReading().read(text);
}

std::optional<double> timeOfDay(std::string_view text) {
    std::array<double, 3> parts{};
    std::size_t count = 0;
    for (bool isMore = true; isMore; ++count) {
        const std::size_t colon = std::min(text.find(':'), text.size());
        isMore = colon < text.size();
        const std::string_view part = text.substr(0, colon);
        const bool isPlain = !part.empty() && part.find_first_not_of("0123456789.") == part.npos;
        // Only seconds have a fraction. A line break that was lost between two lines joins the
        // seconds of one to the bib of the next.
        const std::size_t digits = std::min(part.find('.'), part.size());
        if (count == parts.size() || !isPlain || digits > 2 ||
            (count < 2 && digits < part.size()) || !parseField(part, parts[count]))
            return std::nullopt;
        text.remove_prefix(std::min(colon + 1, text.size()));
    }
    if (count < 2 || parts[0] >= HoursInDay || parts[1] >= MinutesInHour ||
        parts[2] >= SecondsInMinute)
        return std::nullopt;
    return (parts[0] * MinutesInHour + parts[1]) * SecondsInMinute + parts[2];
}

std::string timeOfDayText(double seconds) {
    const auto tenths = std::llround(seconds * 10);
    const auto whole = tenths / 10;
    std::array<char, 40> text{};
    (void)std::snprintf(text.data(), text.size(), "%02lld:%02lld:%02lld", whole / 3600,
                        whole / 60 % 60, whole % 60);
    std::string result = text.data();
    return tenths % 10 == 0 ? result : result + '.' + std::to_string(tenths % 10);
}

RaceDay withStarts(RaceDay day, const StartList& list, std::string_view phase) {
    std::int64_t lastId = 0;
    for (const DayStart& start : day.starts)
        lastId = std::max(lastId, start.id);
    const std::size_t known = day.starts.size();
    for (const DayStart& listed : list.starts) {
        if (DayStart* const before = sameBoat(std::span(day.starts).first(known), listed, phase)) {
            before->bib = listed.bib > 0 ? listed.bib : before->bib;
            before->name = listed.name;
            before->cat = listed.cat;
            before->starttime = listed.starttime;
            continue;
        }
        DayStart& added = day.starts.emplace_back(listed);
        added.id = ++lastId;
        added.phase = phase;
    }
    // A start that has no time stays where it is behind the one before it.
    const bool areTimed =
        std::ranges::all_of(day.starts, [](const DayStart& start) { return start.starttime >= 0; });
    if (areTimed)
        std::ranges::stable_sort(day.starts, {}, &DayStart::starttime);
    return day;
}

} // namespace kavela
