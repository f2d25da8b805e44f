#include "planning/variability_import.h"

#include "common/folded_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <optional>

namespace kavela {

namespace {

using Measurement = variabilitydataplanning_v2;
using Fields = std::vector<std::string_view>;

struct Index {
    const char* name;
    double Measurement::*member;
};

constexpr std::array Indices{
    Index{"AVNN", &Measurement::AVNN},   Index{"SDNN", &Measurement::SDNN},
    Index{"rMSSD", &Measurement::rMSSD}, Index{"pNN50", &Measurement::pNN50},
    Index{"LF", &Measurement::LF},       Index{"HF", &Measurement::HF}};

std::string_view trimmed(std::string_view text) {
    constexpr std::string_view Blanks = " \t\r";
    const std::size_t first = text.find_first_not_of(Blanks);
    if (first == std::string_view::npos)
        return {};
    text = text.substr(first, text.find_last_not_of(Blanks) - first + 1);
    const bool isQuoted = text.size() >= 2 && text.starts_with('"') && text.ends_with('"');
    return isQuoted ? text.substr(1, text.size() - 2) : text;
}

std::string_view takeLine(std::string_view& text) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    const std::string_view line = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    return line;
}

Fields fieldsOf(std::string_view line, char separator) {
    Fields fields;
    for (;;) {
        const std::size_t end = line.find(separator);
        fields.push_back(trimmed(line.substr(0, end)));
        if (end == std::string_view::npos)
            return fields;
        line.remove_prefix(end + 1);
    }
}

char separatorOf(std::string_view header) {
    for (const char separator : {';', '\t'})
        if (header.find(separator) != std::string_view::npos)
            return separator;
    return ',';
}

template <class Number>
bool parse(std::string_view text, Number& number) {
    const auto [rest, fault] = std::from_chars(text.data(), text.data() + text.size(), number);
    return fault == std::errc() && rest == text.data() + text.size();
}

/// Whole numbers of fixed width with given characters between them, such as "2026-03-09".
std::optional<std::array<unsigned, 3>> parseThree(std::string_view text, char between,
                                                  std::size_t firstWidth) {
    std::array<unsigned, 3> parts{};
    if (text.size() != firstWidth + 6 || text[firstWidth] != between ||
        text[firstWidth + 3] != between || !parse(text.substr(0, firstWidth), parts[0]) ||
        !parse(text.substr(firstWidth + 1, 2), parts[1]) ||
        !parse(text.substr(firstWidth + 4), parts[2]))
        return std::nullopt;
    return parts;
}

/// Seconds of the day of "07:30" or "07:30:15".
std::optional<double> parseTime(std::string_view text) {
    const std::string whole = std::string(text) + (text.size() == 5 ? ":00" : "");
    const auto parts = parseThree(whole, ':', 2);
    if (!parts || (*parts)[0] > 23 || (*parts)[1] > 59 || (*parts)[2] > 59)
        return std::nullopt;
    return (*parts)[0] * 3600.0 + (*parts)[1] * 60.0 + (*parts)[2];
}

std::optional<ReferenceDate> parseDate(std::string_view text) {
    using namespace std::chrono;
    constexpr std::size_t DayWidth = 10;
    const auto parts = parseThree(text.substr(0, DayWidth), '-', 4);
    if (!parts)
        return std::nullopt;
    const year_month_day day(year(static_cast<int>((*parts)[0])), month((*parts)[1]),
                             std::chrono::day((*parts)[2]));
    if (!day.ok())
        return std::nullopt;
    if (text.size() == DayWidth)
        return referenceDate(day);
    if (text[DayWidth] != ' ' && text[DayWidth] != 'T')
        return std::nullopt;
    const auto seconds = parseTime(text.substr(DayWidth + 1));
    return seconds ? std::optional(referenceDate(day, *seconds)) : std::nullopt;
}

/// Where the header says each value stands.
class Header {
public:
    explicit Header(std::string_view line) : m_separator(separatorOf(line)) {
        const Fields names = fieldsOf(line, m_separator);
        for (std::size_t column = 0; column < names.size(); ++column) {
            const std::string name = folded(names[column]);
            if (name == "date")
                m_date = column;
            for (std::size_t i = 0; i < Indices.size(); ++i)
                if (name == folded(Indices[i].name))
                    m_columns[i] = column;
        }
    }

    /// What speaks against it; empty when nothing does.
    [[nodiscard]] std::string fault() const {
        if (!m_date)
            return "the header names no column Date";
        const bool hasIndex = std::ranges::any_of(
            m_columns, [](const std::optional<std::size_t>& column) { return column.has_value(); });
        return hasIndex ? "" : "the header names none of AVNN, SDNN, rMSSD, pNN50, LF and HF";
    }

    /// Reads a line; the reason when it cannot be.
    [[nodiscard]] std::string read(std::string_view line, Measurement& measurement) const {
        const Fields fields = fieldsOf(line, m_separator);
        const std::string_view dateText = at(fields, *m_date);
        const auto date = parseDate(dateText);
        if (!date)
            return "the date \"" + std::string(dateText) + "\" is no date such as 2026-03-09";
        measurement.date = *date;
        bool isMeasured = false;
        for (std::size_t i = 0; i < Indices.size(); ++i) {
            const std::string_view text = m_columns[i] ? at(fields, *m_columns[i]) : "";
            double& value = measurement.*Indices[i].member;
            if (!text.empty() && (!parse(text, value) || !std::isfinite(value) || value < 0))
                return "the " + std::string(Indices[i].name) + " \"" + std::string(text) +
                       "\" is no measured number";
            isMeasured = isMeasured || !text.empty();
        }
        return isMeasured ? "" : "there is no value in it";
    }

private:
    static std::string_view at(const Fields& fields, std::size_t column) {
        return column < fields.size() ? fields[column] : std::string_view();
    }

    char m_separator;
    std::optional<std::size_t> m_date;
    std::array<std::optional<std::size_t>, Indices.size()> m_columns;
};

} // namespace

VariabilityList parseVariability(std::string_view text) {
    VariabilityList list;
    const Header header(takeLine(text));
    if (!header.fault().empty()) {
        list.skipped.push_back({1, header.fault()});
        return list;
    }
    for (std::int64_t number = 2; !text.empty(); ++number) {
        const std::string_view line = takeLine(text);
        if (trimmed(line).empty())
            continue;
        Measurement measurement;
        if (std::string reason = header.read(line, measurement); !reason.empty())
            list.skipped.push_back({number, std::move(reason)});
        else
            list.measurements.push_back(measurement);
    }
    return list;
}

std::size_t addMeasurements(std::vector<Measurement>& present,
                            const std::vector<Measurement>& measurements) {
    std::size_t added = 0;
    for (const Measurement& measurement : measurements) {
        if (std::ranges::find(present, measurement.date, &Measurement::date) != present.end())
            continue;
        const auto behind = std::ranges::find_if(present, [&](const Measurement& other) {
            return other.date.seconds > measurement.date.seconds;
        });
        present.insert(behind, measurement);
        ++added;
    }
    return added;
}

} // namespace kavela
