#pragma once

#include "analysis/race_set.h"

#include "analysis/races.h"

#include <gtest/gtest.h>

#include <QTest>

namespace kavela::test {

/// Four gates in three sections, the third gate upstream. Ann is the fastest but touched, Bea is
/// clean, Cyd missed a gate, Dee stopped in the last section.
inline splittakerdata031 chartRace() {
    splittakerdata031 race = raceOf(
        3, {runOf({10, 20, 30}), runOf({10.5, 19.5, 31}), runOf({12, 21, 30}), runOf({11, 22, 0})});
    race.info.gates = 4;
    race.info.upGates = {3};
    race.info.definedsections = {{1}, {2, 3}, {4}};
    race.info.splitTitles = {"Start", "Pool", "Finish"};
    const std::vector<std::string> names{"Ann", "Bea", "Cyd", "Dee"};
    const std::vector<std::vector<std::int64_t>> penalties{
        {0, 0, 2, 0}, {0, 0, 0, 0}, {0, 0, 50, 2}, {0, 2, 0, 0}};
    for (std::size_t i = 0; i < names.size(); ++i) {
        race.athletes[i].names = {names[i]};
        race.athletes[i].sectioninfo.pens = penalties[i];
        for (const std::int64_t penalty : penalties[i])
            race.athletes[i].sectioninfo.totalpen += penalty;
    }
    return race;
}

inline RaceSet chartRaceSet() {
    return makeRaceSet(chartRace(), "a.kvx");
}

/// Puts a widget on the screen and lets it draw.
inline void showNow(QWidget& widget) {
    widget.resize(1000, 500);
    widget.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&widget));
    QCoreApplication::processEvents();
}

} // namespace kavela::test
