#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

namespace kavela::bench {

/// Prints a line for each benchmark and keeps its median time in milliseconds under its name, its
/// best time under "name#best", the one that 95 of 100 stay below under "name#p95", its counters
/// under "name#counter". Where a subject waits for the disk or for another process, the time is the
/// clock's; elsewhere it is the processor's, which neighbours on the machine disturb less.
class ValueReporter : public benchmark::BenchmarkReporter {
public:
    bool ReportContext(const Context& context) override;
    void ReportRuns(const std::vector<Run>& runs) override;
    [[nodiscard]] const std::map<std::string, double>& values() const { return m_values; }

private:
    void keepTime(const std::string& name, double time);
    void keepMedian(const std::string& name, double time, const benchmark::UserCounters& counters);

    std::map<std::string, double> m_values;
    std::map<std::string, std::vector<double>> m_times; ///< of the repetitions so far, sorted
};

/// Prints how the values stand to each other and to what the program must reach. Comparisons that
/// were not measured are left out. Returns how many targets were missed.
int printRatios(const std::map<std::string, double>& values);

} // namespace kavela::bench
