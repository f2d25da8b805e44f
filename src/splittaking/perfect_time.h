#pragma once

#include "common/log.h"
#include "common/why.h"
#include "splitdata/document.h"

#include <filesystem>
#include <optional>
#include <string_view>
#include <vector>

namespace kavela {

/// The best values of all runs of a document and their sum.
struct PerfectTime {
    /// One slot per split position. Slots 0 to 10 serve the first eleven positions, and every later
    /// position shares slot 10; the slot after a run's last position, at most slot 11, takes the
    /// sprint. At least twelve, and one more than the longest run has times.
    std::vector<double> best;
    /// Whose each is, by the number of the run; none where the value is 0.
    std::vector<std::optional<std::size_t>> runs;
    double total = 0; ///< seconds; infinite when the times of a damaged file have no sum
};

/// The best values, from zeros: 0 is no time and never a best, and after each run a slot below 0
/// is set to 0.
[[nodiscard]] PerfectTime perfectTime(const std::vector<athletedata031>& runs);

/// Blanks times below 0, which a file from elsewhere may hold, so that they are no best values
/// where times are shown while they are taken. What is stored follows perfectTime() to the letter.
void blankNegativeTimes(std::vector<athletedata031>& runs);

/// A run's expected-time factor: its times, and always its sprint, divided by the best values; of
/// the ratios in ascending order the smallest and the largest are dropped, and once more where two
/// or more are left; the factor is the mean of the rest, 0 when there is none. A ratio that is not
/// finite sorts last, infinity before not-a-number, and can leave a factor that is not finite.
[[nodiscard]] double expectedFactor(const sectiondata030& timing, const std::vector<double>& best,
                                    const Place& run = {}, Why* why = nullptr);

/// Computes the perfect time, logs it with its slots as "current perfect time … from …", and
/// stores `perfectRun` and every run's `xPer` and `xTime`. A value that is not finite cannot be
/// written: it is stored as 0, with a line in the log.
PerfectTime recomputeExpected(splittakerdata031& document, const DiagnosticLog& log);

/// Why an expected time is what it is, by the functions that make it: "xtime/RUN", the run counted
/// from 0, and "perfect" for the perfect time. Nothing for another id, or a run that is not there.
/// `file` is where the runs stand.
[[nodiscard]] std::optional<Reason> explainExpected(const std::vector<athletedata031>& runs,
                                                    const std::filesystem::path& file,
                                                    std::string_view id);

} // namespace kavela
