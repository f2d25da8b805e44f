#pragma once

#include "planning/planning_records.h"

#include <algorithm>
#include <vector>

/// The lists of dated entries of a season. Places that are not there are passed over.
namespace kavela::desktop {

/// Takes entries out of a list.
template <class Entry>
void removePlaces(std::vector<Entry>& list, const std::vector<int>& places) {
    int place = 0;
    std::erase_if(list,
                  [&](const Entry&) { return std::ranges::find(places, place++) != places.end(); });
}

/// Puts an entry before the first one of a later date; gives its place.
template <class Entry>
std::size_t insertByDate(std::vector<Entry>& list, Entry entry) {
    const auto later = std::ranges::find_if(
        list, [&](const Entry& other) { return other.date.seconds > entry.date.seconds; });
    const auto place = static_cast<std::size_t>(later - list.begin());
    list.insert(later, std::move(entry));
    return place;
}

} // namespace kavela::desktop
