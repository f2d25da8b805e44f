#include "subjects.h"

#include "boatmotion/simulator.h"
#include "boatmotion/strokes/motion_analysis.h"
#include "common/json_decode.h"
#include "common/json_encode.h"
#include "measure.h"

/// The stroke analysis of an hour at 100 samples a second, beside the decoding of its file.
namespace kavela::bench {

namespace {

const bmrawdata_v5& hourOfSlalom() {
    static const bmrawdata_v5 session =
        test::simulate({.seconds = 3600, .style = test::Style::Slalom}).session;
    return session;
}

void decodeHour(benchmark::State& state) {
    static const std::string text = encode(hourOfSlalom());
    measureMaking(state, text.size(), [&] { return decodeText<bmrawdata_v5>(text); });
}

void analyseHour(benchmark::State& state) {
    const bmrawdata_v5& session = hourOfSlalom();
    const MotionProfile profile = profileOf(session.athleteinfo);
    measureMaking(state, session.boatmotion.size() * sizeof(boatmotionrawdata_v5),
                  [&] { return analyseMotion(session, profile); });
}

} // namespace

void addMotionAnalysis() {
    benchmark::RegisterBenchmark("motion/decode", decodeHour);
    benchmark::RegisterBenchmark("motion/analysis", analyseHour);
}

} // namespace kavela::bench
