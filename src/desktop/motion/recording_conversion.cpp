#include "desktop/motion/recording_conversion.h"

#include "boatmotion/session_files.h"
#include "common/error.h"
#include "desktop/motion/motion_recording.h"

namespace kavela::desktop {

namespace {

void save(const MotionRecording& recording, const MotionAnalysis& analysis, Conversion& result) {
    result.strokes = analysis.strokes.size();
    result.turns = analysis.turns.size();
    result.flags = analysis.flags;
    result.notes = notesOf(analysis);
    try {
        saveSmartSession(processedSession(recording.session, analysis), result.target);
        result.outcome = ConversionOutcome::Saved;
    } catch (const FileError& error) {
        result.outcome = ConversionOutcome::NotSaved;
        result.detail = error.what();
    } catch (const EncodeError& error) {
        result.outcome = ConversionOutcome::NotConverted;
        result.detail = recording.data.url.string() + ": " + error.what();
    }
}

} // namespace

Conversion convertLoaded(const MotionRecording& recording, const MotionProfile& profile,
                         const MotionAnalysis* analysis, const std::filesystem::path& target) {
    Conversion result;
    result.target = target;
    std::error_code ignored;
    if (std::filesystem::exists(std::filesystem::symlink_status(target, ignored))) {
        result.outcome = ConversionOutcome::TargetExists;
        return result;
    }
    try {
        if (analysis)
            save(recording, *analysis, result);
        else
            save(recording, analyseMotion(recording.samples(), profile), result);
    } catch (const MotionError& error) {
        result.outcome = ConversionOutcome::NotConverted;
        result.detail = recording.data.url.string() + ": " + error.what();
    }
    return result;
}

} // namespace kavela::desktop
