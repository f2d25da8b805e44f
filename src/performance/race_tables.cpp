#include "performance/race_tables.h"

#include "common/json_encode.h"
#include "common/number_text.h"
#include "common/safe_file.h"
#include "splitdata/document.h"
#include "splitdata/loader.h"
#include "tables/list_source.h"
#include "tables/table_error.h"
#include "tables/table_text.h"

namespace kavela {

namespace {

constexpr const char* ResultLines = "resultsCSVdata";
constexpr const char* AttachedDocument = "officialresults";
constexpr const char* KeptTable = "officialresultsAnalysis";

ListGrid gridOfResults(const std::vector<allresultsdata030>& results) {
    ListGrid grid;
    grid.separator = ";";
    grid.lines.push_back({1, {"Pos", "Bib", "Name", "Nationality", "Time", "Pen", "Total"}});
    for (const allresultsdata030& result : results)
        grid.lines.push_back({static_cast<std::int64_t>(grid.lines.size()) + 1,
                              {std::to_string(result.pos), std::to_string(result.bib), result.name,
                               result.nationality, plainText(result.time),
                               std::to_string(result.pen), plainText(result.total)}});
    return grid;
}

std::string bytesOfBlob(const Blob& blob) {
    return {blob.bytes.begin(), blob.bytes.end()};
}

} // namespace

std::vector<std::string> raceTableNames(const infodata031& info) {
    std::vector<std::string> names;
    if (!info.resultsCSVdata.empty())
        names.emplace_back(ResultLines);
    if (!info.officialresults.bytes.empty())
        names.emplace_back(AttachedDocument);
    if (!info.officialresultsAnalysis.bytes.empty())
        names.emplace_back(KeptTable);
    return names;
}

std::vector<ListGrid> raceTableLists(const infodata031& info, const std::string& name) {
    if (name == ResultLines && !info.resultsCSVdata.empty())
        return {gridOfResults(info.resultsCSVdata)};
    if (name == AttachedDocument && !info.officialresults.bytes.empty())
        return readLists(bytesOfBlob(info.officialresults));
    if (name == KeptTable && !info.officialresultsAnalysis.bytes.empty())
        return readLists(bytesOfBlob(info.officialresultsAnalysis));
    throw TableError("The split file holds no list \"" + name + "\".");
}

void keepWithRace(infodata031& info, const ListTable& table) {
    const std::string text = tableCsv(table);
    info.officialresultsAnalysis.bytes = std::vector<unsigned char>(text.begin(), text.end());
}

bool keepInSplitFile(const std::filesystem::path& file, const ListTable& table, KeptBefore before,
                     ReferenceDate now) {
    RecognisedSplitFile read = recogniseSplitFile(
        file, [](std::string_view) {}, [now] { return now; });
    if (!read.version)
        throw TableError(incompatibleText(file, read.failures));
    if (!read.isCurrent())
        throw TableError("The file is of an older version, " + std::string(read.version->label) +
                         ". Open it in the race analyzer first, which brings it to this one.");
    infodata031& info = read.document.info;
    if (before == KeptBefore::Stays && !info.officialresultsAnalysis.bytes.empty())
        return false;
    keepWithRace(info, table);
    info.lastSavedDate = now;
    try {
        writeFileSafely(file, encode(read.document));
    } catch (const EncodeError& error) {
        throw TableError(error.what());
    }
    return true;
}

} // namespace kavela
