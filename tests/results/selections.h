#pragma once

#include "results/selection_edit.h"

namespace kavela::test {

/// A time for each race, and what goes with it.
struct Entry {
    const char* name;
    std::vector<double> times;
    std::vector<double> bonuses{};
};

/// A selection of one category over as many races as the first entry has times.
inline selectionracesStruct_v3 selectionOf(const std::vector<Entry>& entries,
                                           const char* category = "MK1") {
    selectionracesStruct_v3 document;
    document.year = 2026;
    document.categories = {{category, {}}};
    for (std::size_t race = 0; race < entries.front().times.size(); ++race)
        document.races.push_back({"Race " + std::to_string(race + 1), {}, {}});
    for (const Entry& entry : entries) {
        srAthleteStruct_v3 athlete;
        athlete.name = entry.name;
        athlete.bonuses = entry.bonuses;
        for (const double time : entry.times) {
            athlete.racedata.push_back(missingResult());
            athlete.racedata.back().resultTime = time;
        }
        document.categories[0].athletes.push_back(std::move(athlete));
    }
    return document;
}

/// The names of a category in the order of the document.
inline std::vector<std::string> namesOf(const selectionracesStruct_v3& document,
                                        std::size_t category = 0) {
    std::vector<std::string> names;
    for (const srAthleteStruct_v3& athlete : document.categories.at(category).athletes)
        names.push_back(athlete.name);
    return names;
}

} // namespace kavela::test
