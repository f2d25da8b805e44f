#include "planning/test_entry.h"

#include "planning/test_sections.h"

#include <algorithm>
#include <cmath>
#include <tuple>

namespace kavela {

namespace {

constexpr std::int64_t MostLaps = 100; // more come from a damaged file

double numberAt(const std::vector<double>& values, std::size_t index) {
    return index < values.size() && std::isfinite(values[index]) ? values[index] : 0;
}

/// Takes off what was not entered at the end.
void trim(std::vector<double>& values) {
    while (!values.empty() && values.back() == 0)
        values.pop_back();
}

template <class Entry>
std::vector<double> columnOf(const std::vector<Entry>& entries, double Entry::*value) {
    std::vector<double> column;
    for (const Entry& entry : entries)
        column.push_back(entry.*value);
    trim(column);
    return column;
}

double speedThatFollows(const onWaterTest& test, const SectionEntry& section) {
    return section.time > 0 && test.kind == water_test::Lap ? 2 * test.distance / section.time : 0;
}

double efficiencyThatFollows(const SectionEntry& section) {
    return section.strokeRate > 0 ? 60 * section.speed / section.strokeRate : 0;
}

void completeSection(const onWaterTest& test, SectionEntry& section) {
    if (section.speed == 0)
        section.speed = speedThatFollows(test, section);
    if (section.strokeEfficiency == 0)
        section.strokeEfficiency = efficiencyThatFollows(section);
}

/// Takes out what nobody typed: values that followed from the others and were left as they were.
void forgetWhatFollowed(const onWaterTest& test, const std::vector<SectionEntry>& before,
                        std::vector<SectionEntry>& sections) {
    for (std::size_t i = 0; i < std::min(before.size(), sections.size()); ++i) {
        const SectionEntry& old = before[i];
        if (sections[i].strokeEfficiency == old.strokeEfficiency &&
            old.strokeEfficiency == efficiencyThatFollows(old))
            sections[i].strokeEfficiency = 0;
        if (sections[i].speed == old.speed && old.speed == speedThatFollows(test, old))
            sections[i].speed = 0;
    }
}

/// Stroke values typed for a section stand at one stroke in its middle.
void enterStrokes(testStruct& test, const std::vector<SectionEntry>& sections) {
    test.strokeDate.clear();
    test.strokeRate.clear();
    test.strokeEfficiency.clear();
    double begin = test.date.seconds;
    for (const SectionEntry& section : sections) {
        if (section.strokeRate > 0 && section.time > 0) {
            test.strokeDate.push_back({begin + section.time / 2});
            test.strokeRate.push_back(section.strokeRate);
            test.strokeEfficiency.push_back(section.strokeEfficiency);
        }
        begin += section.time;
    }
}

void shiftDates(std::vector<ReferenceDate>& dates, double seconds) {
    for (ReferenceDate& date : dates)
        date.seconds += seconds;
}

} // namespace

std::size_t plannedSections(const onWaterTest& test) {
    return test.kind == water_test::Sprint
               ? water_test::SprintStretches
               : static_cast<std::size_t>(std::clamp<std::int64_t>(test.laps, 1, MostLaps));
}

bool hasRecordedStrokes(const testStruct& test) {
    return test.strokeDate.size() > test.splits.size() || !test.maxAcce.empty();
}

std::vector<SectionEntry> sectionEntries(const onWaterTest& test) {
    const std::vector<TestSection> told = testSections(test.test);
    std::vector<SectionEntry> sections(std::max(plannedSections(test), told.size()));
    for (std::size_t i = 0; i < told.size(); ++i)
        sections[i] = {numberAt(test.test.splits, i), numberAt(test.test.straightTime, i),
                       numberAt(test.test.aveSpeed, i), told[i].strokeRate.value_or(0),
                       told[i].strokeEfficiency.value_or(0)};
    return sections;
}

void enterSections(onWaterTest& test, std::vector<SectionEntry> sections) {
    testStruct& run = test.test;
    const bool isRecorded = hasRecordedStrokes(run);
    if (!isRecorded)
        forgetWhatFollowed(test, sectionEntries(test), sections);
    for (SectionEntry& section : sections)
        completeSection(test, section);
    run.splits = columnOf(sections, &SectionEntry::time);
    run.straightTime = columnOf(sections, &SectionEntry::straightTime);
    run.aveSpeed = columnOf(sections, &SectionEntry::speed);
    run.totalTime = 0;
    for (const double split : run.splits)
        run.totalTime += split;
    if (!isRecorded)
        enterStrokes(run, sections);
}

void setDistance(onWaterTest& test, double distance) {
    std::vector<SectionEntry> sections = sectionEntries(test);
    if (!hasRecordedStrokes(test.test))
        forgetWhatFollowed(test, sections, sections);
    test.distance = distance;
    enterSections(test, std::move(sections));
}

std::vector<TurnEntry> turnEntries(const testStruct& test) {
    const auto& [leftPeaks, leftTimes, rightPeaks, rightTimes] = std::tie(
        test.leftRotations, test.leftRotationsTime, test.rightRotations, test.rightRotationsTime);
    std::vector<TurnEntry> turns(
        std::max({leftPeaks.size(), leftTimes.size(), rightPeaks.size(), rightTimes.size()}));
    for (std::size_t i = 0; i < turns.size(); ++i)
        turns[i] = {numberAt(leftPeaks, i), numberAt(leftTimes, i), numberAt(rightPeaks, i),
                    numberAt(rightTimes, i)};
    return turns;
}

void enterTurns(testStruct& test, const std::vector<TurnEntry>& turns) {
    test.leftRotations = columnOf(turns, &TurnEntry::leftPeak);
    test.leftRotationsTime = columnOf(turns, &TurnEntry::leftTime);
    test.rightRotations = columnOf(turns, &TurnEntry::rightPeak);
    test.rightRotationsTime = columnOf(turns, &TurnEntry::rightTime);
}

void moveTo(testStruct& test, ReferenceDate date) {
    const double seconds = date.seconds - test.date.seconds;
    shiftDates(test.strokeDate, seconds);
    shiftDates(test.speedDate, seconds);
    test.date = date;
}

void moveTo(onWaterEight& eight, ReferenceDate date) {
    shiftDates(eight.run.date, date.seconds - eight.date.seconds);
    eight.date = date;
}

std::array<double, 5> splitsOf(const datafor8& run) {
    return {run.sp1, run.sp2, run.sp3, run.sp4, run.sp5};
}

void setSplits(datafor8& run, const std::array<double, 5>& splits) {
    run.sp1 = splits[0];
    run.sp2 = splits[1];
    run.sp3 = splits[2];
    run.sp4 = splits[3];
    run.sp5 = splits[4];
}

std::array<CMTime*, 5> videoTimesOf(datafor8& run) {
    return {&run.videotimes1, &run.videotimes2, &run.videotimes3, &run.videotimes4,
            &run.videotimes5};
}

} // namespace kavela
