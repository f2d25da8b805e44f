#include "fetch/bib_list.h"

#include "common/delimited_text.h"
#include "common/text.h"
#include "common/text_file.h"
#include "common/typed_number.h"
#include "splitdata/loader.h"
#include "splittaking/race_day/list_columns.h"
#include "splittaking/results_match.h"
#include "splittaking/video_names.h"

#include <algorithm>
#include <optional>
#include <stdexcept>

namespace kavela::fetch {

namespace {

/// "Run 2" is the second one.
std::int64_t runInPhase(std::string_view phase) {
    const std::size_t digits = phase.find_last_not_of("0123456789") + 1; // 0 behind no such one
    return typedWhole(phase.substr(digits)).value_or(0);
}

FetchRun runOfLine(const DelimitedReader& line, const ListColumns& columns) {
    FetchRun run;
    if (const std::string name = columns.name(line); !name.empty())
        run.names = crewIn(name);
    run.category = columns.text(line, ListColumn::Category);
    run.phase = columns.text(line, ListColumn::Phase);
    run.run = typedWhole(columns.text(line, ListColumn::Run)).value_or(runInPhase(run.phase));
    return run;
}

/// Of a list without titles: that of official results.
ListColumns placesOfResults() {
    return ListColumns({{ListColumn::Bib, 1}, {ListColumn::Name, 2}});
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
    ListColumns columns = ListColumns::byTitle(reader.fields());
    if (!columns.has(ListColumn::Bib))
        columns = placesOfResults();
    while (reader.next()) {
        const std::string field = columns.text(reader, ListColumn::Bib);
        const std::optional<std::int64_t> bib = typedWhole(field);
        if (!bib || *bib <= 0) {
            list.skipped.push_back({reader.number(), field.empty()
                                                         ? say("There is no bib.")
                                                         : say("\"{}\" is no bib.", field)});
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
            list.skipped.push_back(
                {static_cast<std::int64_t>(found.run) + 1,
                 say("The official results of the file have no bib for this crew.")});
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
        throw std::runtime_error(
            say("No bib was found in {}. A list needs a column called \"bib\"; a split file needs "
                "its official results.",
                path.filename().string()));
    return list;
}

} // namespace kavela::fetch
