#include "cli/commands.h"

#include "cli/console.h"
#include "common/display_text.h"
#include "common/json_encode.h"
#include "common/number_text.h"
#include "common/text.h"
#include "planning/gym_maximum.h"

#include <cmath>
#include <memory>

namespace kavela::cli {

namespace {

struct GymCall {
    std::int64_t repetitions = 0;
    double weight = 0;
    bool json = false;
};

struct GymJson {
    std::optional<double> table;
    std::optional<double> epley;
    std::optional<double> brzycki;
    std::optional<double> mcglothin;
    std::optional<double> lombardi;
    std::optional<double> result;
};
BOOST_DESCRIBE_STRUCT(GymJson, (), (table, epley, brzycki, mcglothin, lombardi, result))

std::optional<double> ifFinite(double value) {
    return std::isfinite(value) ? std::optional(value) : std::nullopt;
}

std::string gymJson(const GymEstimates& estimates) {
    const GymJson json{ifFinite(estimates.table),    ifFinite(estimates.epley),
                       ifFinite(estimates.brzycki),  ifFinite(estimates.mcglothin),
                       ifFinite(estimates.lombardi), ifFinite(estimates.result)};
    return encode(json) + '\n';
}

std::string line(const char* label, double value) {
    constexpr int LabelWidth = 24;
    constexpr int ValueWidth = 10;
    const std::string text =
        std::isfinite(value) ? saidNumber(hundredthsText(value)) + " kg" : say("none");
    return fitted(translated(label), LabelWidth) + rightAligned(text, ValueWidth) + '\n';
}

std::string gymText(const GymEstimates& estimates) {
    return line(KAVELA_TEXT("Table"), estimates.table) + line("Epley", estimates.epley) +
           line("Brzycki", estimates.brzycki) + line("McGlothin", estimates.mcglothin) +
           line("Lombardi", estimates.lombardi) +
           line(KAVELA_TEXT("One-repetition maximum"), estimates.result);
}

int gym(const GymCall& call) {
    const GymEstimates estimates = gymEstimates(call.repetitions, call.weight, logLine);
    return print(call.json ? gymJson(estimates) : gymText(estimates)) ? Done : NotDone;
}

std::string complaintAboutWeight(const std::string& text) {
    constexpr std::string_view PlainNumber = "0123456789+-.eE";
    const bool isNumber = text.find_first_not_of(PlainNumber) == std::string::npos;
    return isNumber ? "" : "The weight must be a number of kilograms.";
}

} // namespace

void addGym(Command program, int& status) {
    const auto call = std::make_shared<GymCall>();
    Command command = program.command("gym", "What an athlete can lift once, by five formulas");
    command.option("REPETITIONS", call->repetitions, "How often the weight was lifted").required();
    command.option("WEIGHT", call->weight, "The weight in kilograms")
        .required()
        .check(complaintAboutWeight);
    command.flag("--json", call->json, "Print one JSON document");
    command.footer("The one-repetition maximum is the Lombardi estimate with two decimals.");
    command.onRun([call, &status] { status = gym(*call); });
}

} // namespace kavela::cli
