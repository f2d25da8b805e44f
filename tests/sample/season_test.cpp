#include "sample/season.h"

#include "boatmotion/sessions.h"
#include "common/json_decode.h"
#include "sample/team.h"
#include "splitdata/loader.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <numeric>
#include <set>

namespace kavela {
namespace {

struct Session {
    std::string name;
    std::string claimedVersion; ///< "0.31" unless the file's name says another
    RecognisedSplitFile file;
};

std::string claimedVersion(const std::string& name) {
    constexpr std::string_view Prefix = "release_";
    return name.starts_with(Prefix) ? name.substr(Prefix.size()) : "0.31";
}

std::vector<Session> splitFiles() {
    const DiagnosticLog silent = [](std::string_view) {};
    const Clock clock = [] { return ReferenceDate{}; };
    std::vector<Session> sessions;
    for (const SampleFile& file : sampleSeason()) {
        if (file.name.extension() != ".kvx")
            continue;
        const std::string name = file.name.stem().string();
        const JsonDocument json = JsonDocument::fromText(file.content);
        sessions.push_back(
            {name, claimedVersion(name), recogniseSplitDocument(json, file.name, silent, clock)});
    }
    return sessions;
}

template <class Recording>
Recording recordingNamed(std::string_view name) {
    for (const SampleFile& file : sampleSeason())
        if (file.name == name)
            return decodeText<Recording>(file.content);
    throw std::out_of_range(std::string(name));
}

/// Whether the team's results have a race, at its place and on its days.
bool isInTeam(const myTeamToSaveStruct& team, const infodata031& race) {
    constexpr double TwoDays = 2 * 86400;
    for (const myTeamStruct& athlete : team.realMyTeam)
        for (const auto& category : athlete.cats)
            for (const auto& season : category.seasons)
                for (const mtRaceStruct& held : season.races)
                    if (held.location == race.title && !held.phases.empty() &&
                        std::abs(held.phases.front().date.seconds - race.date.seconds) < TwoDays)
                        return true;
    return false;
}

/// The stamps of a run's marks on one camera must lie as far apart as the times say.
void expectMarksTellTheTimes(const sectiondata030& timing, std::size_t camera) {
    for (std::size_t k = 0; k < timing.times.size(); ++k) {
        if (timing.times[k] == 0)
            continue;
        const double mark = timing.cmtimes[k].at(camera).seconds();
        const double before =
            k == 0 ? mark - timing.times[k] : timing.cmtimes[k - 1].at(camera).seconds();
        EXPECT_NEAR(mark - before, timing.times[k], 1e-9);
        EXPECT_GE(before, 0) << "a mark before the film began";
    }
}

void expectPenaltiesAgree(const athletedata031& run, std::int64_t gates) {
    const std::vector<std::int64_t>& pens = run.sectioninfo.pens;
    ASSERT_EQ(pens.size(), static_cast<std::size_t>(gates));
    EXPECT_EQ(run.totaltouches, std::ranges::count(pens, 2));
    EXPECT_EQ(run.totalfifties, std::ranges::count(pens, 50));
    EXPECT_EQ(run.sectioninfo.totalpen, 2 * run.totaltouches + 50 * run.totalfifties);
    for (const pendata030& details : run.sectioninfo.pendetails)
        EXPECT_EQ(details.gate.size(),
                  static_cast<std::size_t>(run.totaltouches + run.totalfifties));
}

void expectTimesAgree(const sectiondata030& timing, std::int64_t splits) {
    ASSERT_EQ(timing.times.size(), static_cast<std::size_t>(splits));
    EXPECT_NEAR(timing.totaltime, std::accumulate(timing.times.begin(), timing.times.end(), 0.0),
                1e-9);
    const auto untimed = std::ranges::count(timing.times, 0);
    EXPECT_EQ(timing.splitnum, splits - untimed);
    EXPECT_EQ(timing.isfullrun, untimed == 0);
    if (!timing.isfullrun)
        return;
    EXPECT_GT(timing.totaltime, 80);
    EXPECT_LT(timing.totaltime, 130);
    if (timing.realtime != 0) {
        EXPECT_NEAR(timing.realtime, timing.totaltime, 0.1);
    }
}

TEST(Season, IsTheSameAtEveryCallAndStaysSmall) {
    const std::vector<SampleFile> files = sampleSeason();
    const std::vector<SampleFile> again = sampleSeason();
    ASSERT_EQ(files.size(), again.size());
    std::set<std::filesystem::path> names;
    std::size_t total = 0;
    for (std::size_t i = 0; i < files.size(); ++i) {
        EXPECT_EQ(files[i].name, again[i].name);
        EXPECT_TRUE(files[i].content == again[i].content) << files[i].name;
        EXPECT_TRUE(names.insert(files[i].name).second) << files[i].name;
        EXPECT_LT(files[i].content.size(), 1'200'000U) << files[i].name;
        total += files[i].content.size();
    }
    EXPECT_LT(total, 6'200'000U);
}

TEST(Season, HasALeagueThatTellsStrengthsFromChance) {
    const std::set<std::string> all{"C1M", "C1W", "K1M", "K1W"};
    std::map<std::string, std::size_t> wholeRuns;
    std::size_t rounds = 0;
    std::size_t inTeam = 0;
    const myTeamToSaveStruct team = sample::sampleTeam();
    for (const Session& session : splitFiles()) {
        if (!session.name.starts_with("round_"))
            continue;
        ++rounds;
        std::set<std::string> categories;
        std::size_t upstreams = 0;
        std::size_t strokes = 0;
        std::size_t losses = 0;
        std::size_t penalties = 0;
        for (const athletedata031& run : session.file.document.athletes) {
            categories.insert(run.cat);
            wholeRuns[run.names.front()] += run.sectioninfo.realtime != 0;
            upstreams += run.upstreams.size();
            strokes += run.strokes.size();
            losses += run.timeslosses.size();
            penalties += run.sectioninfo.pendetails.size();
        }
        EXPECT_EQ(categories, all) << session.name;
        for (const std::size_t noted : {upstreams, strokes, losses, penalties})
            EXPECT_GT(noted, 8U) << session.name;
        inTeam += isInTeam(team, session.file.document.info);
    }
    EXPECT_GE(rounds, 8U);
    EXPECT_EQ(inTeam, 1U);
    EXPECT_GE(std::ranges::count_if(wholeRuns, [](const auto& crew) { return crew.second >= 8; }),
              16)
        << "an interval wants many runs of the same crew";
}

TEST(Season, SplitFilesAreOfTheReleaseThatTheyClaim) {
    std::set<std::string> releases;
    for (const Session& session : splitFiles()) {
        ASSERT_TRUE(session.file.version) << session.name;
        EXPECT_EQ(session.file.version->label, session.claimedVersion) << session.name;
        releases.insert(session.claimedVersion);
    }
    EXPECT_THAT(releases, testing::ElementsAre("0.11", "0.14", "0.2", "0.22", "0.28", "0.31"));
}

TEST(Season, RunsKeepTheRulesOfSlalom) {
    for (const Session& session : splitFiles()) {
        const infodata031& info = session.file.document.info;
        for (const athletedata031& run : session.file.document.athletes) {
            SCOPED_TRACE(session.name + ' ' + run.names.front() + ' ' + run.phase);
            expectPenaltiesAgree(run, info.gates);
            expectTimesAgree(run.sectioninfo, info.totalsplits);
            if (session.file.isCurrent())
                for (std::size_t camera = 0; camera < run.videoname.size(); ++camera)
                    expectMarksTellTheTimes(run.sectioninfo, camera);
        }
    }
}

TEST(Season, SectionsCoverAllGatesInOrder) {
    for (const Session& session : splitFiles()) {
        const infodata031& info = session.file.document.info;
        EXPECT_EQ(info.splitTitles.size(), static_cast<std::size_t>(info.totalsplits));
        if (session.claimedVersion == "0.2")
            continue; // it knew no sections
        std::vector<std::int64_t> covered;
        for (const auto& section : info.definedsections)
            covered.insert(covered.end(), section.begin(), section.end());
        std::vector<std::int64_t> gates(static_cast<std::size_t>(info.gates));
        std::iota(gates.begin(), gates.end(), 1);
        EXPECT_EQ(covered, gates) << session.name;
        EXPECT_EQ(info.definedsections.size(), info.splitTitles.size()) << session.name;
    }
}

/// What a newcomer, or a test of another tool, comes to the season for.
TEST(Season, HoldsEveryKindOfRunAndSession) {
    std::set<std::string> kinds;
    std::set<std::string> runs;
    for (const Session& session : splitFiles()) {
        const splittakerdata031& document = session.file.document;
        kinds.insert(document.info.session);
        if (session.file.isCurrent() && !document.crossracedata.eliphase.empty())
            runs.insert("elimination heat");
        for (const athletedata031& run : document.athletes) {
            const std::vector<double>& times = run.sectioninfo.times;
            const auto note = [&](bool applies, const char* kind) {
                if (applies)
                    runs.insert(kind);
            };
            note(run.names.size() == 2, "double");
            note(run.videoname.size() == 2, "two cameras");
            note(run.totalfifties > 0, "missed gate");
            note(run.giveups > 0, "gave up");
            note(times.front() == 0, "film began late");
            note(times.back() == 0 && run.sectioninfo.realtime > 0, "film ended early");
            note(!run.bm.empty() && !run.watchmotion.empty(), "sensors");
            note(!run.timeslosses.empty() && !run.strategies.empty(), "analysed");
            for (const timeloss031& loss : run.timeslosses)
                EXPECT_EQ(loss.versus.find(" / ") != std::string::npos, run.names.size() == 2)
                    << loss.versus << " is one crew, of the same kind of boat";
        }
    }
    EXPECT_THAT(kinds, testing::ElementsAre("Kayak Cross", "Race", "Test", "Training"));
    EXPECT_THAT(runs, testing::ElementsAre("analysed", "double", "elimination heat",
                                           "film began late", "film ended early", "gave up",
                                           "missed gate", "sensors", "two cameras"));
}

TEST(Season, RecordingsAreOfTheirVersionAndMoveLikeABoat) {
    const auto drill = recordingNamed<bmrawdata_v5>("recordings/upstream_drill.kvb");
    ASSERT_EQ(drill.boatmotion.size(), 40U * 50U);
    EXPECT_EQ(drill.gps.size(), 40U);
    EXPECT_TRUE(drill.watchmotion.empty());
    double fastestTurn = 0;
    for (const boatmotionrawdata_v5& sample : drill.boatmotion) {
        const gravityCodable& g = sample.gravity;
        EXPECT_NEAR(g.x * g.x + g.y * g.y + g.z * g.z, 1, 1e-3);
        EXPECT_LT(std::abs(sample.acceleration.y), 0.5);
        fastestTurn = std::max(fastestTurn, std::abs(sample.rotationRate.z));
    }
    EXPECT_GT(fastestTurn, 1.5);
    for (const gpsrawdata& fix : drill.gps)
        EXPECT_THAT(fix.speed, testing::AllOf(testing::Gt(1), testing::Lt(4)));

    const auto sprint = recordingNamed<bmrawdata_v5>("recordings/sprint_with_watch.kvb");
    EXPECT_EQ(sprint.watchmotion.size(), sprint.boatmotion.size());
    const auto old = recordingNamed<bmrawdata_v4>("recordings/old_phone_v4.kvb");
    ASSERT_FALSE(old.boatmotion.empty());
    EXPECT_NEAR(old.boatmotion.front().date.seconds, old.info.date.seconds, 1);
    EXPECT_FALSE(old.info.name.empty());
}

} // namespace
} // namespace kavela
