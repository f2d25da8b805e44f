#include "planning/test_texts.h"

#include "common/number_text.h"

#include <cmath>

namespace kavela {

namespace {

std::string changeText(double change) {
    const double rounded = roundedToHundredths(change);
    if (rounded == 0)
        return "0.00"; // never "-0.00"
    return (rounded > 0 ? "+" : "") + hundredthsText(rounded);
}

} // namespace

std::string lapTestDescription(std::int64_t laps, double metres) {
    return "The test consist in doing " + std::to_string(laps) +
           " laps around two gated separated by " + plainText(metres) +
           " meters. Athletes are told to start at maximum speed and keep it was long as they can "
           "until the time is up.";
}

SeriesSummary summaryOf(std::span<const double> series) {
    SeriesSummary summary;
    double sum = 0;
    double first = 0;
    double last = 0;
    for (const double value : series) {
        if (!std::isfinite(value))
            continue;
        if (summary.count == 0)
            first = value;
        last = value;
        ++summary.count;
        sum += value;
    }
    if (summary.count > 0)
        summary.average = sum / static_cast<double>(summary.count);
    summary.totalChange = last - first;
    if (summary.count > 1)
        summary.averageChange = summary.totalChange / static_cast<double>(summary.count - 1);
    return summary;
}

std::string summaryText(const SeriesSummary& summary, const SummaryLabels& labels) {
    std::string text;
    const auto add = [&](const char* label, const std::string& value) {
        if (label)
            text += (text.empty() ? "" : "\n") + std::string(label) + ' ' +
                    (summary.count > 0 ? value : "-");
    };
    add(labels.average, hundredthsText(summary.average));
    add(labels.averageChange, changeText(summary.averageChange));
    add(labels.totalChange, changeText(summary.totalChange));
    return text;
}

} // namespace kavela
