#include "splittaking/annotations/strategies.h"

#include "splitdata/run_timing.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace kavela {

namespace {

std::size_t optionsIn(const strategy001& strategy) {
    return std::max(strategy.options.size(), strategy.times.size());
}

void askForOption(const strategy001& strategy, std::size_t option) {
    if (option >= optionsIn(strategy))
        throw std::out_of_range("option " + std::to_string(option + 1) + " does not exist");
}

} // namespace

std::vector<StrategyOption> optionsOf(const strategy001& strategy) {
    const auto best = bestOption(strategy);
    std::vector<StrategyOption> options;
    for (std::size_t k = 0; k < optionsIn(strategy); ++k)
        options.push_back({entryOrZero(strategy.options, k), entryOrZero(strategy.times, k),
                           std::cmp_equal(k, strategy.optionInt), k == best});
    return options;
}

std::size_t addOption(strategy001& strategy, std::string name, double seconds) {
    const std::size_t option = optionsIn(strategy);
    setPadded(strategy.options, option, std::move(name));
    setOptionSeconds(strategy, option, seconds);
    if (option == 0)
        strategy.optionInt = 0;
    return option;
}

void renameOption(strategy001& strategy, std::size_t option, std::string name) {
    askForOption(strategy, option);
    setPadded(strategy.options, option, std::move(name));
}

void setOptionSeconds(strategy001& strategy, std::size_t option, double seconds) {
    askForOption(strategy, option);
    if (!std::isfinite(seconds) || seconds < 0)
        throw std::invalid_argument("the time of an option must be a number from 0 on");
    setPadded(strategy.times, option, seconds);
}

void timeOption(strategy001& strategy, std::size_t option, const CMTime& from, const CMTime& to) {
    setOptionSeconds(strategy, option, secondsFrom(from, to));
}

void chooseOption(strategy001& strategy, std::size_t option) {
    askForOption(strategy, option);
    strategy.optionInt = static_cast<std::int64_t>(option);
}

void removeOption(strategy001& strategy, std::size_t option) {
    askForOption(strategy, option);
    eraseEntry(strategy.options, option);
    eraseEntry(strategy.times, option);
    if (std::cmp_equal(option, strategy.optionInt))
        strategy.optionInt = static_cast<std::int64_t>(bestOption(strategy).value_or(0));
    else if (std::cmp_less(option, strategy.optionInt))
        --strategy.optionInt;
}

std::optional<std::size_t> bestOption(const strategy001& strategy) {
    std::optional<std::size_t> best;
    for (std::size_t k = 0; k < strategy.times.size(); ++k)
        if (strategy.times[k] > 0 && (!best || strategy.times[k] < strategy.times[*best]))
            best = k;
    return best;
}

std::optional<double> costOfChoice(const strategy001& strategy) {
    const auto best = bestOption(strategy);
    if (!best || strategy.optionInt < 0 ||
        std::cmp_greater_equal(strategy.optionInt, strategy.times.size()))
        return std::nullopt;
    const double chosen = strategy.times[static_cast<std::size_t>(strategy.optionInt)];
    return chosen > 0 ? std::optional(chosen - strategy.times[*best]) : std::nullopt;
}

std::size_t addStrategy(athletedata031& run, std::string title, std::vector<std::string> options) {
    strategy001 strategy;
    strategy.title = std::move(title);
    strategy.times.resize(options.size());
    strategy.options = std::move(options);
    run.strategies.push_back(std::move(strategy));
    return run.strategies.size() - 1;
}

void removeStrategy(athletedata031& run, std::size_t strategy) {
    (void)entryOf(run.strategies, strategy, "strategy");
    eraseEntry(run.strategies, strategy);
}

} // namespace kavela
