#include "boatmotion/conversion.h"
#include "harness.h"

#include <cmath>

namespace {

using namespace kavela;

/// Fuzzed documents hold few samples; each stands here for a second of them, so that the analysis
/// has something to look at.
bmrawdata_v5 stretched(const bmrawdata_v5& session) {
    bmrawdata_v5 longer = session;
    longer.boatmotion.clear();
    for (std::size_t i = 0; i < session.boatmotion.size() && i < 60; ++i)
        for (int k = 0; k < 50; ++k) {
            boatmotionrawdata_v5 sample = session.boatmotion[i];
            sample.timestamp += k * 0.02;
            sample.acceleration.y += std::sin(k * 0.2);
            longer.boatmotion.push_back(sample);
        }
    return longer;
}

/// Either the analysis says what is missing, or its result can be written and read.
void checkAnalysis(const bmrawdata_v5& session, const MotionProfile& profile) {
    try {
        const MotionAnalysis analysis = analyseMotion(session, profile);
        fuzz::require(analysis.strokeRates.size() == analysis.strokes.size());
        fuzz::checkWriting(processedSession(session, analysis));
    } catch (const MotionError& error) {
        fuzz::require(std::string_view(error.what()).size() > 0);
    }
}

} // namespace

/// The strokes of whatever decodes as a raw recording.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    const auto json = fuzz::parsed(bytes, size);
    if (!json)
        return 0;
    bmrawdata_v5 session;
    Fault fault;
    if (!tryDecode(json->root(), session, fault))
        return 0;
    checkAnalysis(session, profileOf(session.athleteinfo));
    const bmrawdata_v5 longer = stretched(session);
    checkAnalysis(longer, profileOf(session.athleteinfo));
    checkAnalysis(longer, {.boat = BoatClass::Canoe, .mount = Mount::BackToBow});
    return 0;
}
