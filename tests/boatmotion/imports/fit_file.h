#pragma once

#include "boatmotion/imports/fit_reader.h"

#include <cstdint>
#include <initializer_list>
#include <string>

namespace kavela::test {

/// Writes FIT files, in either byte order.
class FitFile {
public:
    struct Field {
        std::uint8_t number;
        std::uint8_t size;
        std::uint8_t baseType;
    };
    static constexpr std::uint8_t Code = 0x00;
    static constexpr std::uint8_t Byte = 0x02;
    static constexpr std::uint8_t Signed32 = 0x85;
    static constexpr std::uint8_t Unsigned16 = 0x84;
    static constexpr std::uint8_t Unsigned32 = 0x86;

    explicit FitFile(bool isBigEndian = false) : m_isBigEndian(isBigEndian) {}

    FitFile& define(std::uint8_t local, std::uint16_t message, std::initializer_list<Field> fields,
                    std::uint8_t developerBytes = 0) {
        raw(static_cast<std::uint8_t>(0x40U | (developerBytes ? 0x20U : 0U) | local), 1);
        raw(0, 1).raw(m_isBigEndian, 1).number(message, 2).raw(fields.size(), 1);
        for (const Field& field : fields)
            raw(field.number, 1).raw(field.size, 1).raw(field.baseType, 1);
        if (developerBytes)
            raw(1, 1).raw(0, 1).raw(developerBytes, 1).raw(0, 1);
        return *this;
    }
    FitFile& data(std::uint8_t local) { return raw(local, 1); }
    FitFile& compressed(std::uint8_t local, std::uint8_t offset) {
        return raw(0x80U | unsigned{local} << 5U | offset, 1);
    }
    FitFile& number(std::int64_t value, int size) {
        for (int i = 0; i < size; ++i) {
            const int place = m_isBigEndian ? size - 1 - i : i;
            raw(static_cast<std::uint64_t>(value) >> (8 * place) & 0xFFU, 1);
        }
        return *this;
    }
    FitFile& degrees(double value) {
        return number(static_cast<std::int64_t>(value * 2147483648.0 / 180), 4);
    }

    /// The file with its header and sums.
    [[nodiscard]] std::string content(bool hasLongHeader = true) const {
        FitFile header;
        header.raw(hasLongHeader ? 14 : 12, 1).raw(0x20, 1).number(2132, 2);
        header.number(static_cast<std::int64_t>(m_messages.size()), 4);
        header.m_messages += ".FIT";
        if (hasLongHeader)
            header.number(imports::fitCrc(header.m_messages), 2);
        FitFile sum;
        sum.number(imports::fitCrc(header.m_messages + m_messages), 2);
        return header.m_messages + m_messages + sum.m_messages;
    }

private:
    FitFile& raw(std::uint64_t value, int /*size*/) {
        m_messages += static_cast<char>(value);
        return *this;
    }

    std::string m_messages;
    bool m_isBigEndian;
};

/// 2026-05-07 10:02:00 UTC.
inline constexpr std::int64_t FitStart = 1147082520;
inline constexpr double FitStartDate = 799840920;

/// An activity of `points` seconds, north at 2.5 m/s, at 100, 101, 102… beats per minute.
inline FitFile activity(int points, bool isBigEndian = false, std::uint8_t developerBytes = 0) {
    FitFile file(isBigEndian);
    file.define(0, 0, {{0, 1, FitFile::Code}}).data(0).number(4, 1);
    file.define(1, 20,
                {{253, 4, FitFile::Unsigned32},
                 {0, 4, FitFile::Signed32},
                 {1, 4, FitFile::Signed32},
                 {3, 1, FitFile::Byte},
                 {6, 2, FitFile::Unsigned16}},
                developerBytes);
    for (int i = 0; i < points; ++i) {
        file.data(1).number(FitStart + i, 4).degrees(47 + i * 2.5 / 111195).degrees(8);
        file.number(100 + i, 1).number(2500, 2);
        for (std::uint8_t k = 0; k < developerBytes; ++k)
            file.number(0x5A, 1);
    }
    return file;
}

} // namespace kavela::test
