#pragma once

#include "splitdata/document.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <optional>
#include <string>
#include <vector>

/// The split table once more, worked out cell by cell straight from the document, as slowly and
/// plainly as its rules are told. The tests hold the real table against it.
namespace kavela::test {

using PlainColumn = std::vector<double>;
using Rgba = std::array<double, 4>;

struct PlainTint {
    std::string band;
    std::optional<Rgba> colour;
};

inline const PlainTint PlainClear{"clear", std::nullopt};

/// The tints of bands 1 to 10.
inline const std::array<Rgba, 10> BandColours{Rgba{80.0 / 255, 1, 80.0 / 255, 1},
                                              Rgba{150.0 / 255, 1, 150.0 / 255, 1},
                                              Rgba{180.0 / 255, 1, 180.0 / 255, 1},
                                              Rgba{220.0 / 255, 1, 220.0 / 255, 1},
                                              Rgba{1, 1, 1, 1},
                                              Rgba{1, 1, 1, 1},
                                              Rgba{1, 220.0 / 255, 220.0 / 255, 1},
                                              Rgba{1, 180.0 / 255, 180.0 / 255, 1},
                                              Rgba{1, 150.0 / 255, 150.0 / 255, 1},
                                              Rgba{1, 0, 0, 0.8}};

inline double plainSum(const PlainColumn& column) {
    double total = 0;
    for (const double value : column)
        total += value;
    return total;
}

inline double plainPercentile(PlainColumn column, double p) {
    std::sort(column.begin(), column.end());
    const double h = static_cast<double>(column.size() - 1) * p;
    const auto at = static_cast<std::size_t>(std::floor(h));
    const double next = at + 1 < column.size() ? column[at + 1] : column[at];
    return column[at] + (h - std::floor(h)) * (next - column[at]);
}

inline PlainTint plainRank(const PlainColumn& column, double value) {
    const std::array<double, 11> p{0.0, 0.1, 0.2, 0.3, 0.4, 0.5, 0.6, 0.7, 0.8, 0.9, 1.0};
    if (value == *std::min_element(column.begin(), column.end()))
        return {"fastest", Rgba{0, 1, 0, 1}};
    for (std::size_t i = 0; i < 10; ++i)
        if (plainPercentile(column, p[i]) < value && value <= plainPercentile(column, p[i + 1]))
            return {std::to_string(i + 1), BandColours[i]};
    if (value == *std::max_element(column.begin(), column.end()))
        return {"slowest", Rgba{1, 20.0 / 255, 20.0 / 255, 1}};
    return PlainClear;
}

struct PlainTable {
    const splittakerdata031& race;
    bool isAccumulated = false;
    bool penaltiesIncluded = false;

    /// Of a section counted from 1, as are all numbers below but those of runs.
    [[nodiscard]] double time(std::size_t run, std::size_t section) const {
        const auto& times = race.athletes[run].sectioninfo.times;
        return section <= times.size() ? times[section - 1] : 0;
    }

    [[nodiscard]] double penalty(std::size_t run, std::size_t section) const {
        const auto& pens = race.athletes[run].sectioninfo.pens;
        const auto entry = [&](std::size_t number) {
            return number >= 1 && number <= pens.size() ? static_cast<double>(pens[number - 1]) : 0;
        };
        const auto& sections = race.info.definedsections;
        if (sections.empty() || pens.size() != static_cast<std::size_t>(race.info.gates))
            return entry(section);
        double seconds = 0;
        if (section <= sections.size())
            for (const std::int64_t gate : sections[section - 1])
                seconds += entry(static_cast<std::size_t>(gate));
        return seconds;
    }

    [[nodiscard]] double sum(std::size_t run, std::size_t sections) const {
        double total = 0;
        for (std::size_t section = 1; section <= sections; ++section)
            total += time(run, section);
        return total;
    }
    [[nodiscard]] double total(std::size_t run) const {
        return sum(run, race.athletes[run].sectioninfo.times.size());
    }

    [[nodiscard]] bool isFull(std::size_t run) const {
        for (std::int64_t section = 1; section <= race.info.totalsplits; ++section)
            if (time(run, static_cast<std::size_t>(section)) == 0)
                return false;
        return race.info.totalsplits >= 1;
    }

    [[nodiscard]] std::vector<PlainColumn> sectionColumns() const {
        std::vector<PlainColumn> columns(race.athletes.empty() ? 0 : 13);
        for (std::size_t k = 0; k < race.athletes.size(); ++k) {
            for (std::size_t c = 1; c <= 10; ++c)
                columns[c - 1].push_back(time(k, c));
            if (isFull(k))
                columns[10].push_back(total(k));
            columns[11].push_back(race.athletes[k].sectioninfo.sprinttime);
            columns[12].push_back(race.athletes[k].sectioninfo.realtime);
        }
        for (std::size_t k = 0; penaltiesIncluded && k < race.athletes.size(); ++k) {
            for (std::size_t c = 1; c <= 10; ++c)
                columns[c - 1][k] += penalty(k, c);
            if (k < columns[10].size())
                columns[10][k] += static_cast<double>(race.athletes[k].sectioninfo.totalpen);
        }
        return columns;
    }

    [[nodiscard]] std::vector<PlainColumn> accumulatedColumns() const {
        std::vector<PlainColumn> columns(race.athletes.empty() ? 0 : 11);
        for (std::size_t k = 0; k < race.athletes.size(); ++k) {
            for (std::size_t c = 1; c <= 10; ++c)
                columns[c - 1].push_back(sum(k, c));
            columns[10].push_back(total(k));
        }
        return columns;
    }

    /// The tint of a value in a column.
    [[nodiscard]] PlainTint tint(std::size_t number, double value) const {
        auto columns = isAccumulated ? accumulatedColumns() : sectionColumns();
        if (number >= 12) {
            columns.emplace_back();
            for (const athletedata031& run : race.athletes)
                columns.back().push_back(run.sectioninfo.realtime);
        }
        if (value == 0 || number > columns.size())
            return PlainClear;
        PlainColumn column = columns[number - 1];
        bool isMarked = false;
        for (const double entry : columns[number - 1]) {
            if (entry != 0)
                continue;
            isMarked = number == 11 && race.info.totalsplits >= 11;
            if (plainSum(column) > 0)
                column.erase(std::find(column.begin(), column.end(), 0.0));
        }
        if (column.empty())
            return PlainClear;
        return isMarked ? PlainTint{"marked", Rgba{1, 1, 1, 1}} : plainRank(column, value);
    }

    [[nodiscard]] double sectionValue(std::size_t run, std::size_t section) const {
        if (isAccumulated)
            return sum(run, section);
        return time(run, section) + (penaltiesIncluded ? penalty(run, section) : 0);
    }
    [[nodiscard]] double totalValue(std::size_t run) const {
        const auto totalpen = static_cast<double>(race.athletes[run].sectioninfo.totalpen);
        return total(run) + (penaltiesIncluded && !isAccumulated ? totalpen : 0);
    }

    [[nodiscard]] static std::string text(double value, bool isTinted) {
        if (value == 0)
            return isTinted ? "-" : "0.00";
        std::array<char, 400> text{};
        std::snprintf(text.data(), text.size(), "%.02f", std::round(value * 100) / 100);
        return text.data();
    }
};

} // namespace kavela::test
