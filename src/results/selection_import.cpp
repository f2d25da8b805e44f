#include "results/selection_import.h"

#include "common/text.h"
#include "results/selection_edit.h"
#include "results/team_records.h"
#include "splitdata/athlete_keys.h"

#include <algorithm>
#include <cmath>

namespace kavela {

namespace {

std::string quoted(std::string_view what, const std::string& text) {
    return "the " + std::string(what) + " \"" + text + '"';
}

/// The category of a list line in the selection, added and noted where it is missing.
std::size_t categoryOf(const ListLine& line, selectionracesStruct_v3& document,
                       ListImport& import) {
    const std::string& label = line.fields[0];
    const std::size_t before = document.categories.size();
    const std::size_t category = categoryIndex(document, label);
    if (document.categories.size() > before) {
        const auto isSame = [&](const char* known) {
            return categoryKey(known) == categoryKey(label);
        };
        import.added.push_back({label, line.number, std::ranges::any_of(team::Categories, isSame)});
    }
    return category;
}

/// Adds the athlete of a line; why not, or an empty text.
std::string addFrom(const ListLine& line, selectionracesStruct_v3& document, ListImport& import) {
    if (line.fields.size() < 5)
        return lackOfFields(line.fields.size(), 5, KAVELA_TEXT("five"));
    const std::string& surname = line.fields[2];
    if (line.fields[0].empty())
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
    const std::size_t category = categoryOf(line, document, import);
    if (hasAthlete(document.categories[category], athlete.name)) {
        ++import.present;
        return athlete.name + " is in " + document.categories[category].cat + " already";
    }
    (void)addAthlete(document, category, std::move(athlete));
    return {};
}

struct Columns {
    std::size_t name;
    std::size_t time;
    std::size_t penalty;
    const char* needed; ///< how many fields, in words
};

constexpr Columns ComaColumns{1, 2, 3, "four"};
constexpr Columns TacenColumns{1, 3, 4, KAVELA_TEXT("five")};

/// Reads the columns of a line; why not, or an empty text.
std::string readColumns(const ListLine& line, const Columns& columns, bool hasComma,
                        FoundRun& run) {
    if (line.fields.size() <= columns.penalty)
        return lackOfFields(line.fields.size(), columns.penalty + 1, columns.needed);
    std::string time = line.fields[columns.time];
    if (hasComma)
        std::ranges::replace(time, ',', '.');
    if (!parseField(time, run.time) || !std::isfinite(run.time) || run.time <= 0)
        return quoted("time", line.fields[columns.time]) + " is no time in seconds";
    const std::string& penalty = line.fields[columns.penalty];
    if (!penalty.empty() && (!parseField(penalty, run.penalty) || run.penalty < 0))
        return quoted("penalty", penalty) + " is no whole number of seconds";
    run.name = line.fields[columns.name];
    if (run.name.empty())
        return "the name is empty";
    return {};
}

} // namespace

ListImport importAthletes(selectionracesStruct_v3& document, std::string_view text) {
    ListImport import;
    import.needsRace = document.races.empty();
    if (import.needsRace)
        return import;
    for (const ListLine& line : linesBelowTitles(text)) {
        std::string refusal = addFrom(line, document, import);
        if (refusal.empty())
            ++import.imported;
        else
            import.skipped.push_back({line.number, std::move(refusal)});
    }
    return import;
}

FoundRuns foundInList(const selectionracesStruct_v3& document, std::size_t category,
                      ResultLayout layout, std::string_view text) {
    FoundRuns found;
    const bool isTacen = layout == ResultLayout::Tacen;
    for (const ListLine& line : linesBelowTitles(text)) {
        FoundRun run;
        std::string refusal =
            readColumns(line, isTacen ? TacenColumns : ComaColumns, !isTacen, run);
        if (!refusal.empty()) {
            found.refused.push_back({line.number, std::move(refusal)});
            continue;
        }
        run.line = line.number;
        run.category = isTacen ? line.fields[0] : document.categories.at(category).cat;
        run.athlete = athleteOf(document, run.category, run.name);
        found.runs.push_back(std::move(run));
    }
    return found;
}

} // namespace kavela
