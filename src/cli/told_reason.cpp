#include "cli/told_reason.h"

#include "cli/console.h"
#include "common/display_text.h"
#include "common/why_text.h"

#include <string>

namespace kavela::cli {

int tellReason(const std::optional<Reason>& reason, std::string_view id) {
    if (reason)
        return print(whyText(*reason)) ? Done : NotDone;
    logLine("There is no number with the id \"" + validUtf8(id) + "\" here.");
    return NotDone;
}

} // namespace kavela::cli
