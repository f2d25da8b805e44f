#pragma once

#include "analysis/comparison_columns.h"
#include "common/why.h"

#include <array>
#include <optional>
#include <string_view>

/// The tint of a split by its rank within its column: the fastest green, the fast tenths in fading
/// greens, the middle white, the slow tenths in deepening reds. The scale comes from percentiles of
/// the column itself and so adapts to every section and race.
namespace kavela {

/// Channels from 0 to 1.
struct Colour {
    double red = 0;
    double green = 0;
    double blue = 0;
    double alpha = 1;

    friend bool operator==(const Colour&, const Colour&) = default;
};

inline constexpr Colour NamedGreen{0, 1, 0, 1};
inline constexpr Colour NamedRed{1, 0, 0, 1};
inline constexpr Colour NamedWhite{1, 1, 1, 1};

/// A place on the scale. `Band1` to `Band10` follow `Fastest`.
enum class Band {
    Clear,
    Fastest,
    Band1,
    Band2,
    Band3,
    Band4,
    Band5,
    Band6,
    Band7,
    Band8,
    Band9,
    Band10,
    Slowest,
    Marked, ///< white whatever the value: a total column that met a run without a total
};

/// "clear", "fastest", "1" to "10", "slowest" or "marked".
[[nodiscard]] std::string_view bandName(Band band);

/// Whether tints run from green to red, or from blue over white to orange for those who cannot tell
/// these apart.
enum class ColourScale { GreenRed, BlueOrange };

/// The tint of a band; nothing for a clear cell.
[[nodiscard]] std::optional<Colour> bandColour(Band band,
                                               ColourScale scale = ColourScale::GreenRed);

/// A tint as it looks in a cell that counts for nothing: most of it gone, its hue still there.
[[nodiscard]] Colour faded(const Colour& tint);

/// Which values the table shows; the numbers are the table's own.
enum class ValueKind { Sections = 0, Accumulated = 2 };

/// The scale of one column, from its entries as they stood.
class ColumnScale {
public:
    /// `number` is the column's number, counted from 1; `sections` the course's number of sections.
    ColumnScale(Column column, int number, std::int64_t sections);

    /// The band of a value of this column; clear for 0 and in an empty column. Told with the tenths
    /// around it and how many values the column has.
    [[nodiscard]] Band bandOf(double value, Why* why = nullptr) const;

private:
    static constexpr std::size_t Tenths = 10;
    [[nodiscard]] Band find(double value) const;
    void tell(double value, Band band, Why& why) const;

    std::array<double, Tenths + 1> m_percentiles{}; ///< P0, P10 … P100
    std::size_t m_values = 0;
    bool m_isEmpty = true;
    bool m_isMarked = false;
};

/// The scales of all columns of a table for one value kind. A column that does not exist has an
/// empty scale.
class TableScales {
public:
    TableScales(const RaceSet& set, ValueKind kind, bool penaltiesIncluded);

    [[nodiscard]] Band bandOf(int column, double value, Why* why = nullptr) const;

private:
    std::vector<ColumnScale> m_scales; ///< of columns 1 to 13
};

} // namespace kavela
