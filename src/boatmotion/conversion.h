#pragma once

#include "boatmotion/strokes/motion_analysis.h"
#include "common/log.h"

#include <filesystem>
#include <functional>

/// From a raw recording to a processed session.
namespace kavela {

/// What is said while a recording is converted, word for word.
namespace conversion_messages {
inline constexpr const char* Converting = "Converting...";
inline constexpr const char* Saved = "Autosaved!";
inline constexpr const char* NotConverted = "Error converting!";
inline constexpr const char* NotSaved = "Failed to create file";
inline constexpr const char* AskForName = "new file name for extra bms";
inline constexpr const char* Count = "BM data count for ";
} // namespace conversion_messages

/// An analysed recording as a processed session: an entry for each stroke, stamped by its catch,
/// and for each turn, stamped by its start, by time. The block that does not apply is zero
/// throughout. Heart rates and fixes are those of the recording.
[[nodiscard]] smartAlldata_v4 processedSession(const bmrawdata_v5& session,
                                               const MotionAnalysis& analysis);

/// The same with the analysis. Throws MotionError.
[[nodiscard]] smartAlldata_v4 processedSession(const bmrawdata_v5& session,
                                               const MotionProfile& profile);

enum class ConversionOutcome {
    Saved,        ///< "Autosaved!"
    NotConverted, ///< "Error converting!": not to be read, or no strokes to be found in it
    NotSaved,     ///< "Failed to create file"
    TargetExists  ///< a name is needed: nothing was written
};

struct Conversion {
    ConversionOutcome outcome = ConversionOutcome::NotConverted;
    std::filesystem::path target; ///< where the processed session is, or would be
    std::string detail;           ///< why it failed; empty when it did not
    std::size_t strokes = 0;
    std::size_t turns = 0;
    std::vector<MotionFlag> flags;
    std::vector<std::string> notes; ///< what has to be known about the figures, as sentences

    /// What the user is told: the words above, or for an existing target that it exists.
    [[nodiscard]] std::string message() const;
};

/// How a recording's own athlete information becomes a profile.
using ProfileOf = std::function<MotionProfile(const infoathlete_v5& athlete)>;

/// Converts a recording into a file that must not exist yet; the recording itself is never touched.
/// Failures are in the result, and in the log with their reason.
[[nodiscard]] Conversion convertRecording(const std::filesystem::path& source,
                                          const std::filesystem::path& target,
                                          const DiagnosticLog& log,
                                          const ProfileOf& profile = profileOf);

/// Where a recording is converted to: beside it as NAME_postv5.bms, or under a name of the coach's
/// own, with the extension .bms unless it has it. Throws std::invalid_argument for a name that is
/// empty or leads elsewhere.
[[nodiscard]] std::filesystem::path conversionTarget(const std::filesystem::path& source,
                                                     const std::string& name = {});

} // namespace kavela
