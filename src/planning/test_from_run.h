#pragma once

#include "planning/water_test_file.h"
#include "splitdata/records.h"

#include <filesystem>

/// Tests taken in from a run of a split file.
namespace kavela {

/// A lap test or a sprint whose splits are the run's section times; a section that was not timed
/// stays 0.
[[nodiscard]] onWaterTest testFromRun(const infodata031& info, const athletedata031& run,
                                      const std::string& kind);

/// An eight test: the first five section times, where they were taken in the first video (which
/// stands in `folder`), the motion samples and the score. Sections beyond the fifth are left out.
[[nodiscard]] onWaterEight eightFromRun(const infodata031& info, const athletedata031& run,
                                        const std::filesystem::path& folder);

/// Puts motion samples into the series of an eight test. The first sample is dated `begin`, the
/// others by the device's clock.
void setMotion(datafor8& eight, const std::vector<boatmotionrawdata_v5>& samples,
               ReferenceDate begin);

} // namespace kavela
