#pragma once

#include "boatmotion/session_editing.h"
#include "common/refused_line.h"

#include <string_view>

/// Power as a meter in the paddle's shaft measured it, brought into a session.
namespace kavela {

struct PowerMeterList {
    std::vector<powermeterData> samples; ///< `dateDouble` as it stands in the list, in seconds
    bool isTimeOfDay = false;            ///< the times were written with colons
    std::vector<RefusedLine> refused;
};

/// Reads a list: a header line, then one sample per line. The header names the columns, in any
/// order and whatever their case: one that begins with "time" or "sec", one that begins with
/// "power" or "watt", and perhaps one that begins with "heart" or "hr" or is "bpm"; others are
/// passed over. Fields are separated by semicolons, tabs or commas, whichever the header has. A
/// time is a number of seconds, mm:ss or hh:mm:ss with or without a fraction, and later than that
/// of the line before; a power is 0 to 5000 W; a heart rate is 20 to 250, or missing. Numbers may
/// have a decimal comma where commas do not separate. A blank line is passed over, any other one
/// that cannot be read is refused with the reason; so is the header, and with it the whole list.
[[nodiscard]] PowerMeterList parsePowerMeter(std::string_view text);

/// The samples on the clock of a session. Times that are dates of the session's day (seconds since
/// 2001 or 1970), and times of day (UTC) while it lasted, are taken for what they are. Any other
/// list begins with the session.
[[nodiscard]] std::vector<powermeterData> placedInSession(const PowerMeterList& list,
                                                          const EditedSession& session);

/// Gives every stroke the mean power of the meter's samples in its cycle, or where there is none
/// the value between the samples around its middle when they are at most 3 s apart. Strokes that
/// the meter did not see keep theirs. Heart rates of the meter are added where the session has no
/// reading within 5 s. The samples are part of the session from then on. Gives the strokes that
/// were changed.
std::size_t applyPowerMeter(EditedSession& session);

inline constexpr const char* AskToSavePowerMeter =
    "Would you like to save the powermeter data into sbm file?";

} // namespace kavela
