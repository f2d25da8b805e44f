#pragma once

namespace kavela {

/// A range in which a figure lies with 90 % confidence, both ends in the unit of the figure.
struct Interval {
    double low = 0;
    double high = 0;

    friend bool operator==(const Interval&, const Interval&) = default;
};

} // namespace kavela
