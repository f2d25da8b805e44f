#pragma once

#include "results/selection_records.h"

/// The layouts of the selection file before the current one, as what they are made of. The records
/// of a race are the same in all.
namespace kavela::history {

/// An athlete before there were bonuses.
template <class Preselected>
struct BonuslessAthlete {
    std::string name;
    std::int64_t year = 0;
    std::string club;
    std::vector<saRaceStruct> racedata;
    Preselected preselected{};
    double result = 0;
    BOOST_DESCRIBE_CLASS(BonuslessAthlete, (), (name, year, club, racedata, preselected, result),
                         (), ())
};

template <class Athlete>
struct CategoryOf {
    std::string cat;
    std::vector<Athlete> athletes;
    BOOST_DESCRIBE_CLASS(CategoryOf, (), (cat, athletes), (), ())
};

template <class Athlete>
struct SelectionOf {
    std::int64_t year = 0;
    std::string rules;
    std::vector<sRaceStruct> races;
    std::vector<CategoryOf<Athlete>> categories;
    BOOST_DESCRIBE_CLASS(SelectionOf, (), (year, rules, races, categories), (), ())
};

/// One flag per preselection group.
using srAthleteStruct_v2 = BonuslessAthlete<std::vector<bool>>;
using selectionracesStruct_v2 = SelectionOf<srAthleteStruct_v2>;

/// One flag for all.
using srAthleteStruct = BonuslessAthlete<bool>;
using selectionracesStruct = SelectionOf<srAthleteStruct>;

} // namespace kavela::history
