#include "boatmotion/imports/csv/guess.h"

#include "boatmotion/imports/csv/fields.h"
#include "boatmotion/imports/csv/titles.h"
#include "boatmotion/imports/iso_date.h"
#include "common/delimited_text.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <map>

namespace kavela::imports {

namespace {

/// The first samples as numbers, column by column.
struct Samples {
    std::vector<std::vector<std::optional<double>>> columns;
    std::vector<bool> isDate; ///< for each column

    [[nodiscard]] double meanSize(std::size_t column) const {
        double sum = 0;
        double count = 0;
        for (const auto& value : columns[column])
            if (value) {
                sum += std::abs(*value);
                ++count;
            }
        return count > 0 ? sum / count : 0;
    }
};

bool isNumberWithComma(std::string_view field) {
    return field.find(',') != field.npos && fieldNumber(field, true).has_value();
}

/// Numbers or a date, as a sample has them; `anyValue` of a line of nothing but missing values is
/// not enough.
bool isSample(const std::vector<std::string_view>& fields, bool hasDecimalComma) {
    std::size_t values = 0;
    std::size_t others = 0;
    for (const std::string_view field : fields) {
        const bool isValue = fieldNumber(field, hasDecimalComma) || isoDate(field);
        values += isValue;
        others += !isValue && !isMissing(field);
    }
    return values >= 2 && values > others;
}

std::size_t firstSample(std::span<const std::string> lines, const CsvMapping& mapping) {
    std::vector<std::string_view> fields;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        splitFields(lines[i], mapping.separator, fields);
        if (isSample(fields, mapping.hasDecimalComma))
            return i;
    }
    return lines.size();
}

Samples samplesOf(std::span<const std::string> lines, const CsvMapping& mapping,
                  std::size_t columns) {
    Samples samples{std::vector<std::vector<std::optional<double>>>(columns),
                    std::vector<bool>(columns)};
    std::vector<std::string_view> fields;
    for (const std::string& line : lines) {
        splitFields(line, mapping.separator, fields);
        for (std::size_t c = 0; c < std::min(columns, fields.size()); ++c) {
            auto value = fieldNumber(fields[c], mapping.hasDecimalComma);
            if (const auto date = value ? std::nullopt : isoDate(fields[c])) {
                value = date->seconds;
                samples.isDate[c] = true;
            }
            samples.columns[c].push_back(value);
        }
    }
    return samples;
}

/// Guesses one thing after the other from titles and samples.
class Guess {
public:
    Guess(CsvMapping& mapping, std::vector<CsvTitle> titles, Samples samples)
        : m_mapping(mapping), m_titles(std::move(titles)), m_samples(std::move(samples)) {}

    void make() {
        assignColumns();
        chooseTime();
        decideAcceleration();
        decideOtherUnits();
        decideDirection();
    }

private:
    [[nodiscard]] std::optional<std::size_t> columnOf(CsvQuantity quantity) const {
        const auto& columns = m_mapping.columns;
        const auto found = std::ranges::find(columns, quantity);
        if (found == columns.end())
            return std::nullopt;
        return static_cast<std::size_t>(found - columns.begin());
    }

    [[nodiscard]] bool unitHas(CsvQuantity quantity, std::string_view part) const {
        const auto column = columnOf(quantity);
        return column && m_titles[*column].unit.find(part) != std::string::npos;
    }

    /// Of several columns for one quantity the first.
    void assignColumns() {
        for (std::size_t c = 0; c < m_titles.size(); ++c) {
            const CsvQuantity quantity = m_titles[c].quantity;
            m_mapping.columns.push_back(
                quantity != CsvQuantity::Time && columnOf(quantity) ? CsvQuantity::None : quantity);
        }
    }

    /// Of several times one that is a date is worth most, then the first; one that mostly stands
    /// still, that of the last fix for example, is worth least.
    void chooseTime() {
        std::optional<std::size_t> chosen;
        const auto worth = [&](std::size_t c) {
            if (standsStill(c))
                return -1;
            return m_samples.isDate[c] ? 1 : m_samples.meanSize(c) > 1e9 ? 2 : 0;
        };
        for (std::size_t c = 0; c < m_titles.size(); ++c)
            if (m_mapping.columns[c] == CsvQuantity::Time) {
                if (!chosen || worth(c) > worth(*chosen))
                    chosen = c;
                m_mapping.columns[c] = CsvQuantity::None;
            }
        if (!chosen)
            return;
        m_mapping.columns[*chosen] = CsvQuantity::Time;
        m_mapping.time = timeUnit(*chosen);
    }

    [[nodiscard]] bool standsStill(std::size_t column) const {
        const auto& values = m_samples.columns[column];
        std::size_t moves = 0;
        for (std::size_t i = 1; i < values.size(); ++i)
            moves += values[i] && values[i - 1] && *values[i] > *values[i - 1];
        return values.size() > 2 && 2 * moves < values.size() - 1;
    }

    [[nodiscard]] CsvTime timeUnit(std::size_t column) const {
        if (m_samples.isDate[column])
            return CsvTime::Date;
        const double size = m_samples.meanSize(column);
        // From 1970 to now, and less than a century.
        constexpr double Age = 3e9;
        if (size > 1e9)
            return size < Age         ? CsvTime::Seconds
                   : size < Age * 1e3 ? CsvTime::Milliseconds
                   : size < Age * 1e6 ? CsvTime::Microseconds
                                      : CsvTime::Nanoseconds;
        const std::string& unit = m_titles[column].unit;
        if (unit == "ms")
            return CsvTime::Milliseconds;
        if (unit == "ns")
            return CsvTime::Nanoseconds;
        return unit == "s" ? CsvTime::Seconds : unitOfStep(stepOf(column));
    }

    [[nodiscard]] static CsvTime unitOfStep(double step) {
        if (step < 1.5) // from 1 to 1000 samples a second
            return CsvTime::Seconds;
        if (step < 1500)
            return CsvTime::Milliseconds;
        return step < 1.5e6 ? CsvTime::Microseconds : CsvTime::Nanoseconds;
    }

    [[nodiscard]] double stepOf(std::size_t column) const {
        const auto& values = m_samples.columns[column];
        std::vector<double> steps;
        for (std::size_t i = 1; i < values.size(); ++i)
            if (values[i] && values[i - 1] && *values[i] > *values[i - 1])
                steps.push_back(*values[i] - *values[i - 1]);
        if (steps.empty())
            return 0;
        const auto middle = steps.begin() + static_cast<std::ptrdiff_t>(steps.size() / 2);
        std::nth_element(steps.begin(), middle, steps.end());
        return *middle;
    }

    /// The mean length of a quantity of three axes; nothing when an axis is missing.
    [[nodiscard]] std::optional<double> lengthOf(CsvQuantity x) const {
        double square = 0;
        for (int axis = 0; axis < 3; ++axis) {
            const auto column = columnOf(static_cast<CsvQuantity>(static_cast<int>(x) + axis));
            if (!column)
                return std::nullopt;
            square += std::pow(m_samples.meanSize(*column), 2);
        }
        return std::sqrt(square);
    }

    /// A title that does not tell whether gravity is in the acceleration leaves it to its size.
    void decideAcceleration() {
        const auto total = lengthOf(CsvQuantity::TotalX);
        const auto gravity = lengthOf(CsvQuantity::GravityX);
        const bool titleTells = total && m_titles[*columnOf(CsvQuantity::TotalX)].tellsGravity;
        const bool isTotal = total && ((*total > 0.6 && *total < 1.7) || *total > 6 || titleTells);
        if (total && !isTotal && !columnOf(CsvQuantity::UserX))
            for (CsvQuantity& quantity : m_mapping.columns)
                if (quantity >= CsvQuantity::TotalX && quantity <= CsvQuantity::TotalZ)
                    quantity = static_cast<CsvQuantity>(static_cast<int>(quantity) + 3);
        const auto titled = [&](std::string_view unit) {
            return unitHas(CsvQuantity::TotalX, unit) || unitHas(CsvQuantity::UserX, unit);
        };
        const double still = gravity.value_or(isTotal ? *total : 0);
        const bool isInG = still > 0 ? still < 4 : titled("g") && !titled("m/s");
        m_mapping.acceleration =
            isInG ? CsvAcceleration::G : CsvAcceleration::MetresPerSecondSquared;
    }

    void decideOtherUnits() {
        if (unitHas(CsvQuantity::RotationX, "deg") || unitHas(CsvQuantity::RotationX, "°"))
            m_mapping.rotation = CsvRotation::DegreesPerSecond;
        const bool hasDegrees = unitHas(CsvQuantity::Pitch, "deg") ||
                                unitHas(CsvQuantity::Roll, "deg") ||
                                unitHas(CsvQuantity::Pitch, "°");
        bool isBeyondRadians = false;
        for (const CsvQuantity angle : {CsvQuantity::Pitch, CsvQuantity::Roll, CsvQuantity::Yaw})
            if (const auto column = columnOf(angle))
                isBeyondRadians = isBeyondRadians || m_samples.meanSize(*column) > 6.3;
        if (hasDegrees || isBeyondRadians)
            m_mapping.angle = CsvAngle::Degrees;
        if (unitHas(CsvQuantity::Speed, "km"))
            m_mapping.speed = CsvSpeed::KilometresPerHour;
    }

    /// A phone that lies is taken to show its screen; otherwise the unit tells: loggers that give
    /// g mostly read down.
    void decideDirection() {
        m_mapping.readsUpAtRest = m_mapping.acceleration != CsvAcceleration::G;
        for (const CsvQuantity x : {CsvQuantity::GravityX, CsvQuantity::TotalX}) {
            const auto length = lengthOf(x);
            if (!length)
                continue;
            const std::size_t z = *columnOf(static_cast<CsvQuantity>(static_cast<int>(x) + 2));
            double sum = 0;
            double count = 0;
            for (const auto& value : m_samples.columns[z])
                if (value) {
                    sum += *value;
                    ++count;
                }
            if (count > 0 && std::abs(sum / count) > 0.5 * *length) {
                m_mapping.readsUpAtRest = sum > 0;
                return;
            }
        }
    }

    CsvMapping& m_mapping;
    std::vector<CsvTitle> m_titles;
    Samples m_samples;
};

} // namespace

char guessSeparator(std::span<const std::string> lines) {
    char best = ',';
    std::size_t bestCount = 0;
    std::vector<std::string_view> fields;
    // Of equals the first; decimal commas cut as evenly as separating ones.
    for (const char separator : {';', '\t', ','}) {
        std::map<std::size_t, std::size_t> counts;
        for (const std::string& line : lines) {
            splitFields(line, separator, fields);
            if (fields.size() > 1)
                ++counts[fields.size()];
        }
        for (const auto& [width, count] : counts)
            if (count > bestCount) {
                best = separator;
                bestCount = count;
            }
    }
    return best;
}

CsvMapping guessMapping(std::span<const std::string> lines, char separator) {
    CsvMapping mapping;
    mapping.separator = separator;
    std::vector<std::string_view> fields;
    for (std::size_t i = 0; separator != ',' && i < lines.size(); ++i) {
        splitFields(lines[i], separator, fields);
        mapping.hasDecimalComma =
            mapping.hasDecimalComma || std::ranges::any_of(fields, isNumberWithComma);
    }
    mapping.firstSample = firstSample(lines, mapping);
    const std::vector<std::string> titles = titlesOf(lines, mapping);
    std::vector<CsvTitle> read;
    for (const std::string& title : titles)
        read.push_back(readTitle(title));
    Samples samples = samplesOf(lines.subspan(mapping.firstSample), mapping, titles.size());
    Guess(mapping, std::move(read), std::move(samples)).make();
    return mapping;
}

std::vector<std::string> titlesOf(std::span<const std::string> lines, const CsvMapping& mapping) {
    std::vector<std::string_view> fields;
    std::size_t columns = 0;
    const std::size_t first = std::min(mapping.firstSample, lines.size());
    for (std::size_t i = first; i < lines.size(); ++i) {
        splitFields(lines[i], mapping.separator, fields);
        columns = std::max(columns, fields.size());
    }
    std::vector<std::string> titles(columns);
    // A second line of titles, of the units, joins the first; what a logger says about itself
    // before them has fewer fields.
    for (std::size_t i = 0; i < first; ++i) {
        splitFields(lines[i], mapping.separator, fields);
        if (fields.size() < 2 || 2 * fields.size() < columns)
            continue;
        for (std::size_t c = 0; c < std::min(columns, fields.size()); ++c)
            if (!fields[c].empty())
                titles[c] += titles[c].empty() ? std::string(fields[c])
                                               : " [" + std::string(fields[c]) + ']';
    }
    return titles;
}

} // namespace kavela::imports
