#pragma once

#include "planning/planning_records.h"

#include <QString>

#include <algorithm>
#include <memory>
#include <vector>

/// The lists of dated measurements of a season, seen alike: a date and one or more values each.
namespace kavela::desktop {

struct MeasureColumn {
    QString title;
    QString unit;
    double most = 0; ///< what can be typed, and what is odd above
    bool isEditable = true;
};

/// One measurement by its place in the list.
struct MeasureRow {
    std::size_t place = 0;
    ReferenceDate date;
    std::vector<double> values; ///< by column; 0 for not measured

    friend bool operator==(const MeasureRow&, const MeasureRow&) = default;
};

/// One of the lists. Places that are not there are passed over.
class Measures {
public:
    virtual ~Measures() = default;

    [[nodiscard]] virtual std::vector<MeasureColumn> columns() const = 0;
    [[nodiscard]] virtual std::vector<MeasureRow> rows(const yearsplannings_v6& season) const = 0;
    /// Puts an empty measurement before the first later one; gives its place.
    virtual std::size_t add(yearsplannings_v6& season, ReferenceDate date) const = 0;
    virtual void remove(yearsplannings_v6& season, std::vector<std::size_t> places) const = 0;
    virtual void setDate(yearsplannings_v6& season, std::size_t place,
                         ReferenceDate date) const = 0;
    virtual void setValue(yearsplannings_v6& season, std::size_t place, std::size_t column,
                          double value) const = 0;
};

[[nodiscard]] std::unique_ptr<Measures> bodyMeasures();
[[nodiscard]] std::unique_ptr<Measures> restingMeasures();
[[nodiscard]] std::unique_ptr<Measures> variabilityMeasures();

/// The indices of variability in the order of their columns.
[[nodiscard]] const std::vector<double variabilitydataplanning_v2::*>& variabilityIndices();

/// Takes entries out of a list; places that are not there are passed over.
template <class Entry>
void removePlaces(std::vector<Entry>& list, std::vector<std::size_t> places) {
    std::size_t place = 0;
    std::erase_if(list, [&](const Entry&) {
        return std::find(places.begin(), places.end(), place++) != places.end();
    });
}

/// Puts an entry before the first one of a later date; gives its place.
template <class Entry>
std::size_t insertByDate(std::vector<Entry>& list, Entry entry) {
    const auto later = std::find_if(list.begin(), list.end(), [&](const Entry& other) {
        return other.date.seconds > entry.date.seconds;
    });
    const auto place = static_cast<std::size_t>(later - list.begin());
    list.insert(later, std::move(entry));
    return place;
}

} // namespace kavela::desktop
