#include "boatmotion/strokes/unknown_bow.h"

namespace kavela::strokes {

void withholdWhatNeedsTheBow(MotionAnalysis& analysis) {
    for (Stroke& stroke : analysis.strokes) {
        stroke.values = {.strokeRate = stroke.values.strokeRate, .hand = UnknownHand};
        stroke.confidence = 0;
        stroke.steering = false;
    }
    for (Turn& turn : analysis.turns) {
        smartRotation& values = turn.values;
        values.pushOutPeak = values.pushOutAve = values.aveRoll = values.avePitch = 0;
    }
}

} // namespace kavela::strokes
