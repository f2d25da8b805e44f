#pragma once

#include "boatmotion/imports/sensor_csv.h"

#include <array>

namespace kavela::imports {

/// Turns the lines of a list into a recording, one after the other.
class CsvRows {
public:
    explicit CsvRows(const CsvMapping& mapping);

    /// Takes a line; `number` is counted from 1.
    void take(std::string_view line, std::size_t number);

    /// What was taken, in order of time, with gravity apart.
    [[nodiscard]] CsvImport finish() &&;

private:
    enum class Reading { Taken, Missing, Unreadable };

    [[nodiscard]] bool readFields(std::size_t number);
    [[nodiscard]] Reading readTime(std::string_view field);
    [[nodiscard]] Reading readValue(std::string_view field, CsvQuantity quantity);
    void skip(std::size_t number, std::string reason);
    void skipField(std::size_t number, std::size_t column);
    void addSample();
    void addFix();
    void addHeart();
    [[nodiscard]] bool hasNew(CsvQuantity first, std::size_t count) const;
    [[nodiscard]] double& value(CsvQuantity quantity);
    [[nodiscard]] bool isMapped(CsvQuantity quantity) const;
    [[nodiscard]] ReferenceDate date(double stamp) const;
    void orderSamples();
    void separateGravity();

    const CsvMapping& m_mapping;
    CsvImport m_import;
    std::vector<std::string_view> m_fields;
    std::array<double, CsvQuantities> m_values{}; ///< the last of each, in the recording's units
    std::array<double, CsvQuantities> m_scales{};
    std::array<bool, CsvQuantities> m_mapped{};
    std::array<bool, CsvQuantities> m_isNew{}; ///< in the present line
    double m_stamp = 0;
    std::optional<double> m_firstStamp;
    std::optional<double> m_fixStamp;
    std::optional<double> m_heartStamp;
};

} // namespace kavela::imports
