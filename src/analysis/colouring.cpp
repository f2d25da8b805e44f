#include "analysis/colouring.h"

#include "analysis/analysis_rules.h"
#include "common/percentile.h"

#include <algorithm>
#include <numeric>

namespace kavela {

namespace {

constexpr std::array Fractions{0.0, 0.1, 0.2, 0.3, 0.4, 0.5, 0.6, 0.7, 0.8, 0.9, 1.0};

constexpr Colour tint(double red, double green, double blue) {
    return {red / 255, green / 255, blue / 255, 1};
}

struct BandLook {
    std::string_view name;
    std::optional<Colour> colour;
};

constexpr std::array BandLooks{
    BandLook{"clear", std::nullopt},
    BandLook{"fastest", NamedGreen},
    BandLook{"1", tint(80, 255, 80)},
    BandLook{"2", tint(150, 255, 150)},
    BandLook{"3", tint(180, 255, 180)},
    BandLook{"4", tint(220, 255, 220)},
    BandLook{"5", NamedWhite},
    BandLook{"6", NamedWhite},
    BandLook{"7", tint(255, 220, 220)},
    BandLook{"8", tint(255, 180, 180)},
    BandLook{"9", tint(255, 150, 150)},
    BandLook{"10", Colour{1, 0, 0, 0.8}},
    BandLook{"slowest", tint(255, 20, 20)},
    BandLook{"marked", NamedWhite},
};

// From the fastest to the slowest; steps of a diverging scale that stays apart in lightness for
// every common kind of colour blindness.
constexpr std::array BlueOrangeTints{tint(0x2F, 0x7B, 0xC4),
                                     tint(0x5F, 0xA3, 0xDB),
                                     tint(0x92, 0xC2, 0xE8),
                                     tint(0xB9, 0xD8, 0xF0),
                                     tint(0xDC, 0xEB, 0xF7),
                                     NamedWhite,
                                     NamedWhite,
                                     tint(0xFD, 0xEA, 0xD3),
                                     tint(0xFB, 0xD0, 0xA0),
                                     tint(0xF5, 0xB0, 0x65),
                                     tint(0xE6, 0x85, 0x1C),
                                     tint(0xD0, 0x6A, 0x00)};

const BandLook& lookOf(Band band) {
    return BandLooks[static_cast<std::size_t>(band)];
}

/// The column that a cell of column `number` is compared within. From column 12 on the columns are
/// one more, the real times of every run, wherever that falls. Empty when there is no such column.
Column comparedColumn(const std::vector<Column>& columns, int number, const RaceSet& set) {
    const auto index = static_cast<std::size_t>(number - 1);
    if (index < columns.size())
        return columns[index];
    Column real;
    if (number >= SprintColumn && index == columns.size())
        for (const analyzerdata& run : set.alldata)
            real.push_back(run.sectioninfo.realtime);
    return real;
}

/// Takes the zeros out one at a time, as long as the column's sum is above 0. Taking out a zero
/// never changes the sum, so either all of them go or none.
void removeZeros(Column& column) {
    if (std::accumulate(column.begin(), column.end(), 0.0) > 0)
        std::erase(column, 0.0);
}

} // namespace

std::string_view bandName(Band band) {
    return lookOf(band).name;
}

std::optional<Colour> bandColour(Band band, ColourScale scale) {
    if (scale == ColourScale::BlueOrange && band >= Band::Fastest && band <= Band::Slowest)
        return BlueOrangeTints[static_cast<std::size_t>(band) -
                               static_cast<std::size_t>(Band::Fastest)];
    return lookOf(band).colour;
}

Colour faded(const Colour& tint) {
    constexpr double Left = 0.3;
    const auto pale = [&](double channel) { return 1 - Left * tint.alpha * (1 - channel); };
    return {pale(tint.red), pale(tint.green), pale(tint.blue), 1};
}

ColumnScale::ColumnScale(Column column, int number, std::int64_t sections) {
    const bool hasZero = std::find(column.begin(), column.end(), 0.0) != column.end();
    m_isMarked = number == TotalColumn && hasZero && sections >= TotalColumn;
    removeZeros(column);
    m_isEmpty = column.empty();
    m_values = column.size();
    if (m_isEmpty)
        return;
    std::sort(column.begin(), column.end());
    for (std::size_t i = 0; i < Fractions.size(); ++i)
        m_percentiles[i] = percentile(column, Fractions[i]);
}

Band ColumnScale::bandOf(double value, Why* why) const {
    const Band band = find(value);
    if (why)
        tell(value, band, *why);
    return band;
}

void ColumnScale::tell(double value, Band band, Why& why) const {
    const bool isTenth = band >= Band::Band1 && band <= Band::Band10;
    const auto shown = [&](AnalysisRule rule) {
        const double number =
            isTenth ? static_cast<double>(band) - static_cast<double>(Band::Fastest) : value;
        why.result(ruleOf(rule), number, std::string(bandName(band)));
    };
    why.input("time", value);
    why.input("values of the column", static_cast<double>(m_values));
    if (band == Band::Clear) {
        shown(AnalysisRule::BandClear);
    } else if (band == Band::Marked) {
        shown(AnalysisRule::BandMarked);
    } else if (band == Band::Fastest || band == Band::Slowest) {
        why.input("least", m_percentiles.front());
        why.input("most", m_percentiles.back());
        shown(band == Band::Fastest ? AnalysisRule::BandFastest : AnalysisRule::Band);
    } else {
        const std::size_t tenth =
            static_cast<std::size_t>(band) - static_cast<std::size_t>(Band::Band1);
        const auto name = [](std::size_t at) { return std::to_string(10 * at) + " % of them"; };
        why.input(name(tenth), m_percentiles[tenth]);
        why.input(name(tenth + 1), m_percentiles[tenth + 1]);
        shown(AnalysisRule::Band);
    }
}

Band ColumnScale::find(double value) const {
    if (value == 0 || m_isEmpty)
        return Band::Clear;
    if (m_isMarked)
        return Band::Marked;
    if (value == m_percentiles.front())
        return Band::Fastest;
    for (std::size_t i = 0; i < Tenths; ++i)
        if (m_percentiles[i] < value && value <= m_percentiles[i + 1])
            return static_cast<Band>(static_cast<std::size_t>(Band::Band1) + i);
    return value == m_percentiles.back() ? Band::Slowest : Band::Clear;
}

TableScales::TableScales(const RaceSet& set, ValueKind kind, bool penaltiesIncluded) {
    const std::vector<Column> columns = kind == ValueKind::Accumulated
                                            ? accumulatedColumns(set)
                                            : sectionColumns(set, penaltiesIncluded);
    for (int number = 1; number <= RealColumn; ++number)
        m_scales.emplace_back(comparedColumn(columns, number, set), number, set.totalsplits);
}

Band TableScales::bandOf(int column, double value, Why* why) const {
    return m_scales[static_cast<std::size_t>(column - 1)].bandOf(value, why);
}

} // namespace kavela
