#include "boatmotion/strokes/motion_analysis.h"

#include <fmt/format.h>

#include <cmath>

namespace kavela {

namespace {

/// Minutes and seconds from the first sample.
std::string momentText(const MotionAnalysis& analysis, double time) {
    const auto seconds = std::lround(time - analysis.series.time.front());
    return fmt::format("{}:{:02}", seconds / 60, seconds % 60);
}

std::string slipText(const MotionAnalysis& analysis, const PhoneSlip& slip) {
    return fmt::format(
        "The phone slipped in its mount about {} after the first sample, by {:.0f}°; "
        "what came before and after was analysed apart.",
        momentText(analysis, slip.time), slip.angle * 180 / std::numbers::pi);
}

} // namespace

std::string_view textOf(MotionFlag flag) {
    switch (flag) {
    case MotionFlag::NoPosition:
        return "There are no usable position fixes: speed, force, impulse and power are not known, "
               "and waves at rest may count as strokes.";
    case MotionFlag::UnknownMount:
        return "Neither fixes nor settings tell which side of the phone points to the bow: the "
               "side "
               "of the strokes, their phases and forces are not known until you name it.";
    case MotionFlag::MountAssumed:
        return "The fixes do not tell where the bow is: the mount of the settings was used.";
    case MotionFlag::WatchIgnored:
        return "The watch does not fit the boat's motion and was ignored.";
    case MotionFlag::PhoneSlipped:
        return "The phone slipped in its mount; what came before and after was analysed apart.";
    case MotionFlag::HasHoles:
        return "Samples of the boat are missing for a while; strokes there are not found.";
    case MotionFlag::GravityRebuilt:
        return "The samples have no gravity; it was rebuilt from the attitude.";
    case MotionFlag::GuessedClocks:
        return "The recording's date does not fit its fixes; fixes and motion were taken to begin "
               "together.";
    }
    return {};
}

std::vector<std::string> notesOf(const MotionAnalysis& analysis) {
    std::vector<std::string> notes;
    for (const MotionFlag flag : analysis.flags)
        if (flag != MotionFlag::PhoneSlipped || analysis.slips.empty())
            notes.emplace_back(textOf(flag));
        else
            for (const PhoneSlip& slip : analysis.slips)
                notes.push_back(slipText(analysis, slip));
    return notes;
}

} // namespace kavela
