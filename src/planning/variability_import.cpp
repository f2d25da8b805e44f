#include "planning/variability_import.h"

#include "common/delimited_text.h"
#include "common/folded_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <optional>

namespace kavela {

namespace {

using Measurement = variabilitydataplanning_v2;

struct Index {
    const char* name;
    double Measurement::*member;
};

constexpr std::array Indices{
    Index{"AVNN", &Measurement::AVNN},   Index{"SDNN", &Measurement::SDNN},
    Index{"rMSSD", &Measurement::rMSSD}, Index{"pNN50", &Measurement::pNN50},
    Index{"LF", &Measurement::LF},       Index{"HF", &Measurement::HF}};

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
    explicit Header(const std::vector<std::string_view>& names) {
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
    [[nodiscard]] std::string read(const DelimitedReader& line, Measurement& measurement) const {
        const std::string_view dateText = line.field(*m_date);
        const auto date = parseDate(dateText);
        if (!date)
            return "the date \"" + std::string(dateText) + "\" is no date such as 2026-03-09";
        measurement.date = *date;
        bool isMeasured = false;
        for (std::size_t i = 0; i < Indices.size(); ++i) {
            const std::string_view text = m_columns[i] ? line.field(*m_columns[i]) : "";
            double& value = measurement.*Indices[i].member;
            if (!text.empty() && (!parse(text, value) || !std::isfinite(value) || value < 0))
                return "the " + std::string(Indices[i].name) + " \"" + std::string(text) +
                       "\" is no measured number";
            isMeasured = isMeasured || !text.empty();
        }
        return isMeasured ? "" : "there is no value in it";
    }

private:
    std::optional<std::size_t> m_date;
    std::array<std::optional<std::size_t>, Indices.size()> m_columns;
};

} // namespace

VariabilityList parseVariability(std::string_view text) {
    VariabilityList list;
    DelimitedReader reader(text);
    const bool hasTitles = reader.next() && reader.number() == 1;
    const Header header(hasTitles ? reader.fields() : std::vector<std::string_view>());
    if (!header.fault().empty()) {
        list.skipped.push_back({1, header.fault()});
        return list;
    }
    while (reader.next()) {
        Measurement measurement;
        if (std::string reason = header.read(reader, measurement); !reason.empty())
            list.skipped.push_back({reader.number(), std::move(reason)});
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
