#include "fetch/bib_list.h"

#include "common/delimited_text.h"
#include "common/folded_text.h"
#include "common/text_file.h"
#include "common/typed_number.h"
#include "splitdata/loader.h"
#include "splittaking/results_match.h"
#include "splittaking/video_names.h"

#include <algorithm>
#include <array>
#include <optional>
#include <stdexcept>

namespace kavela::fetch {

namespace {

enum BibColumn : std::size_t {
    BibOf,
    NameOf,
    FirstNameOf,
    CategoryOf,
    PhaseOf,
    RunOf,
    BibColumnCount
};

/// Folded titles of start lists, the likeliest first.
constexpr std::array<std::array<std::string_view, 9>, BibColumnCount> StartListTitles{{
    {"bib", "bib no", "start no", "start number", "startnumber", "startnummer", "nr", "no",
     "number"},
    {"name", "names", "athlete", "athletes", "crew", "last name", "lastname", "family name",
     "surname"},
    {"first name", "firstname", "given name", "vorname"},
    {"category", "cat", "class", "event", "boat class"},
    {"phase", "round", "heat"},
    {"run", "run no"},
}};

using BibColumns = std::array<std::optional<std::size_t>, BibColumnCount>;

BibColumns columnsByTitle(const std::vector<std::string_view>& titles) {
    BibColumns columns;
    for (std::size_t kind = 0; kind < BibColumnCount; ++kind)
        for (const std::string_view wanted : StartListTitles[kind])
            for (std::size_t i = 0; i < titles.size() && !wanted.empty(); ++i) {
                std::string title = folded(titles[i]);
                std::erase_if(title, [](char c) { return c == '.' || c == ':'; });
                if (!columns[kind] && title == wanted)
                    columns[kind] = i;
            }
    return columns;
}

std::string fieldOf(const DelimitedReader& reader, const std::optional<std::size_t>& column) {
    return column ? withSingleQuotes(reader.field(*column)) : std::string();
}

/// "Run 2" is the second one.
std::int64_t runInPhase(std::string_view phase) {
    const std::size_t digits = phase.find_last_not_of("0123456789") + 1; // 0 behind no such one
    return typedWhole(phase.substr(digits)).value_or(0);
}

FetchRun runOfLine(const DelimitedReader& reader, const BibColumns& columns) {
    FetchRun run;
    std::string name = fieldOf(reader, columns[NameOf]);
    if (const std::string first = fieldOf(reader, columns[FirstNameOf]); !first.empty())
        name = first + ' ' + name;
    if (!name.empty())
        run.names = crewIn(name);
    run.category = fieldOf(reader, columns[CategoryOf]);
    run.phase = fieldOf(reader, columns[PhaseOf]);
    run.run = typedWhole(fieldOf(reader, columns[RunOf])).value_or(runInPhase(run.phase));
    return run;
}

void addOnce(BibList& list, FetchRun run) {
    if (std::ranges::find(list.runs, run) == list.runs.end())
        list.runs.push_back(std::move(run));
}

} // namespace

BibList bibsOfList(std::string_view text) {
    BibList list;
    DelimitedReader reader(text);
    if (!reader.next())
        return list;
    BibColumns columns = columnsByTitle(reader.fields());
    if (!columns[BibOf]) {
        columns = {};
        columns[BibOf] = 1;
        columns[NameOf] = 2;
    }
    while (reader.next()) {
        const std::string field = fieldOf(reader, columns[BibOf]);
        const std::optional<std::int64_t> bib = typedWhole(field);
        if (!bib || *bib <= 0) {
            list.skipped.push_back({reader.number(), field.empty()
                                                         ? "There is no bib."
                                                         : "\"" + field + "\" is no bib."});
            continue;
        }
        FetchRun run = runOfLine(reader, columns);
        run.bib = *bib;
        addOnce(list, std::move(run));
    }
    return list;
}

BibList bibsOfSplitFile(const splittakerdata031& document) {
    BibList list;
    const auto& results = document.info.resultsCSVdata;
    if (document.athletes.empty())
        for (const allresultsdata030& line : results)
            if (line.bib > 0)
                addOnce(list, {line.bib, crewIn(line.name), {}, {}, 0});
    for (const ResultOfRun& found : matchedResults(document.athletes, results)) {
        const athletedata031& run = document.athletes[found.run];
        if (found.line && results[*found.line].bib > 0)
            addOnce(list, {results[*found.line].bib, run.names, run.cat, run.phase,
                           runInPhase(run.phase)});
        else
            list.skipped.push_back({static_cast<std::int64_t>(found.run) + 1,
                                    "The official results of the file have no bib for this crew."});
    }
    return list;
}

BibList bibsIn(const std::filesystem::path& path) {
    BibList list;
    if (path.extension() == ".kvx") {
        const RecognisedSplitFile file = recogniseSplitFile(
            path, [](std::string_view) {}, systemNow);
        if (!file.version)
            throw std::runtime_error(incompatibleText(path, file.failures));
        list = bibsOfSplitFile(file.document);
    } else {
        list = bibsOfList(readListText(path).text);
    }
    if (list.runs.empty())
        throw std::runtime_error("No bib was found in " + path.filename().string() +
                                 ". A list needs a column called \"bib\"; a split file needs its "
                                 "official results.");
    return list;
}

} // namespace kavela::fetch
