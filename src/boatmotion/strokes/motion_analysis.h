#pragma once

#include "boatmotion/sessions.h"

#include <cstdint>
#include <numbers>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

/// Strokes and turns of a boat from the motion samples of the phone in it.
///
/// Conventions: SI units throughout. Boat axes: X bow, Y left, Z up. A yaw rate above 0 turns left,
/// a roll above 0 lowers starboard, a pitch above 0 raises the bow; roll and pitch are measured
/// from their median over the recording (the trim). Every moment is given on the clock of the
/// boat's samples, in seconds; `MotionAnalysis::clockOffset` turns it into a date.
///
/// What the figures can claim: the method was checked with simulated recordings. Phases of a stroke
/// are estimates from the hull's motion; force and power are those that move the hull, below what
/// the paddler does at the shaft, and hold on flat water only, since fixes tell the speed over
/// ground. Left and right differ in earnest only from about 15 % on.
namespace kavela {

/// How the boat is paddled: a kayak mostly left and right in turn, a canoe mostly on one side.
enum class BoatClass { Kayak, Canoe };

/// Which side of the phone points to the bow, as seen on its screen held upright.
enum class Mount { TopToBow, BottomToBow, RightToBow, LeftToBow, BackToBow, ScreenToBow };

/// What the analysis cannot know from the samples.
struct MotionProfile {
    double mass = 88; ///< athlete, boat and kit, kg; above 0
    double drag = 5;  ///< resistance over the square of the speed, N·s²/m²; 0 or above
    BoatClass boat = BoatClass::Kayak;
    /// Used where the position fixes do not tell where the bow is.
    std::optional<Mount> mount{};
    double leastTurnAngle = std::numbers::pi / 3; ///< of what counts as a turn, rad
    double leastTurnPeak = 0.6;                   ///< yaw rate of what counts as a turn, rad/s
};

/// The profile that a recording's athlete information gives: the mass is the athlete's weight with
/// 13 kg of boat and kit (88 kg when no believable weight stands there), the class is canoe when
/// the discipline begins with a "C". The rest is as in a new profile.
[[nodiscard]] MotionProfile profileOf(const infoathlete_v5& athlete);

/// What `smartStraight_v3::hand` holds in an analysis, and in a session made of one. A session from
/// elsewhere may hold any number: what is neither left nor right is not known.
inline constexpr std::int64_t LeftHand = 0;
inline constexpr std::int64_t RightHand = 1;
inline constexpr std::int64_t UnknownHand = -1;

/// One stroke. Of `values`, force, impulse and power are 0 where they are not known, see
/// MotionAnalysis::hasForce(); much more is where it is not known which end is the bow, see
/// MotionAnalysis::isBowKnown.
struct Stroke {
    double catchTime = 0; ///< the blade begins to pull, s
    double exitTime = 0;  ///< the blade leaves the water, s
    double peakTime = 0;  ///< of the greatest force, s
    /// strokeRate 1/min: 60 / cycle, from catch to next catch, each side counting one;
    /// waterPhase s: exit - catch; aerealPhase s: cycle - waterPhase;
    /// aveAcce, maxAcce m/s²: mean and greatest forward acceleration of the water phase;
    /// aveDecce m/s²: mean forward acceleration of the aerial phase, normally below 0;
    /// impulse N·s: ∫ max(F, 0) dt over the water phase, F = mass·a + drag·v²;
    /// force N: impulse / waterPhase; power W: ∫ max(F, 0)·v dt of the water phase / cycle;
    /// roll rad: greatest |roll| of the water phase; hand: LeftHand, RightHand or UnknownHand.
    smartStraight_v3 values;
    double cycle = 0;      ///< to the next catch, s; at the end of a bout that of the stroke before
    double confidence = 0; ///< in the hand, 0 to 1
    double speed = 0;      ///< mean of the cycle, m/s; 0 where it is not known
    bool endOfBout = false; ///< no next stroke within 2 s, or the samples have a hole there
    bool steering = false;  ///< a water phase above 0.6 s: the blade turns more than it drives
    /// Distance of the cycle in metres; nothing where the speed is not known.
    std::optional<double> efficiency;
};

/// One turn of the boat.
struct Turn {
    double start = 0; ///< s
    double end = 0;   ///< s
    double peak = 0;  ///< moment of the greatest yaw rate, s
    double angle = 0; ///< rad, above 0 to the left
    /// rotationTime s: end - start; rotSpeedPeak rad/s: greatest |yaw rate| below 3 Hz;
    /// aveRotSpeed rad/s: |angle| / time; pushOutPeak, pushOutAve m/s²: greatest and mean positive
    /// forward acceleration from the yaw peak to 1 s after the end; aveRoll rad: mean roll, above 0
    /// when the boat leans to the inside of the turn; avePitch rad: mean pitch, above 0 bow up.
    smartRotation values;
};

/// The motion of the boat, 50 values a second. Where the recording has a hole of more than 2 s,
/// `time` jumps over it. In a hole of more than 0.3 s the samples are not valid and hold 0.
struct MotionSeries {
    std::vector<double> time;        ///< s, ascending
    std::vector<double> forward;     ///< forward acceleration, m/s²
    std::vector<double> speed;       ///< m/s; 0 where it is not known
    std::vector<double> yawRate;     ///< rad/s
    std::vector<double> roll;        ///< rad
    std::vector<double> pitch;       ///< rad
    std::vector<double> force;       ///< mass·a + drag·v² below 6 Hz, N; with v = 0 if not known
    std::vector<std::uint8_t> valid; ///< 1 or 0

    [[nodiscard]] std::size_t size() const { return time.size(); }
};

/// What a coach has to know about the figures.
enum class MotionFlag {
    NoPosition,   ///< no usable fixes: no speed, force, impulse, power; phases are biased
    UnknownMount, ///< neither fixes nor the profile tell where the bow is: front and back may swap
    MountAssumed, ///< fixes do not tell where the bow is; the profile's mount was used
    WatchIgnored, ///< the watch does not fit the boat's samples
    PhoneSlipped, ///< the phone moved in its mount, see MotionAnalysis::slips
    HasHoles,     ///< samples are missing for more than 0.3 s at least once
    GravityRebuilt, ///< gravity was missing and was rebuilt from the attitude
    GuessedClocks,  ///< the first fix was put on the first sample, for want of a believable date
};

/// The flag as a sentence for people.
[[nodiscard]] std::string_view textOf(MotionFlag flag);

/// The phone moved in its mount. What came before and after is analysed with a mount of its own.
struct PhoneSlip {
    double time = 0;  ///< s; within some seconds
    double angle = 0; ///< by how much it turned, rad, above 0
};

struct MotionAnalysis {
    MotionSeries series;
    std::vector<Stroke> strokes; ///< by time
    std::vector<Turn> turns;     ///< by time
    /// One for each stroke: the median rate of up to five strokes around it within its bout, 1/min.
    /// A single stroke's rate is a few percent off; this is the one to show.
    std::vector<double> strokeRates;
    std::vector<MotionFlag> flags;
    std::vector<PhoneSlip> slips; ///< by time
    bool hasSpeed = false;        ///< else speed, force, impulse and power are not known
    /// False together with MotionFlag::UnknownMount: front and back, and with them left and right,
    /// may be swapped, and a stroke may be taken for the pause between two. Then
    /// - known are: that there are strokes and how many, their rate, cycle, speed and metres; turns
    ///   with their moments, angle and yaw rates; speed and distance;
    /// - not known are, of a stroke: hand (UnknownHand) and confidence, force, impulse, power, both
    ///   phases, the three accelerations, roll, all 0, and whether it steers (false); catch, exit
    ///   and peak tell the stroke up to half a cycle early or late;
    /// - of a turn: pushOutPeak, pushOutAve, aveRoll and avePitch, all 0;
    /// - of the series: the signs of forward, roll and pitch, and the force.
    /// Show a dash for these, never the 0.
    bool isBowKnown = true;
    double clockOffset = 0;  ///< date = moment + clockOffset, in seconds since 2001
    double fixLag = 0;       ///< how late the fixes are, s
    double bowCertainty = 0; ///< share of the fixes' speed changes that the bow axis explains, 0-1
    double watchOffset = 0;  ///< moment = stamp of the watch + watchOffset, s
    bool usedWatch = false;

    [[nodiscard]] bool has(MotionFlag flag) const;
    /// Whether force, impulse and power are known.
    [[nodiscard]] bool hasForce() const { return hasSpeed && isBowKnown; }
};

/// What a coach has to know about the figures, as sentences: those of the flags, and for each slip
/// of the phone when it was, from the first sample, and by how much.
[[nodiscard]] std::vector<std::string> notesOf(const MotionAnalysis& analysis);

/// A recording that cannot be analysed.
class MotionError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// The samples of a recording or of one run.
struct MotionSamples {
    std::span<const boatmotionrawdata_v5> boat;
    std::span<const watchmotiondata_v5> watch;
    std::span<const gpsrawdata> gps;
    /// The date of the recording's first sample, where it is known. Motion samples are stamped by
    /// the device's clock, fixes by the date. The offset between both is 0 when the samples' stamps
    /// lie among the fixes' dates (within a day); otherwise the first sample is put on this date,
    /// or on the first fix where this date is missing or more than an hour off the fixes.
    std::optional<ReferenceDate> start;
};

/// Analyses samples in one linear pass of each step. Order, repeats, holes and a changing rate of
/// the samples do not matter, nor does how the phone is mounted; samples with values that are no
/// motion of a boat (not finite, above 50 g or 100 rad/s) are left out.
/// Throws MotionError when fewer than 100 samples can be used, or the profile is not believable.
[[nodiscard]] MotionAnalysis analyseMotion(const MotionSamples& samples,
                                           const MotionProfile& profile);

/// The same for a whole recording, whose first sample stands for its date.
[[nodiscard]] MotionAnalysis analyseMotion(const bmrawdata_v5& session,
                                           const MotionProfile& profile);

} // namespace kavela
