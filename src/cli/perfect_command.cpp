#include "cli/commands.h"

#include "cli/console.h"
#include "cli/split_file_edit.h"
#include "cli/told_reason.h"
#include "common/display_text.h"
#include "common/json_encode.h"
#include "common/number_text.h"
#include "splitdata/run_timing.h"
#include "splittaking/perfect_time.h"

#include <fmt/format.h>

#include <algorithm>
#include <memory>

namespace kavela::cli {

namespace {

struct PerfectCall {
    std::string file;
    bool json = false;
    bool write = false;
    std::string why;
};

struct RunJson {
    std::vector<std::string> names;
    double xPer = 0;
    double xTime = 0;
};
BOOST_DESCRIBE_STRUCT(RunJson, (), (names, xPer, xTime))

struct PerfectJson {
    double perfectTime = 0;
    std::vector<double> best;
    std::vector<RunJson> runs;
};
BOOST_DESCRIBE_STRUCT(PerfectJson, (), (perfectTime, best, runs))

std::string perfectJson(const splittakerdata031& document, const PerfectTime& perfect) {
    PerfectJson json{document.info.perfectRun, perfect.best, {}};
    for (const athletedata031& run : document.athletes)
        json.runs.push_back({run.names, run.sectioninfo.xPer, run.sectioninfo.xTime});
    return encode(json) + '\n';
}

std::string bestText(const PerfectTime& perfect) {
    std::string text = "Best values  ";
    for (const double value : perfect.best)
        text += ' ' + (value == 0 ? "-" : hundredthsText(value));
    return text + '\n';
}

std::string perfectText(const splittakerdata031& document, const PerfectTime& perfect) {
    constexpr int WidestName = 40;
    constexpr int PhaseWidth = 14;
    std::string text = "Perfect time  " + hundredthsText(document.info.perfectRun) + '\n' +
                       bestText(perfect) + '\n';
    int width = 4;
    for (const athletedata031& run : document.athletes)
        width = std::max(width, displayWidth(printable(crewText(run.names))));
    width = std::min(width, WidestName);
    text += fitted("Name", width) + "  " + fitted("Phase", PhaseWidth) + "  Factor  Expected\n";
    for (const athletedata031& run : document.athletes)
        text += fitted(printable(crewText(run.names)), width) + "  " +
                fitted(printable(run.phase), PhaseWidth) + "  " +
                rightAligned(fmt::format("{:.4f}", run.sectioninfo.xPer), 6) + "  " +
                rightAligned(hundredthsText(run.sectioninfo.xTime), 8) + '\n';
    return text;
}

int perfect(const PerfectCall& call) {
    auto file = openedSplitFile(call.file);
    if (!file || (call.write && !isWritable(*file, call.file)))
        return NotDone;
    splittakerdata031& document = file->document;
    const PerfectTime perfect = recomputeExpected(document, logLine);
    if (call.write && !isSaved(document, call.file))
        return NotDone;
    if (!call.why.empty())
        return tellReason(explainExpected(document.athletes, call.file, call.why), call.why);
    const std::string output =
        call.json ? perfectJson(document, perfect) : perfectText(document, perfect);
    return print(output) ? Done : NotDone;
}

} // namespace

void addPerfect(Command program, int& status) {
    const auto call = std::make_shared<PerfectCall>();
    Command command =
        program.command("perfect", "The sum of the best splits, and what each run could be");
    command.option("FILE", call->file, "Split file (.kvx) of any release").required();
    command.flag("--json", call->json, "Print one JSON document");
    command.flag("--write", call->write, "Store the values in the file");
    command.option("--why", call->why,
                   "Tell how a number came about: perfect, or xtime/5 (runs from 0)");
    command.footer("Without --write the file is only read. One of an older release has to be "
                   "upgraded before it is written.");
    command.onRun([call, &status] { status = perfect(*call); });
}

} // namespace kavela::cli
