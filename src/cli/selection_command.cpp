#include "cli/commands.h"

#include "cli/console.h"
#include "cli/painting.h"
#include "cli/selection_json.h"
#include "cli/selection_text.h"
#include "cli/split_file_edit.h"
#include "common/display_text.h"
#include "common/folded_text.h"
#include "common/number_text.h"
#include "common/text.h"
#include "common/text_file.h"
#include "results/list_lines.h"
#include "results/messages.h"
#include "results/selection_attach.h"
#include "results/selection_file.h"
#include "results/selection_import.h"
#include "results/team_records.h"

#include <algorithm>
#include <memory>
#include <utility>

namespace kavela::cli {

namespace {

struct SelectionCall {
    std::string file;
    std::optional<std::size_t> bonus;
    bool json = false;
    bool write = false;
    std::string pdf;
    std::string list;
    std::string race;
    std::vector<std::string> splitFiles;
};

/// A selection of any layout, read without being rewritten; nothing, after a message, when it is
/// none.
std::optional<RecognisedSelectionFile> openedSelection(const std::string& path) {
    RecognisedSelectionFile file = recogniseSelectionFile(path);
    if (file.version)
        return file;
    ConsoleAlerts alerts;
    reportIncompatible(file, logLine, alerts);
    return std::nullopt;
}

/// Whether the file may be written, which one of an older layout may not.
bool isWritable(const RecognisedSelectionFile& file, const std::string& path) {
    if (file.isCurrent())
        return true;
    logLine(say("The file {} is of an older version, {}, and was not changed. Bring it to the "
                "current one first: kavela upgrade {}",
                pathText(path), file.version->label, pathText(path)));
    return false;
}

/// A selection that is to be changed; nothing, after a message, when it cannot be.
std::optional<selectionracesStruct_v3> openedForChange(const std::string& path) {
    auto file = openedSelection(path);
    if (!file || !isWritable(*file, path))
        return std::nullopt;
    return std::move(file->document);
}

void warnOfZeros(const selectionracesStruct_v3& document) {
    for (const ResultPlace& place : zeroResults(document)) {
        const srCategoryStruct_v3& category = document.categories[place.category];
        logLine(say("The time of {} ({}) in {} is 0; a missing result should be 999.9.",
                    category.athletes[place.athlete].name, category.cat,
                    document.races[place.race].location));
    }
}

int rank(const SelectionCall& call, const Painting* painting) {
    const Painting* const painter = neededIf(!call.pdf.empty(), painting);
    auto file = openedSelection(call.file);
    if (!file || (call.write && !isWritable(*file, call.file)))
        return NotDone;
    selectionracesStruct_v3& document = file->document;
    recomputeSelection(document, call.bonus);
    warnOfZeros(document);
    if (call.bonus && *call.bonus >= bonusKinds(document))
        logLine(say("No athlete has a bonus of kind {}.", *call.bonus));
    if (call.write && !saveSelectionFile(document, call.file, logLine))
        return NotDone;
    if (painter && !painter->isSelectionWritten(document, call.bonus, call.pdf))
        return NotDone;
    const std::string output =
        call.json ? selectionJson(document, call.bonus) : selectionText(document, call.bonus);
    return print(output) ? Done : NotDone;
}

std::string athletesText(const ListImport& import) {
    std::string text = counted(import.imported, "athlete", "athletes") + " imported";
    if (!import.skipped.empty())
        text += ", " + counted(static_cast<std::int64_t>(import.skipped.size()), "line", "lines") +
                " skipped";
    text += '\n';
    for (const RefusedLine& skipped : import.skipped)
        text += "Line " + std::to_string(skipped.line) + ": " + printable(skipped.reason) + '\n';
    return text;
}

/// The text of a list; nothing, after a message, when it cannot be read.
std::optional<std::string> textOf(const std::string& list) {
    std::string reason;
    try {
        ListText read = readListText(list);
        if (read.isLatin1)
            logLine(say("The list {} is no UTF-8 text and was read as Latin-1: look at the names.",
                        pathText(list)));
        return std::move(read.text);
    } catch (const FileError& error) {
        reason = error.reason();
    } catch (const DecodeError& error) {
        reason = error.what();
    }
    logLine(say("The list {} could not be read: {}", pathText(list), reason));
    return std::nullopt;
}

std::string knownCategories() {
    std::string text;
    for (const char* category : team::Categories)
        text += (text.empty() ? "" : ", ") + std::string(category);
    return text;
}

/// What somebody has to see who does not read the lines that were printed.
void tellOddities(const ListImport& import, const std::string& list) {
    if (!import.skipped.empty())
        logLine(say("{} of {} skipped.",
                    counted(static_cast<std::int64_t>(import.skipped.size()), "line", "lines"),
                    pathText(list)));
    for (const NewCategory& category : import.added)
        logLine(say("Line {} brought the category {} into the selection{}", category.line,
                    printable(category.label),
                    (category.isKnown ? "." : "; it is none of " + knownCategories() + '.')));
}

/// A list of which nothing could be taken is a failure, unless everybody in it is there already.
int importAthletes(const SelectionCall& call) {
    auto document = openedForChange(call.file);
    if (!document)
        return NotDone;
    const auto text = textOf(call.list);
    if (!text)
        return NotDone;
    const ListImport import = importAthletes(*document, *text);
    if (import.needsRace) {
        ConsoleAlerts().show({messages::Careful, messages::AddARaceFirst});
        return NotDone;
    }
    tellOddities(import, call.list);
    const bool isInVain =
        import.imported == 0 && std::cmp_greater(import.skipped.size(), import.present);
    if (!isInVain && !saveSelectionFile(*document, call.file, logLine))
        return NotDone;
    return print(athletesText(import)) && !isInVain ? Done : NotDone;
}

std::string resultText(const saRaceStruct& result) {
    return hundredthsText(result.resultTime) +
           (result.pen > 0 ? " (" + std::to_string(result.pen) + ')' : "");
}

std::string whoText(const selectionracesStruct_v3& document, const ResultPlace& place) {
    const srCategoryStruct_v3& category = document.categories[place.category];
    return printable(category.athletes[place.athlete].name) + " (" + printable(category.cat) + ')';
}

/// What attaching did, beside what stood there before.
std::string attachedText(const selectionracesStruct_v3& document, std::size_t race,
                         const Attached& attached, const selectionracesStruct_v3& before) {
    const EnteredRuns& entered = attached.entered;
    std::string text =
        counted(static_cast<std::int64_t>(entered.results.size()), "result", "results") +
        " attached to " + printable(document.races[race].location) + '\n';
    for (const ResultPlace& place : entered.missing) {
        const auto& was = before.categories[place.category].athletes[place.athlete].racedata;
        text += "No run: " + whoText(document, place);
        if (race < was.size() && !isMissing(was[race]) && !isZero(was[race]))
            text += ", was " + resultText(was[race]);
        text += '\n';
    }
    for (const ResultPlace& place : entered.keptExpected)
        text +=
            "Expected time kept: " + whoText(document, place) + ", " +
            hundredthsText(
                document.categories[place.category].athletes[place.athlete].racedata[race].xTime) +
            '\n';
    for (const UnusedRun& run : attached.unused)
        text += "Not used: " + printable(run.crew) + " (" + printable(run.category) + ") " +
                run.reason + '\n';
    return text;
}

std::optional<std::vector<splittakerdata031>> openedRaces(const std::vector<std::string>& paths) {
    std::vector<splittakerdata031> races;
    for (const std::string& path : paths) {
        auto file = openedSplitFile(path);
        if (!file)
            return std::nullopt;
        races.push_back(std::move(file->document));
    }
    return races;
}

/// A race by its number from 0, or by its name; nothing, after a message with those that exist.
std::optional<std::size_t> raceOf(const selectionracesStruct_v3& document,
                                  const std::string& written) {
    const auto& races = document.races;
    std::size_t number = 0;
    if (parseField(written, number) && number < races.size())
        return number;
    const auto isNamed = [&](const sRaceStruct& race) {
        return folded(race.location) == folded(written);
    };
    const auto named = std::ranges::find_if(races, isNamed);
    const auto count = std::ranges::count_if(races, isNamed);
    if (count == 1)
        return static_cast<std::size_t>(named - races.begin());
    std::string text = count > 1 ? std::to_string(count) + " races are called " +
                                       printable(written) + ": give the number of one."
                                 : "There is no race " + printable(written) + '.';
    text += races.empty() ? " The file has none yet." : " Those of the file:";
    for (std::size_t race = 0; race < races.size(); ++race)
        text += (race == 0 ? " " : ", ") + std::to_string(race) + " \"" +
                printable(races[race].location) + '"';
    logLine(text);
    return std::nullopt;
}

int attach(const SelectionCall& call) {
    auto document = openedForChange(call.file);
    if (!document)
        return NotDone;
    const auto race = raceOf(*document, call.race);
    const auto races = race ? openedRaces(call.splitFiles) : std::nullopt;
    if (!races)
        return NotDone;
    const selectionracesStruct_v3 before = *document;
    const Attached attached = attachRace(*document, *race, *races);
    const std::string text = attachedText(*document, *race, attached, before);
    recomputeSelection(*document, call.bonus);
    return saveSelectionFile(*document, call.file, logLine) && print(text) ? Done : NotDone;
}

/// The library's own check answers with the largest number there is, in 309 digits.
Complaint wholeNumber() {
    return [](const std::string& text) {
        std::size_t number = 0;
        return parseField(text, number) ? std::string()
                                        : '"' + text + "\" is no whole number from 0 on";
    };
}

void addRank(Command selection, const std::shared_ptr<SelectionCall>& call, int& status,
             const Painting* painting) {
    Command command = selection.command("rank", "The ranking of each category");
    command.option("FILE", call->file, "Selection file (.kvsr) of any layout").required();
    command.option("--bonus", call->bonus, "Kind of bonus that counts, from 0")
        .check(wholeNumber());
    command.flag("--json", call->json, "Print one JSON document");
    command.option("--pdf", call->pdf, "Folder to write both reports into");
    command.flag("--write", call->write, "Store percentages and scores in the file");
    command.footer("Percentages in brackets do not count: the worst race, with a bonus the second "
                   "worst too. Without --write the file is only read.");
    command.onRun([=, &status] { status = rank(*call, painting); });
}

void addImportAthletes(Command selection, const std::shared_ptr<SelectionCall>& call, int& status) {
    Command command =
        selection.command("import-athletes", "Adds athletes from a list to a selection");
    command.option("FILE", call->file, "Selection file (.kvsr)").required();
    command.option("LIST", call->list, "Text with lines Cat;Name;Surname;year;club").required();
    command.footer("The first line of the list holds titles and is skipped. Lines that could not "
                   "be taken are printed, and counted on standard error; when none could be "
                   "taken, nothing is written and the exit status is 1.");
    command.onRun([call, &status] { status = importAthletes(*call); });
}

void addAttach(Command selection, const std::shared_ptr<SelectionCall>& call, int& status) {
    Command command =
        selection.command("attach", "Takes the results of a race from its split files");
    command.option("FILE", call->file, "Selection file (.kvsr)").required();
    command
        .option("--race", call->race,
                "Race of the selection: its name, or its number counted from 0")
        .required();
    command.option("--bonus", call->bonus, "Kind of bonus that counts in the scores, from 0")
        .check(wholeNumber());
    command.option("SPLITFILE", call->splitFiles, "Split files (.kvx) of the race").required();
    command.footer("Of several runs of an athlete the best one counts. Who has none gets a "
                   "missing result, in the categories that were raced. An expected time stays "
                   "where the split file has none.");
    command.onRun([call, &status] { status = attach(*call); });
}

} // namespace

void addSelection(Command program, int& status, const Painting* painting) {
    const auto call = std::make_shared<SelectionCall>();
    Command selection = program.command("selection", "Selection races and their ranking");
    selection.needsCommand();
    addRank(selection, call, status, painting);
    addImportAthletes(selection, call, status);
    addAttach(selection, call, status);
}

} // namespace kavela::cli
