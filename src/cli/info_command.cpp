#include "cli/commands.h"

#include "app/file_facts.h"
#include "cli/console.h"
#include "common/display_text.h"

#include <algorithm>
#include <memory>

namespace kavela::cli {

namespace {

struct InfoCall {
    std::vector<std::string> files;
    bool json = false;
};

std::string countsText(const FileFacts& facts) {
    std::string text;
    for (const auto& [what, count] : facts.counts)
        if (count != 0)
            text += (text.empty() ? "" : ", ") + what + ' ' + std::to_string(count);
    return text;
}

std::string decodedText(const FileFacts& facts) {
    std::string text = "  " + facts.kind + ", " + facts.record.value_or("") + ", version " +
                       facts.label.value_or("") +
                       (facts.current ? " (current)\n" : " (an older one)\n");
    const std::string counts = countsText(facts);
    return counts.empty() ? text : text + "  " + counts + '\n';
}

/// The first faults, with neighbouring attempts that met the same one told once.
std::string faultsText(const FileFacts& facts) {
    std::string text;
    for (std::size_t i = 0; i < facts.attempts.size();) {
        std::size_t last = i;
        while (last + 1 < facts.attempts.size() &&
               facts.attempts[last + 1].fault == facts.attempts[i].fault)
            ++last;
        text += "  " + facts.attempts[i].record;
        if (last > i)
            text += " to " + facts.attempts[last].record;
        text += ": " + printable(facts.attempts[i].fault) + '\n';
        i = last + 1;
    }
    return text;
}

std::string factsText(const FileFacts& facts) {
    const std::string name = printable(facts.path) + '\n';
    if (!facts.error)
        return name + decodedText(facts);
    return name + "  " + *facts.error + '\n' + faultsText(facts);
}

/// A file that could not be read is no matter of record types: one line says what is wrong.
void logUnread(const std::vector<FileFacts>& all) {
    for (const FileFacts& facts : all)
        if (facts.unread)
            logLine(printable(facts.path) + ": " + printable(*facts.unread));
}

int info(const InfoCall& call) {
    std::vector<FileFacts> all;
    for (const std::string& file : call.files)
        all.push_back(factsOf(file));
    std::string output;
    if (call.json)
        output = factsJson(all);
    else
        for (const FileFacts& facts : all)
            if (!facts.unread)
                output += factsText(facts);
    logUnread(all);
    const bool allDecoded =
        std::none_of(all.begin(), all.end(), [](const FileFacts& facts) { return facts.error; });
    return print(output) && allDecoded ? Done : NotDone;
}

} // namespace

void addInfo(Command program, int& status) {
    const auto call = std::make_shared<InfoCall>();
    Command command = program.command("info", "Says what files are, or what is wrong in them");
    command.option("FILE", call->files, "Files of any kind").required();
    command.flag("--json", call->json, "Print one JSON document");
    command.onRun([call, &status] { status = info(*call); });
}

} // namespace kavela::cli
