#include "sample_content.h"

#include <cmath>
#include <numeric>
#include <random>

namespace kavela::bench {

namespace {

constexpr int Gates = 22;
constexpr int Splits = 10;
constexpr int Cameras = 2;
constexpr int SamplesPerSecond = 100;
constexpr std::size_t SecondsOfRun = 90;
constexpr std::int32_t UnitsPerSecond = 600;

using Random = std::mt19937_64;

double around(Random& random, double middle, double spread) {
    return std::normal_distribution(middle, spread)(random);
}

CMTime stamp(double seconds) {
    return {std::llround(seconds * UnitsPerSecond), UnitsPerSecond, 1, 0};
}

template <class Sample>
Sample motionSample(Random& random, double timestamp) {
    const double swing = std::sin(timestamp * 7);
    Sample sample;
    sample.timestamp = timestamp;
    sample.acceleration = {around(random, swing, 0.2), around(random, 0, 0.1),
                           around(random, 0, 0.1)};
    sample.rotationRate = {around(random, 0, 0.5), around(random, swing, 0.5),
                           around(random, 0, 0.5)};
    sample.attitude = {around(random, 0, 0.1), around(random, swing, 0.1), around(random, 0, 1)};
    sample.gravity = {around(random, 0, 0.1), around(random, 0, 0.1), around(random, -1, 0.01)};
    return sample;
}

std::vector<boatmotionrawdata_v5> motion(Random& random, std::size_t seconds) {
    constexpr double SinceTheDeviceStarted = 51234.567890123;
    std::vector<boatmotionrawdata_v5> samples;
    samples.reserve(seconds * SamplesPerSecond);
    for (std::size_t i = 0; i < seconds * SamplesPerSecond; ++i) {
        const double timestamp = SinceTheDeviceStarted + static_cast<double>(i) / SamplesPerSecond;
        samples.push_back(
            motionSample<boatmotionrawdata_v5>(random, around(random, timestamp, 1e-4)));
    }
    return samples;
}

infodata031 course() {
    infodata031 info;
    info.date = {736500000};
    info.place = "Oakwater";
    info.title = info.event = "Spring Cup";
    info.session = "Race";
    info.category = "K1M";
    info.gates = Gates;
    info.upGates = {4, 9, 13, 17, 20};
    info.totalsplits = Splits;
    for (std::int64_t split = 0; split < Splits; ++split) {
        info.splitTitles.push_back("Split " + std::to_string(split + 1));
        info.definedsections.push_back({2 * split + 1, 2 * split + 2});
    }
    info.lastSavedDate = {736503600.25};
    return info;
}

/// What the sections of every release have had.
template <class Section>
Section timedSection(Random& random) {
    Section section;
    section.pens.resize(Gates);
    for (int split = 0; split < Splits; ++split)
        section.times.push_back(around(random, 9.5, 0.4));
    if (const double luck = around(random, 0, 1); luck > 0.8)
        section.pens[8] = section.totalpen = section.realpen = luck > 2 ? 50 : 2;
    section.comments.resize(Splits);
    section.totaltime = std::accumulate(section.times.begin(), section.times.end(), 0.0);
    section.realtime = std::round(section.totaltime * 100) / 100;
    section.splitnum = Splits;
    section.isfullrun = true;
    return section;
}

void mark(std::vector<std::vector<CMTime>>& marks, double seconds) {
    marks.emplace_back(Cameras, stamp(seconds));
}

athletedata031 run(Random& random, std::size_t number) {
    athletedata031 run;
    run.names = {"Ada Example " + std::to_string(number)};
    run.phase = "Heats";
    run.cat = "K1M";
    run.videoname = {"run" + std::to_string(number) + ".MOV",
                     "top" + std::to_string(number) + ".MOV"};
    run.sectioninfo = timedSection<sectiondata030>(random);
    double sofar = 3;
    for (const double time : run.sectioninfo.times)
        mark(run.sectioninfo.cmtimes, sofar += time);
    for (const std::int64_t gate : {4, 9, 13, 17, 20})
        run.upstreams.push_back({gate,
                                 0,
                                 1,
                                 {stamp(9 * double(gate)), stamp(9 * double(gate) + 2)},
                                 around(random, 2.2, 0.2),
                                 around(random, 0.9, 0.1),
                                 around(random, 1.3, 0.1)});
    for (int stroke = 0; stroke < 100; ++stroke)
        run.strokes.push_back({{stamp(0.9 * stroke)}, around(random, 0.9, 0.05), stroke % 2, 0});
    return run;
}

} // namespace

splittakerdata031 race(std::size_t runs, unsigned seed) {
    Random random(seed);
    splittakerdata031 document;
    document.info = course();
    for (std::size_t i = 0; i < runs; ++i)
        document.athletes.push_back(run(random, i + 1));
    return document;
}

splittakerdata031 recordedRace(std::size_t runs) {
    Random random(2);
    splittakerdata031 document = race(runs);
    for (athletedata031& run : document.athletes)
        run.bm = motion(random, SecondsOfRun);
    return document;
}

bmrawdata_v5 recording(std::size_t seconds) {
    Random random(3);
    bmrawdata_v5 session;
    session.info = {{736500000}, "Oakwater", "Training", "Technique"};
    session.athleteinfo = {"Ada Example", "K1W", 1, 1, 61.5, 2.02, 0.07, 0.2, 0.7};
    session.boatmotion = motion(random, seconds);
    for (std::size_t i = 0; i < seconds; ++i) {
        const ReferenceDate date{736500000 + static_cast<double>(i) + around(random, 0, 0.01)};
        session.gps.push_back(
            {date, around(random, 3.5, 0.5), around(random, 47, 1e-3), around(random, 8, 1e-3)});
        session.heart.push_back({date, std::round(around(random, 160, 8))});
    }
    return session;
}

history::splittakerdataOLD oldestRace(std::size_t runs) {
    Random random(4);
    const infodata031 info = course();
    history::splittakerdataOLD document;
    document.info = {info.date,     info.place, info.session,     info.event,
                     info.category, info.gates, info.splitTitles, info.totalsplits};
    for (std::size_t i = 0; i < runs; ++i) {
        history::athletedataOLD& run = document.athletes.emplace_back();
        run.name = "Ada Example " + std::to_string(i + 1);
        run.phase = "Heats";
        run.sectioninfo = timedSection<history::sectiondataOLD>(random);
        double sofar = 3;
        for (const double time : run.sectioninfo.times)
            run.sectioninfo.cmtimes.push_back(stamp(sofar += time));
    }
    return document;
}

} // namespace kavela::bench
