#include "boatmotion/conversion.h"

#include "boatmotion/session_files.h"
#include "common/error.h"
#include "common/safe_file.h"

#include <algorithm>

namespace kavela {

namespace fs = std::filesystem;

namespace {

infosessionSmart_v3 processedInfo(const bmrawdata_v5& session) {
    const infoathlete_v5& athlete = session.athleteinfo;
    return {.date = session.info.date,
            .location = session.info.location,
            .name = athlete.name,
            .sessionKind = session.info.sessionKind,
            .weight = athlete.weight,
            .paddleLength = athlete.paddleLength,
            .bladeArea = athlete.bladeArea,
            .bladeHeight = athlete.bladeHeight,
            .handPosition = athlete.handPosition};
}

void logFailure(const Conversion& conversion, const DiagnosticLog& log) {
    log(conversion.message());
    log(conversion.detail);
}

/// The recording as a processed session; nothing, with the reason in `result`, when it is none.
std::optional<smartAlldata_v4> processed(const fs::path& source, const DiagnosticLog& log,
                                         const ProfileOf& profile, Conversion& result) {
    try {
        const bmrawdata_v5 session = readRawSession(source);
        log(conversion_messages::Count + source.filename().string() + ' ' +
            std::to_string(session.boatmotion.size()));
        const MotionAnalysis analysis = analyseMotion(session, profile(session.athleteinfo));
        result.strokes = analysis.strokes.size();
        result.turns = analysis.turns.size();
        result.flags = analysis.flags;
        result.notes = notesOf(analysis);
        return processedSession(session, analysis);
    } catch (const FileError& error) {
        result.detail = error.what();
    } catch (const DecodeError& error) {
        result.detail = source.string() + ": " + error.what();
    } catch (const MotionError& error) {
        result.detail = source.string() + ": " + error.what();
    }
    return std::nullopt;
}

} // namespace

smartAlldata_v4 processedSession(const bmrawdata_v5& session, const MotionAnalysis& analysis) {
    smartAlldata_v4 result;
    result.info = processedInfo(session);
    result.heart = session.heart;
    result.gps = session.gps;
    result.strokesData.reserve(analysis.strokes.size() + analysis.turns.size());
    for (const Stroke& stroke : analysis.strokes)
        result.strokesData.push_back({stroke.catchTime, {}, stroke.values, 0});
    for (const Turn& turn : analysis.turns)
        result.strokesData.push_back({turn.start, turn.values, {}, 0});
    std::stable_sort(
        result.strokesData.begin(), result.strokesData.end(),
        [](const smartBMdata_v4& a, const smartBMdata_v4& b) { return a.timestamp < b.timestamp; });
    return result;
}

smartAlldata_v4 processedSession(const bmrawdata_v5& session, const MotionProfile& profile) {
    return processedSession(session, analyseMotion(session, profile));
}

std::string Conversion::message() const {
    switch (outcome) {
    case ConversionOutcome::Saved:
        return conversion_messages::Saved;
    case ConversionOutcome::NotConverted:
        return conversion_messages::NotConverted;
    case ConversionOutcome::NotSaved:
        return conversion_messages::NotSaved;
    case ConversionOutcome::TargetExists:
        return "The file " + target.string() + " exists already.";
    }
    return {};
}

Conversion convertRecording(const fs::path& source, const fs::path& target,
                            const DiagnosticLog& log, const ProfileOf& profile) {
    Conversion result;
    result.target = target;
    if (isTaken(target)) {
        result.outcome = ConversionOutcome::TargetExists;
        log(result.message());
        return result;
    }
    const auto session = processed(source, log, profile, result);
    if (!session) {
        logFailure(result, log);
        return result;
    }
    try {
        saveSmartSession(*session, target);
        result.outcome = ConversionOutcome::Saved;
    } catch (const FileError& error) {
        result.outcome = ConversionOutcome::NotSaved;
        result.detail = error.what();
        logFailure(result, log);
    }
    return result;
}

fs::path conversionTarget(const fs::path& source, const std::string& name) {
    if (name.empty())
        return convertedSessionPath(source);
    fs::path target = name;
    if (target.filename() != target || name == "." || name == "..")
        throw std::invalid_argument("The name must be that of a file beside the recording");
    if (target.extension() != ".bms")
        target += ".bms";
    return source.parent_path() / target;
}

} // namespace kavela
