#pragma once

#include "planning/planning_records.h"

#include <optional>
#include <span>
#include <vector>

/// What the morning's heart measurements say of recovery: the mean of a week against what is usual.
namespace kavela {

/// One value of one day.
struct DailyValue {
    ReferenceDate date;
    double value = 0;
};

/// Resting heart rates. A rate of 0 or less was not measured.
[[nodiscard]] std::vector<DailyValue>
restingSeries(std::span<const restingdataplanning_v1> resting);

/// One index of the variability measurements, such as &variabilitydataplanning_v2::rMSSD; a value
/// of 0 or less was not measured.
[[nodiscard]] std::vector<DailyValue>
variabilitySeries(std::span<const variabilitydataplanning_v2> variability,
                  double variabilitydataplanning_v2::*index);

/// What is usual: mean and one standard deviation to each side.
struct UsualBand {
    double low = 0;
    double high = 0;
};

enum class AgainstUsual { Unknown, Below, Within, Above };

/// A measured day. Several measurements of a day count as their mean.
struct TrendDay {
    ReferenceDate date; ///< midnight UTC of the day
    double value = 0;
    double weekMean = 0;            ///< over the measured ones of the seven days up to this one
    std::optional<UsualBand> usual; ///< of the 28 days before those seven
    AgainstUsual standing = AgainstUsual::Unknown; ///< of the week's mean
};

/// The measured days in order. The usual band needs at least seven measured days of the 28. Values
/// with a date in no calendar are left out.
[[nodiscard]] std::vector<TrendDay> heartTrend(std::span<const DailyValue> values);

} // namespace kavela
