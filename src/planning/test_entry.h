#pragma once

#include "planning/water_test_file.h"

#include <array>
#include <cstddef>
#include <vector>

/// Tests entered by hand. What was not entered is 0 in the records, which have no other word for
/// it.
namespace kavela {

/// One section of a test as a coach types it; 0 where nothing was entered.
struct SectionEntry {
    double time = 0;             ///< seconds
    double straightTime = 0;     ///< seconds
    double speed = 0;            ///< m/s
    double strokeRate = 0;       ///< strokes per minute
    double strokeEfficiency = 0; ///< metres per stroke

    friend bool operator==(const SectionEntry&, const SectionEntry&) = default;
};

/// Sections that a test is set up to have: its laps, or the stretches of a sprint.
[[nodiscard]] std::size_t plannedSections(const onWaterTest& test);

/// Whether the strokes were recorded one by one; what they tell cannot be typed over.
[[nodiscard]] bool hasRecordedStrokes(const testStruct& test);

/// The sections of a test, as many as planned or more. Stroke values are those of the sections.
[[nodiscard]] std::vector<SectionEntry> sectionEntries(const onWaterTest& test);

/// Puts typed sections into a test: splits and their total, straight times and speeds, and for a
/// test without recorded strokes one stroke for each section with a stroke rate, halfway through
/// it. A speed that was not typed follows from the lap's length (there and back) and its time, and
/// an efficiency from speed and rate; they go on following until they are typed. Sections at the
/// end without any entry are left out.
void enterSections(onWaterTest& test, std::vector<SectionEntry> sections);
/// Sets up a lap test for another distance, metres.
void setDistance(onWaterTest& test, double distance);

/// The turns of one number to either side, as a coach types them; 0 where nothing was entered.
struct TurnEntry {
    double leftPeak = 0;  ///< rad/s
    double leftTime = 0;  ///< seconds
    double rightPeak = 0; ///< rad/s
    double rightTime = 0; ///< seconds

    friend bool operator==(const TurnEntry&, const TurnEntry&) = default;
};
[[nodiscard]] std::vector<TurnEntry> turnEntries(const testStruct& test);
/// Turns at the end without an entry are left out.
void enterTurns(testStruct& test, const std::vector<TurnEntry>& turns);

/// Moves a test to another date, with every stroke and speed sample.
void moveTo(testStruct& test, ReferenceDate date);
/// The same for the motion samples of an eight test.
void moveTo(onWaterEight& eight, ReferenceDate date);

/// The five splits of an eight test, seconds; 0 for one that was not timed.
[[nodiscard]] std::array<double, 5> splitsOf(const datafor8& run);
void setSplits(datafor8& run, const std::array<double, 5>& splits);
/// Where the splits were taken in the video.
[[nodiscard]] std::array<CMTime*, 5> videoTimesOf(datafor8& run);

} // namespace kavela
