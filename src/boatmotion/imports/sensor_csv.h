#pragma once

#include "boatmotion/sessions.h"
#include "common/error.h"

#include <cstddef>
#include <filesystem>
#include <optional>
#include <span>
#include <stop_token>
#include <string>
#include <string_view>
#include <vector>

/// Lists of samples that sensor loggers of phones write: one line for each moment, a column for
/// each quantity. What the columns are is guessed from their titles and set by the coach.
///
/// Direction of the readings. An accelerometer feels what holds it up, so at rest it points up: on
/// the back of a phone lying there z reads +1 g. Other loggers turn all signs round and read -1 g.
/// `CsvMapping::readsUpAtRest` tells which; in the recording gravity points down and acceleration
/// is the boat's own, either way.
///
/// Gravity. From acceleration with and without gravity the one is taken from the other. From
/// acceleration with gravity alone it is split off by a low-pass of 0.3 Hz, well below the slowest
/// strokes: one pole, run forward and backward so that it delays nothing. Acceleration without
/// gravity, alone, leaves it zero; the analysis rebuilds it from the attitude where there is one.
namespace kavela {

/// What a column holds.
enum class CsvQuantity {
    None,
    Time,
    TotalX, ///< acceleration with gravity
    TotalY,
    TotalZ,
    UserX, ///< acceleration without gravity
    UserY,
    UserZ,
    RotationX,
    RotationY,
    RotationZ,
    GravityX,
    GravityY,
    GravityZ,
    Pitch,
    Roll,
    Yaw,
    Latitude, ///< degrees
    Longitude,
    Speed,
    HeartRate ///< beats per minute
};
inline constexpr std::size_t CsvQuantities = static_cast<std::size_t>(CsvQuantity::HeartRate) + 1;

/// The quantity in words for people.
[[nodiscard]] std::string_view textOf(CsvQuantity quantity);

/// Times are dates in ISO form, or numbers. Numbers of the present age are taken as counted from
/// 1970, others as those of a clock of the device's own.
enum class CsvTime { Date, Seconds, Milliseconds, Microseconds, Nanoseconds };
enum class CsvAcceleration { G, MetresPerSecondSquared };
enum class CsvRotation { RadiansPerSecond, DegreesPerSecond };
enum class CsvAngle { Radians, Degrees };
enum class CsvSpeed { MetresPerSecond, KilometresPerHour };

/// How a list is read.
struct CsvMapping {
    char separator = ',';
    bool hasDecimalComma = false; ///< not with a separating comma
    std::size_t firstSample = 1;  ///< lines before the first sample: titles and what precedes them
    std::vector<CsvQuantity> columns; ///< what is beyond them is passed over
    CsvTime time = CsvTime::Seconds;
    CsvAcceleration acceleration = CsvAcceleration::MetresPerSecondSquared;
    CsvRotation rotation = CsvRotation::RadiansPerSecond;
    CsvAngle angle = CsvAngle::Radians;
    CsvSpeed speed = CsvSpeed::MetresPerSecond;
    bool readsUpAtRest = true;
    /// The date of the first sample, where the times themselves are no dates.
    std::optional<ReferenceDate> start{};

    friend bool operator==(const CsvMapping&, const CsvMapping&) = default;
};

/// Why a mapping cannot be used, as a sentence; nothing when it can. Time is needed, the axes of a
/// quantity go together, as do latitude and longitude, and no quantity stands in two columns.
[[nodiscard]] std::optional<std::string> faultOf(const CsvMapping& mapping);

/// The beginning of a list, cut into fields.
struct CsvPreview {
    std::vector<std::string> titles;            ///< one for each column; empty where none stands
    std::vector<std::vector<std::string>> rows; ///< the first samples, as they are written
};

/// A line that was passed over.
struct UnreadLine {
    std::size_t line = 0; ///< counted from 1
    std::string reason;
};

/// What a list gives.
struct CsvImport {
    static constexpr std::size_t MostListed = 100;

    bmrawdata_v5 session;
    std::vector<UnreadLine> unread; ///< the first ones
    std::size_t unreadCount = 0;    ///< all of them
    std::vector<std::string> notes; ///< what was computed or put in order
    /// Whether the times were dates. Otherwise stamps are those of the device's clock, and dates
    /// count from the mapping's start or, without one, are the stamps.
    bool hasDates = false;

    [[nodiscard]] double seconds() const;    ///< from the first sample to the last
    [[nodiscard]] double sampleRate() const; ///< mean samples per second; 0 for fewer than two
};

/// A list in a file, of which only a beginning is in memory.
class SensorCsv {
public:
    static constexpr std::size_t PreviewRows = 20;

    /// Reads the beginning. Throws FileError, and DecodeError for a file that is no list of numbers
    /// in UTF-8 or plain ASCII.
    explicit SensorCsv(std::filesystem::path path);

    /// How the list is most likely to be read, with the separator given or the likeliest one.
    [[nodiscard]] CsvMapping guess() const;
    [[nodiscard]] CsvMapping guess(char separator) const;
    [[nodiscard]] CsvPreview preview(const CsvMapping& mapping) const;

    /// Reads the whole list, line by line. An empty field, or a "NaN", of a quantity keeps its last
    /// value; a line without any acceleration adds no sample. Positions that a logger repeats from
    /// line to line become a fix when they change, at most ten a second, and at least one a second;
    /// heart rates likewise. Gives what was read so far when it is asked to stop.
    /// Throws FileError and DecodeError: for a mapping with a fault, or more than 5,000,000 lines.
    [[nodiscard]] CsvImport read(const CsvMapping& mapping, const std::stop_token& stop = {}) const;

    [[nodiscard]] const std::filesystem::path& path() const { return m_path; }

private:
    std::filesystem::path m_path;
    std::vector<std::string> m_lines; ///< the first ones
};

} // namespace kavela
