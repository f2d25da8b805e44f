#include "cli/told_reason.h"

#include "cli/console.h"
#include "common/display_text.h"
#include "common/text.h"
#include "common/why_text.h"

#include <string>

namespace kavela::cli {

int tellReason(const std::optional<Reason>& reason, std::string_view id) {
    if (reason)
        return print(whyText(*reason)) ? Done : NotDone;
    logLine(say("There is no number with the id \"{}\" here.", validUtf8(id)));
    return NotDone;
}

} // namespace kavela::cli
