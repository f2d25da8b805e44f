#include "cli/why_text.h"

#include "cli/console.h"
#include "common/display_text.h"
#include "common/number_text.h"

namespace kavela::cli {

namespace {

std::string placeText(const Place& place) {
    std::string text = pathText(place.file.filename()) + " · run " + std::to_string(place.run);
    if (place.split)
        text += " · split " + std::to_string(*place.split);
    if (place.gate)
        text += " · gate " + std::to_string(*place.gate);
    return text;
}

void addReason(const Reason& reason, const std::string& indent, std::string& text) {
    if (!reason.rule)
        return;
    text += indent + reason.shown + "  " + std::string(reason.rule->sentence) + '\n';
    for (const Input& input : reason.inputs)
        text += indent + "  " + fitted(printable(input.name), 24) + "  " +
                shortestText(input.value) +
                (input.place ? "  " + printable(placeText(*input.place)) : "") + '\n';
    text += indent + "  rule  " + std::string(reason.rule->formula) + '\n';
    if (!reason.rule->source.empty())
        text += indent + "  source  " + std::string(reason.rule->source) + '\n';
    text += indent + "  value  " + shortestText(reason.value) + '\n';
    if (reason.uncertainty)
        text += indent + "  from " + shortestText(reason.uncertainty->low) + " to " +
                shortestText(reason.uncertainty->high) + "  " + reason.uncertaintySource + '\n';
    for (const std::string& note : reason.notes)
        text += indent + "  " + note + '\n';
    for (const Reason& part : reason.parts)
        addReason(part, indent + "    ", text);
}

} // namespace

std::string whyText(const Reason& reason) {
    std::string text;
    addReason(reason, "", text);
    return text;
}

} // namespace kavela::cli
