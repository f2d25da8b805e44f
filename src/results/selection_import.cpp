#include "results/selection_import.h"

#include "results/athlete_keys.h"
#include "results/selection_edit.h"

#include <algorithm>
#include <cmath>

namespace kavela {

namespace {

std::string quoted(std::string_view what, const std::string& text) {
    return "the " + std::string(what) + " \"" + text + '"';
}

std::string tooShort(const ListLine& line, const char* needed) {
    return std::to_string(line.fields.size()) + (line.fields.size() == 1 ? " field" : " fields") +
           " where " + needed + " are needed";
}

/// Adds the athlete of a line; why not, or an empty text.
std::string addFrom(const ListLine& line, selectionracesStruct_v3& document) {
    if (line.fields.size() < 5)
        return tooShort(line, "five");
    const std::string& label = line.fields[0];
    const std::string& surname = line.fields[2];
    if (label.empty())
        return "the category is empty";
    if (surname.empty())
        return "the surname is empty";
    NewAthlete athlete;
    if (!parseField(line.fields[3], athlete.birthYear))
        return quoted("year", line.fields[3]) + " is no whole number";
    athlete.name = inCapitals(surname);
    if (!line.fields[1].empty())
        athlete.name += ' ' + line.fields[1];
    athlete.club = line.fields[4];
    const std::size_t category = categoryIndex(document, label);
    if (hasAthlete(document.categories[category], athlete.name))
        return athlete.name + " is in " + document.categories[category].cat + " already";
    (void)addAthlete(document, category, std::move(athlete));
    return {};
}

/// A line of a result list.
struct ListedResult {
    std::size_t category = 0;
    std::string name;
    double time = 0;
    std::int64_t penalty = 0;
};

struct Columns {
    std::size_t name;
    std::size_t time;
    std::size_t penalty;
    const char* needed; ///< how many fields, in words
};

constexpr Columns ComaColumns{1, 2, 3, "four"};
constexpr Columns TacenColumns{1, 3, 4, "five"};

/// Reads the columns of a line; why not, or an empty text.
std::string readColumns(ListLine line, const Columns& columns, bool hasComma,
                        ListedResult& result) {
    if (line.fields.size() <= columns.penalty)
        return tooShort(line, columns.needed);
    std::string time = line.fields[columns.time];
    if (hasComma)
        std::ranges::replace(time, ',', '.');
    if (!parseField(time, result.time) || !std::isfinite(result.time) || result.time <= 0)
        return quoted("time", line.fields[columns.time]) + " is no time in seconds";
    const std::string& penalty = line.fields[columns.penalty];
    if (!penalty.empty() && (!parseField(penalty, result.penalty) || result.penalty < 0))
        return quoted("penalty", penalty) + " is no whole number of seconds";
    result.name = line.fields[columns.name];
    return {};
}

/// The category that a line names; why not, or an empty text.
std::string findCategory(const selectionracesStruct_v3& document, const std::string& label,
                         std::size_t& index) {
    const auto found = std::ranges::find(
        document.categories, categoryKey(label),
        [](const srCategoryStruct_v3& category) { return categoryKey(category.cat); });
    if (found == document.categories.end())
        return quoted("category", label) + " is not in the selection";
    index = static_cast<std::size_t>(found - document.categories.begin());
    return {};
}

std::string enter(const ListedResult& listed, std::size_t race, selectionracesStruct_v3& document) {
    const auto& athletes = document.categories.at(listed.category).athletes;
    const auto found =
        std::ranges::find(athletes, crewKey(listed.name),
                          [](const srAthleteStruct_v3& athlete) { return crewKey(athlete.name); });
    if (found == athletes.end())
        return listed.name + " is not in " + document.categories[listed.category].cat;
    const ResultPlace place{listed.category, static_cast<std::size_t>(found - athletes.begin()),
                            race};
    // The list tells nothing of an expected time: one of an attached run stays.
    const double expected =
        race < found->racedata.size() ? found->racedata[race].xTime : MissingTime;
    setResult(document, place, listed.time, listed.penalty, expected);
    return {};
}

std::string enterFrom(const ListLine& line, std::size_t race, std::size_t category,
                      ResultLayout layout, selectionracesStruct_v3& document) {
    ListedResult listed{category, {}, 0, 0};
    const bool isTacen = layout == ResultLayout::Tacen;
    std::string refusal = readColumns(line, isTacen ? TacenColumns : ComaColumns, !isTacen, listed);
    if (refusal.empty() && isTacen)
        refusal = findCategory(document, line.fields[0], listed.category);
    return refusal.empty() ? enter(listed, race, document) : refusal;
}

/// Takes each line with a function that tells why it refused one.
template <class Take>
ListImport takeLines(std::string_view text, Take take) {
    ListImport import;
    for (const ListLine& line : linesBelowTitles(text)) {
        std::string refusal = take(line);
        if (refusal.empty())
            ++import.imported;
        else
            import.skipped.push_back({line.number, std::move(refusal)});
    }
    return import;
}

} // namespace

ListImport importAthletes(selectionracesStruct_v3& document, std::string_view text) {
    if (document.races.empty())
        return {0, {}, true};
    return takeLines(text, [&](const ListLine& line) { return addFrom(line, document); });
}

ListImport importResultList(selectionracesStruct_v3& document, std::size_t race,
                            std::size_t category, ResultLayout layout, std::string_view text) {
    return takeLines(text, [&](const ListLine& line) {
        return enterFrom(line, race, category, layout, document);
    });
}

} // namespace kavela
