#pragma once

#include "boatmotion/session_editing.h"
#include "boatmotion/session_track.h"

#include <array>
#include <string>
#include <variant>

/// What a session shows: the figures of its strokes, turns, segments and distance marks, from the
/// records and the fixes. A value that is not known is nothing here, whatever stands for it in the
/// records.
namespace kavela {

/// A stroke with what is known beside its record.
struct StrokeFigures {
    std::size_t entry = 0; ///< place in `strokesData`
    double time = 0;       ///< of the catch, s
    double end = 0;        ///< of its cycle, s
    double until = 0;      ///< its values are read up to here: the next catch, or its end, s
    double rate = 0;       ///< median of up to five strokes around it within its bout, 1/min
    std::optional<double> force{};     ///< N
    std::optional<double> impulse{};   ///< N·s
    std::optional<double> power{};     ///< W
    std::optional<double> speed{};     ///< m/s
    std::optional<double> heartRate{}; ///< 1/min
    std::optional<double> way{};       ///< m of its cycle
};

/// A turn, and where the boat was.
struct TurnFigures {
    std::size_t entry = 0;
    double time = 0; ///< of its start, s
    std::optional<double> heartRate{};
    std::optional<rotData> marker{}; ///< at its middle; nothing without a fix
};

/// One side of the boat; means over its strokes.
struct SideFigures {
    std::size_t strokes = 0;
    std::optional<double> force{};
    std::optional<double> impulse{};
    std::optional<double> power{};
    double waterPhase = 0; ///< s; 0 without strokes
};

/// What happened from one moment to another; means over the strokes.
struct StretchOfSession {
    segmentStruct averages; ///< 0 where not known
    std::size_t strokes = 0;
    double seconds = 0;
    std::optional<double> distance{}; ///< m
    std::optional<double> speed{};    ///< m/s
    double from = 0;                  ///< moment
};

/// All figures of a session.
struct SessionFigures {
    MomentRange moments;
    Track track;
    std::vector<std::pair<double, double>> heart; ///< moment and beats per minute, by moment
    std::vector<StrokeFigures> strokes;           ///< by time
    std::vector<TurnFigures> turns;               ///< by time
    std::vector<StretchOfSession> segments;       ///< by number, the rest of the session first
    std::array<SideFigures, 2> sides;             ///< left, right
};

[[nodiscard]] SessionFigures figuresOf(const EditedSession& session);

/// The heart rate at a moment: the last reading of the 15 s before it, or nothing.
[[nodiscard]] std::optional<double> heartRateAt(const SessionFigures& figures, double moment);

/// The stroke that is being made at a moment, as an index: whoever reads the values of a stroke
/// reads those of this one. Nothing between bouts and where strokes were taken out.
[[nodiscard]] std::optional<std::size_t> strokeMadeAt(const SessionFigures& figures, double moment);

/// The stroke whose catch is nearest to a moment, as an index; nothing between bouts.
[[nodiscard]] std::optional<std::size_t> strokeAt(const SessionFigures& figures, double moment);

/// How much more the right side does than the left, in percent of their mean; nothing where one of
/// them is not known.
[[nodiscard]] std::optional<double> imbalance(std::optional<double> left,
                                              std::optional<double> right);

/// Values per distance mark: each tells of the way from the mark before. `drag` is the resistance
/// in newtons by the usual factor of 5 N·s²/m². What is not known is 0.
struct MetersRow {
    smartMetersData values;
    double from = 0; ///< moment at which the stretch begins
};
[[nodiscard]] std::vector<MetersRow> metersOf(const EditedSession& session,
                                              const SessionFigures& figures, double step);

/// A table for the screen and for export. A cell is a number, a text, or nothing.
using Cell = std::variant<std::monostate, double, std::string>;
struct SessionColumn {
    std::string title;
    std::string unit; ///< empty for none
    int decimals = 0; ///< on the screen
};
struct SessionGrid {
    struct Row {
        double moment = 0;                  ///< where the cursor goes
        std::optional<std::size_t> entry{}; ///< place in `strokesData`, where the row is one
        std::vector<Cell> cells;
    };
    std::vector<SessionColumn> columns;
    std::vector<Row> rows;
};

[[nodiscard]] SessionGrid strokeGrid(const EditedSession& session, const SessionFigures& figures);
[[nodiscard]] SessionGrid turnGrid(const EditedSession& session, const SessionFigures& figures);
[[nodiscard]] SessionGrid segmentGrid(const SessionFigures& figures);
[[nodiscard]] SessionGrid metersGrid(const std::vector<MetersRow>& meters);

/// The table as semicolon-separated text: a header with units, then plain decimals with up to four
/// places; what is not known is empty.
[[nodiscard]] std::string csvOf(const SessionGrid& grid);

} // namespace kavela
