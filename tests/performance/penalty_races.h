#pragma once

#include "performance/penalty_reasons.h"
#include "splitdata/loader.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

/// Races with penalties. Figures to many digits come from a model that was written apart from this
/// code.
namespace kavela::test::penalties {

/// Boundaries of beta and Poisson distributions are found by search.
inline constexpr double Bound = 1e-6;

inline athletedata031 paddled(std::vector<double> times, std::vector<std::int64_t> pens,
                              const char* name = "Ada Brook") {
    athletedata031 run;
    run.names = {name};
    run.phase = "Heats";
    run.cat = "K1W";
    run.sectioninfo.times = std::move(times);
    run.sectioninfo.pens = std::move(pens);
    for (const std::int64_t pen : run.sectioninfo.pens)
        run.sectioninfo.totalpen += pen;
    return run;
}

/// Four gates in two sections, the third one upstream.
inline splittakerdata031 race(std::vector<athletedata031> runs) {
    splittakerdata031 document;
    document.info.session = "Race";
    document.info.gates = 4;
    document.info.upGates = {3};
    document.info.definedsections = {{1, 2}, {3, 4}};
    document.info.totalsplits = 2;
    document.athletes = std::move(runs);
    return document;
}

inline FactStore factsOfCup(const splittakerdata031& document) {
    FactStore facts;
    facts.add(document, "cup/a.kvx");
    return facts;
}

/// The sample's four races.
inline FactStore sampleFacts() {
    const auto folder =
        std::filesystem::path(KAVELA_TEST_DATA).parent_path().parent_path() / "examples" / "races";
    FactStore facts;
    for (const char* name :
         {"harbour_night.kvx", "highland_open.kvx", "riverside_cup.kvx", "spring_opener.kvx"}) {
        const auto file = recogniseSplitFile(
            folder / name, [](std::string_view) {}, [] { return ReferenceDate{}; });
        EXPECT_NE(file.version, nullptr) << name;
        facts.add(file.document, name);
    }
    return facts;
}

inline double explained(const FactStore& facts, const std::string& id) {
    const auto reason = explainPenalty(facts, id);
    if (!reason)
        throw std::out_of_range(id);
    EXPECT_FALSE(reason->shown.empty()) << id;
    return reason->value;
}

} // namespace kavela::test::penalties
