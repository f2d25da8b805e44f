#pragma once

#include "common/error.h"
#include "common/json_document.h"
#include "planning/test_records.h"

#include <filesystem>
#include <optional>

/// Files of on-water tests (.kvtest). There is one layout.
namespace kavela {

namespace water_test {
inline constexpr const char* Lap = "lap";
inline constexpr const char* Sprint = "sprint";
/// The stretches of a sprint are equally long: five of them fill the table of tests.
inline constexpr std::size_t SprintStretches = 5;
inline constexpr double SprintSeconds = 30;
} // namespace water_test

/// A lap test or a sprint, and how it was set up.
struct onWaterTest {
    std::string kind = water_test::Lap;
    std::int64_t laps = 5;  ///< of a lap test
    double distance = 12.5; ///< metres between the gates of a lap test
    double turnLimit = 0.6; ///< rad/s; a faster rotation is a turn
    testStruct test;
};
BOOST_DESCRIBE_STRUCT(onWaterTest, (), (kind, laps, distance, turnLimit, test))

/// An eight test, and when and where it was done.
struct onWaterEight {
    ReferenceDate date;
    std::string location;
    datafor8 run;
};
BOOST_DESCRIBE_STRUCT(onWaterEight, (), (date, location, run))

struct onWaterTests {
    std::vector<onWaterTest> tests;
    std::vector<onWaterEight> eights;
};
BOOST_DESCRIBE_STRUCT(onWaterTests, (), (tests, eights))

inline constexpr const char* TestsRecord = "onWaterTests";
inline constexpr const char* TestsExtension = ".kvtest";

/// What a document turned out to be: tests, or the first thing that speaks against it.
struct RecognisedTests {
    std::optional<onWaterTests> tests;
    std::optional<FailedAttempt> failure;
};
[[nodiscard]] RecognisedTests recogniseTests(const JsonDocument& json);

/// Reads a file of tests. Throws FileError and DecodeError.
[[nodiscard]] onWaterTests readTestsFile(const std::filesystem::path& path);

/// Writes a file of tests, safely. Throws FileError, or EncodeError for what JSON cannot hold; the
/// old file is then untouched.
void saveTestsFile(const onWaterTests& tests, const std::filesystem::path& path);

} // namespace kavela
