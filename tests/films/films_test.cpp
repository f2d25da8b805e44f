#include "films/season_films.h"
#include "films/sprint_lines.h"

#include "common/safe_file.h"
#include "common/temp_folder.h"
#include "films/digits.h"
#include "sample/races.h"
#include "sample/sprint_camera.h"
#include "sample/training.h"
#include "video/frame_source.h"
#include "vision/light_barrier.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <optional>

extern "C" {
#include <libavutil/frame.h>
}

/// Whoever times a film with the program gets the times of its split file.
namespace kavela::films {
namespace {

namespace fs = std::filesystem;

int shadeAt(const AVFrame& frame, int x, int y) {
    return frame.data[0][y * frame.linesize[0] + x];
}

/// Reads a digit by its segments; 0 for a blank one, none for what is no digit.
std::optional<int> digitIn(const AVFrame& frame, const DigitRow& row, int digit) {
    constexpr int Bright = 140;
    unsigned lit = 0;
    for (int segment = 0; segment < 7; ++segment) {
        const Box box = segmentBox(row, digit, segment);
        // Their ends belong to other segments too.
        if (shadeAt(frame, box.x + box.width / 2, box.y + box.height / 2) > Bright)
            lit |= 1U << segment;
    }
    if (lit == 0)
        return 0;
    const auto* const found = std::ranges::find(LitSegments, lit);
    if (found == LitSegments.end())
        return std::nullopt;
    return static_cast<int>(found - LitSegments.begin());
}

std::int64_t numberIn(const AVFrame& frame, const DigitRow& row) {
    std::int64_t number = 0;
    for (int digit = 0; digit < row.digits; ++digit) {
        const std::optional<int> read = digitIn(frame, row, digit);
        if (!read)
            return -1;
        number = 10 * number + *read;
    }
    return number;
}

struct Case {
    const char* description;
    splittakerdata031 (*session)();
    const char* crew;
    const char* phase;
    std::size_t camera;
    int timescale;
};

/// What the clock shows at the first mark, in hundredths. A film that began later has its start
/// from the official time, to the frame.
std::int64_t firstClock(const sectiondata030& timing) {
    if (timing.times.front() > 0)
        return std::llround(timing.times.front() * 100);
    return 2 * std::llround(timing.realtime * 50) - std::llround(timing.totaltime * 100);
}

splittakerdata031 harbour() {
    return sample::holdRace(sample::harbourNight());
}

class MadeFilm : public testing::TestWithParam<Case> {
protected:
    void SetUp() override {
        const Case& c = GetParam();
        m_session = c.session();
        const auto run = std::ranges::find_if(m_session.athletes, [&](const athletedata031& r) {
            return r.names.front() == c.crew && r.phase == c.phase;
        });
        ASSERT_NE(run, m_session.athletes.end());
        m_run = *run;
        m_name = m_run.videoname.at(c.camera);
        const auto films = sessionFilms(
            m_session, "here", [&](const fs::path& name) { return name.filename() == m_name; });
        ASSERT_EQ(films.size(), 1U);
        EXPECT_EQ(films.front().name, fs::path("here") / m_name);
        m_scene = films.front().scene;
        writeFileSafely(m_folder.path() / m_name, makeFilm(*m_scene));
        m_index = readVideoIndex(m_folder.path() / m_name);
        m_source.emplace(m_index, std::make_shared<FrameCache>(std::size_t{64} << 20));
    }

    FramePtr pictureOf(FrameNumber number) {
        const FrameSource::Result result = m_source->frame(number);
        EXPECT_EQ(result.outcome, FrameSource::Outcome::Found) << number;
        return result.frame.samples;
    }

    /// Whether a line across the water is lit, read near the end where neither boat nor gate is.
    bool isLit(const CourseLine& line, FrameNumber number) {
        constexpr double FromEnd = 8;
        constexpr int DarkerThanWater = 175;
        const auto& gates = m_scene->course().gates;
        const bool isGateBelow = std::ranges::any_of(gates, [&](const GatePlace& gate) {
            return gate.centre.x() == line.x && gate.bank > 0;
        });
        const double y = isGateBelow ? line.top + FromEnd : line.bottom - FromEnd;
        const QPointF at = m_scene->onPicture({line.x, y}, number);
        return shadeAt(*pictureOf(number), static_cast<int>(at.x()), static_cast<int>(at.y())) <
               DarkerThanWater;
    }

    /// The tip of the hull is dark, the water before it light.
    void expectBoatWhereItShouldBe(FrameNumber number) {
        const BoatPlace boat = m_scene->boatAt(number);
        const QPointF tip = m_scene->onPicture(boat.bow - 5 * boat.heading, number);
        const QPointF ahead = m_scene->onPicture(boat.bow + 8 * boat.heading, number);
        const FramePtr picture = pictureOf(number);
        const auto shade = [&](QPointF at) {
            return shadeAt(*picture, qRound(at.x()), qRound(at.y()));
        };
        EXPECT_LT(shade(tip), shade(ahead) - 25) << number;
    }

    test::TempFolder m_folder;
    splittakerdata031 m_session;
    athletedata031 m_run;
    std::string m_name;
    std::shared_ptr<const FilmScene> m_scene;
    std::shared_ptr<const VideoIndex> m_index;
    std::optional<FrameSource> m_source;
};

TEST_P(MadeFilm, GivesTheTimesOfItsSplitFile) {
    const Case& c = GetParam();
    const VideoFacts& facts = m_index->facts();
    EXPECT_EQ(facts.format, "h264");
    EXPECT_EQ(facts.timeBase, (TimeBase{1, c.timescale}));
    EXPECT_EQ(facts.shownSize, (VideoSize{FilmWidth, FilmHeight}));
    EXPECT_EQ(m_index->frameCount(), m_scene->run().length);
    EXPECT_LT(fs::file_size(m_folder.path() / m_name), 2'000'000U);
    for (FrameNumber i = 0; i < m_index->frameCount(); ++i) {
        ASSERT_EQ(m_index->frame(i).stamp, i * (c.timescale / 50));
        ASSERT_EQ(m_index->frame(i).isKey, i % 50 == 0) << i;
    }

    const sectiondata030& timing = m_run.sectioninfo;
    std::int64_t clock = firstClock(timing);
    for (std::size_t k = 0; k < timing.cmtimes.size(); ++k) {
        if (timing.cmtimes[k].empty())
            continue;
        const CMTime stamp = timing.cmtimes[k].at(c.camera);
        const FrameNumber mark = m_index->frameAt(stamp).value_or(-1);
        ASSERT_EQ(m_index->stampOf(mark), stamp);
        if (k > 0)
            clock += std::llround(timing.times[k] * 100);
        for (const FrameNumber back : {0, 1}) {
            SCOPED_TRACE(testing::Message() << "mark " << k << ", frame " << mark - back);
            EXPECT_EQ(numberIn(*pictureOf(mark - back), FrameRow), mark - back);
            EXPECT_EQ(numberIn(*pictureOf(mark - back), ClockRow), clock - 2 * back);
            EXPECT_EQ(isLit(m_scene->course().splits[k], mark - back), back == 0);
            expectBoatWhereItShouldBe(mark - back);
        }
    }
    const FrameNumber last = m_index->frameCount() - 1;
    if (timing.isfullrun) { // the clock stands
        EXPECT_EQ(numberIn(*pictureOf(last), ClockRow), clock);
    }
}

/// Its water is calm, and a coach draws the box round hull, paddler and blades.
TEST(SprintFilm, HasItsCrossingsFoundAtItsLinesByBoxesOfAnyHeight) {
    const test::TempFolder folder;
    const auto passages = sample::sprintPassages();
    const fs::path film = folder.add("sprint.mov", makeFilm(FixedScene(passages)));
    const slitfile002 lines = sprintLines();
    ASSERT_EQ(lines.lines.size(), 2U);
    BoatBox low = boatOf(lines.lines[1]);
    low.height = 14; // the hull alone
    for (const auto& [line, boat] :
         {std::pair(lines.lines[0], boatOf(lines.lines[0])),
          std::pair(lines.lines[1], boatOf(lines.lines[1])), std::pair(lines.lines[1], low)}) {
        SCOPED_TRACE(fmt::format("split {}, {} high", line.split, boat.height));
        const auto crossings = findCrossings(film, {lineOf(line), boat});
        ASSERT_TRUE(crossings);
        ASSERT_EQ(crossings->proposals.size(), passages.size());
        for (std::size_t i = 0; i < passages.size(); ++i) {
            const Proposal& proposal = crossings->proposals[i];
            const Frames crossed = line.split == 0 ? passages[i].start : passages[i].finish;
            EXPECT_LE(std::abs(proposal.frame - crossed), 3) << i;
            EXPECT_GE(proposal.confidence, 0.5) << i;
            EXPECT_GT(proposal.bodyFrame, proposal.frame) << i;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(
    Season, MadeFilm,
    testing::Values(Case{"WholeRun", harbour, "Benjamin Eddelston", "Final", 0, 60000},
                    Case{"SecondCamera", harbour, "Vincent Gaudrive", "Final", 1, 60000},
                    // Its start is known from the official time only.
                    Case{"BeganLate", harbour, "Kuba Zakole", "Heats", 0, 60000},
                    Case{"GaveUp", sample::formTest, "Marit Elvestrøm", "Run 2", 0, 600}),
    [](const auto& tested) { return tested.param.description; });

} // namespace
} // namespace kavela::films
