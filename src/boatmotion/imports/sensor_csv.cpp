#include "boatmotion/imports/sensor_csv.h"

#include "boatmotion/imports/csv/fields.h"
#include "boatmotion/imports/csv/guess.h"
#include "boatmotion/imports/csv/rows.h"
#include "boatmotion/imports/source_file.h"
#include "common/delimited_text.h"
#include "common/display_text.h"
#include "common/text.h"

#include <algorithm>
#include <array>

namespace kavela {

namespace {

constexpr std::size_t MostLines = 5'000'000;
constexpr std::size_t BeginningLines = 60; ///< with the titles and what a logger says before them

/// The fault of a group of which all or nothing has to be there.
bool isTorn(const CsvMapping& mapping, CsvQuantity first, std::size_t count) {
    std::size_t found = 0;
    for (std::size_t i = 0; i < count; ++i)
        found += std::ranges::find(mapping.columns,
                                   static_cast<CsvQuantity>(static_cast<std::size_t>(first) + i)) !=
                 mapping.columns.end();
    return found != 0 && found != count;
}

bool has(const CsvMapping& mapping, CsvQuantity quantity) {
    return std::ranges::find(mapping.columns, quantity) != mapping.columns.end();
}

std::optional<std::string> repeatedQuantity(const CsvMapping& mapping) {
    for (std::size_t q = 1; q < CsvQuantities; ++q) {
        const auto quantity = static_cast<CsvQuantity>(q);
        if (std::ranges::count(mapping.columns, quantity) > 1)
            return say("“{}” stands over two columns.", textOf(quantity));
    }
    return std::nullopt;
}

std::optional<std::string> tornGroup(const CsvMapping& mapping) {
    struct Group {
        CsvQuantity first;
        std::string_view fault;
    };
    constexpr std::array<Group, 4> Groups{
        {{CsvQuantity::TotalX,
          KAVELA_TEXT("Of the acceleration with gravity all of x, y and z are needed.")},
         {CsvQuantity::UserX,
          KAVELA_TEXT("Of the acceleration without gravity all of x, y and z are needed.")},
         {CsvQuantity::RotationX, KAVELA_TEXT("Of the rotation all of x, y and z are needed.")},
         {CsvQuantity::GravityX, KAVELA_TEXT("Of the gravity all of x, y and z are needed.")}}};
    for (const Group& group : Groups)
        if (isTorn(mapping, group.first, 3))
            return std::string(translated(group.fault));
    if (isTorn(mapping, CsvQuantity::Latitude, 2))
        return say("Latitude and longitude go together.");
    return std::nullopt;
}

} // namespace

std::string_view textOf(CsvQuantity quantity) {
    constexpr std::array<std::string_view, CsvQuantities> Texts{
        "–",
        KAVELA_TEXT("Time"),
        KAVELA_TEXT("Acc. x with gravity"),
        KAVELA_TEXT("Acc. y with gravity"),
        KAVELA_TEXT("Acc. z with gravity"),
        KAVELA_TEXT("Acc. x without gravity"),
        KAVELA_TEXT("Acc. y without gravity"),
        KAVELA_TEXT("Acc. z without gravity"),
        KAVELA_TEXT("Rotation x"),
        KAVELA_TEXT("Rotation y"),
        KAVELA_TEXT("Rotation z"),
        KAVELA_TEXT("Gravity x"),
        KAVELA_TEXT("Gravity y"),
        KAVELA_TEXT("Gravity z"),
        KAVELA_TEXT("Pitch"),
        KAVELA_TEXT("Roll"),
        KAVELA_TEXT("Yaw"),
        KAVELA_TEXT("Latitude"),
        KAVELA_TEXT("Longitude"),
        KAVELA_TEXT("Speed"),
        KAVELA_TEXT("Heart rate"),
    };
    return translated(Texts.at(static_cast<std::size_t>(quantity)));
}

std::optional<std::string> faultOf(const CsvMapping& mapping) {
    if (!has(mapping, CsvQuantity::Time))
        return say("No column is the time.");
    if (auto fault = repeatedQuantity(mapping))
        return fault;
    if (auto fault = tornGroup(mapping))
        return fault;
    if (mapping.hasDecimalComma && mapping.separator == ',')
        return say("Commas cannot be in numbers and between columns.");
    const auto isThere = [&](CsvQuantity quantity) { return has(mapping, quantity); };
    constexpr std::array Worthwhile = {CsvQuantity::TotalX, CsvQuantity::UserX,
                                       CsvQuantity::Latitude, CsvQuantity::HeartRate};
    if (std::ranges::none_of(Worthwhile, isThere))
        return say("No column is acceleration, position or heart rate.");
    return std::nullopt;
}

double CsvImport::seconds() const {
    const auto& samples = session.boatmotion;
    return samples.empty() ? 0 : samples.back().timestamp - samples.front().timestamp;
}

double CsvImport::sampleRate() const {
    const double length = seconds();
    return length > 0 ? static_cast<double>(session.boatmotion.size() - 1) / length : 0;
}

SensorCsv::SensorCsv(std::filesystem::path path) : m_path(std::move(path)) {
    imports::LineReader lines(m_path);
    std::string_view line;
    while (m_lines.size() < BeginningLines && lines.next(line)) {
        if (line.find('\0') != line.npos || line.starts_with("\xFF\xFE") ||
            line.starts_with("\xFE\xFF"))
            throw DecodeError({say("line {}", m_lines.size() + 1),
                               say("this is no plain text; a list has to be saved as UTF-8")});
        m_lines.emplace_back(line);
    }
    const CsvMapping likely = guess();
    if (likely.firstSample >= m_lines.size())
        throw DecodeError({{},
                           say("this is no list of samples: in its first {} lines there is none "
                               "with numbers in columns",
                               m_lines.size())});
}

CsvMapping SensorCsv::guess() const {
    return guess(imports::guessSeparator(m_lines));
}

CsvMapping SensorCsv::guess(char separator) const {
    return imports::guessMapping(m_lines, separator);
}

CsvPreview SensorCsv::preview(const CsvMapping& mapping) const {
    CsvPreview preview;
    for (const std::string& title : imports::titlesOf(m_lines, mapping))
        preview.titles.push_back(validUtf8(title));
    std::vector<std::string_view> fields;
    for (std::size_t i = mapping.firstSample;
         i < m_lines.size() && preview.rows.size() < PreviewRows; ++i) {
        splitFields(m_lines[i], mapping.separator, fields);
        auto& row = preview.rows.emplace_back();
        for (const std::string_view field : fields)
            row.push_back(validUtf8(field));
        row.resize(preview.titles.size());
    }
    return preview;
}

CsvImport SensorCsv::read(const CsvMapping& mapping, const std::stop_token& stop) const {
    if (const auto fault = faultOf(mapping))
        throw DecodeError({{}, *fault});
    imports::LineReader lines(m_path);
    imports::CsvRows rows(mapping);
    std::string_view line;
    for (std::size_t number = 1; !stop.stop_requested() && lines.next(line); ++number) {
        if (number > MostLines)
            throw DecodeError({{}, say("the list has more than {} lines", MostLines)});
        if (number > mapping.firstSample)
            rows.take(line, number);
    }
    return std::move(rows).finish();
}

} // namespace kavela
