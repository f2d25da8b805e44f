#include "splittaking/table_export.h"

#include "common/delimited_text.h"
#include "common/error.h"
#include "common/number_text.h"
#include "splitdata/run_timing.h"

#include <algorithm>

namespace kavela {

namespace {

/// More than any spreadsheet has columns for; only a damaged file claims so many.
constexpr std::int64_t MostTableSplits = 8000;

std::string header(std::size_t splits) {
    std::string line = "Name;Phase;";
    for (std::size_t k = 1; k <= splits; ++k)
        line += "S" + std::to_string(k) + ";P" + std::to_string(k) + ";";
    return line + "Total;P\n";
}

std::string line(const infodata031& info, const athletedata031& run, std::size_t splits) {
    const sectiondata030& timing = run.sectioninfo;
    const auto penalties = sectionPenalties(info, timing.pens);
    std::string text = csvField(crewText(run.names)) + ';' + csvField(run.phase) + ';';
    for (std::size_t k = 0; k < splits; ++k)
        text += plainText(entryOrZero(timing.times, k)) + ';' +
                std::to_string(entryOrZero(penalties, k)) + ';';
    return text + plainText(timing.totaltime) + ';' + std::to_string(timing.totalpen) + '\n';
}

} // namespace

std::string splitTableCsv(const splittakerdata031& document) {
    const infodata031& info = document.info;
    if (info.totalsplits > MostTableSplits)
        throw EncodeError({"info.totalsplits", std::to_string(info.totalsplits) +
                                                   " splits are more than a table can have"});
    const auto splits = static_cast<std::size_t>(std::max<std::int64_t>(info.totalsplits, 0));
    std::string table = header(splits);
    for (const athletedata031& run : document.athletes)
        table += line(info, run, splits);
    return table;
}

} // namespace kavela
