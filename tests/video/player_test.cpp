#include "video/camera_group.h"
#include "video/threaded_player.h"

#include "clips.h"

#include <gmock/gmock.h>

#include <unistd.h>

#include <atomic>
#include <condition_variable>
#include <filesystem>
#include <fstream>
#include <future>
#include <mutex>

namespace kavela {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;
using ::testing::HasSubstr;

constexpr auto Patience = 20s;

/// A player whose events are kept.
class Watched {
public:
    explicit Watched(const std::filesystem::path& path,
                     std::shared_ptr<FrameCache> cache = std::make_shared<FrameCache>(4 << 20))
        : player(std::make_shared<ThreadedPlayer>(path, std::move(cache), events())) {}

    std::vector<ShownFrame> frames() {
        const std::lock_guard lock(m_guard);
        return m_frames;
    }
    std::string error() {
        const std::lock_guard lock(m_guard);
        return m_error;
    }
    void forgetError() {
        const std::lock_guard lock(m_guard);
        m_error.clear();
    }
    [[nodiscard]] bool waitForFrame(FrameNumber number) {
        return wait([=, this] {
            return !m_frames.empty() && !m_frames.back().isPreview &&
                   m_frames.back().frame.number == number;
        });
    }
    [[nodiscard]] bool waitForIndex() {
        return wait([this] { return m_isIndexed; });
    }
    [[nodiscard]] bool waitForError() {
        return wait([this] { return !m_error.empty(); });
    }

private:
    PlayerEvents events() {
        return {.onFrame =
                    [this](const ShownFrame& frame) { note([&] { m_frames.push_back(frame); }); },
                .onIndex =
                    [this](const std::shared_ptr<const VideoIndex>& index, double) {
                        note([&] { m_isIndexed = index && index->isComplete(); });
                    },
                .onError = [this](const std::string& text) { note([&] { m_error = text; }); }};
    }
    template <class Change>
    void note(const Change& change) {
        {
            const std::lock_guard lock(m_guard);
            change();
        }
        m_changed.notify_all();
    }
    template <class Condition>
    bool wait(const Condition& condition) {
        std::unique_lock lock(m_guard);
        return m_changed.wait_for(lock, Patience, condition);
    }

    std::mutex m_guard;
    std::condition_variable m_changed;
    std::vector<ShownFrame> m_frames;
    std::string m_error;
    bool m_isIndexed = false;

public:
    std::shared_ptr<ThreadedPlayer> player; ///< last, so that it ends before what it reports to
};

TEST(ThreadedPlayer, TheNewestRequestWins) {
    Watched watched(clip("h264_240.mp4"));
    ASSERT_TRUE(watched.waitForIndex());
    for (FrameNumber i = 0; i < 200; ++i)
        watched.player->showFrame(i * 397 % 800);
    watched.player->showFrame(613);
    ASSERT_TRUE(watched.waitForFrame(613));
    EXPECT_EQ(numberIn(*watched.player->shown()->samples), 613);
    EXPECT_EQ(watched.player->target(), 613);
    EXPECT_LT(watched.frames().size(), 200U);
}

TEST(ThreadedPlayer, ShowsTheKeyFrameOnALongWay) {
    Watched watched(clip("h264_240.mp4"));
    watched.player->showFrame(740);
    ASSERT_TRUE(watched.waitForFrame(740));
    const auto frames = watched.frames();
    ASSERT_EQ(frames.size(), 2U);
    EXPECT_TRUE(frames.front().isPreview);
    EXPECT_EQ(frames.front().frame.number, 500);
    EXPECT_EQ(numberIn(*frames.front().frame.samples), 500);
}

TEST(ThreadedPlayer, FindsAStoredStampAndStaysInTheFilm) {
    Watched watched(clip("variable.mp4"));
    ASSERT_TRUE(watched.waitForIndex());
    watched.player->requestStamp(watched.player->index()->stampOf(123));
    ASSERT_TRUE(watched.waitForFrame(123));
    watched.player->showFrame(99999);
    ASSERT_TRUE(watched.waitForFrame(199));
    watched.player->requestPosition(-3);
    ASSERT_TRUE(watched.waitForFrame(0));
}

TEST(ThreadedPlayer, EndsAtOnceWhileBusy) {
    for (int i = 0; i < 20; ++i) {
        Watched watched(clip("h264_240.mp4"));
        if (i % 2 == 0) {
            ASSERT_TRUE(watched.waitForIndex());
        }
        watched.player->showFrame(790);
        const auto before = std::chrono::steady_clock::now();
        watched.player.reset();
        EXPECT_LT(std::chrono::steady_clock::now() - before, 2s);
    }
}

TEST(ThreadedPlayer, TellsWhyNothingCanBeShown) {
    Watched watched(clip("cut_back.mp4"));
    watched.player->showFrame(3);
    ASSERT_TRUE(watched.waitForError());
    EXPECT_THAT(watched.error(), HasSubstr("cut_back.mp4: the film is cut off"));
}

TEST(ThreadedPlayer, StepsAcrossWhatCannotBeDecoded) {
    Watched watched(clip("joined_late.ts"));
    ASSERT_TRUE(watched.waitForIndex());
    watched.player->showFrame(0);
    const auto isShown = [&] { return watched.player->shown().has_value(); };
    while (!isShown() && watched.error().empty())
        std::this_thread::yield();
    ASSERT_EQ(watched.error(), "");
    const VideoFrame first = *watched.player->shown();
    EXPECT_EQ(watched.player->target(), first.number);
    watched.player->showFrame(first.number + 1);
    ASSERT_TRUE(watched.waitForFrame(first.number + 1));
    EXPECT_EQ(numberIn(*watched.player->shown()->samples), numberIn(*first.samples) + 1);
}

/// Who paints a frame needs the facts of its film, and would drop one that came too early.
TEST(ThreadedPlayer, TellsOfTheFilmBeforeItsFirstFrame) {
    const auto cache = std::make_shared<FrameCache>(4 << 20); // the frame is there at once
    for (int opened = 0; opened < 60; ++opened) {
        std::atomic<bool> isKnown = false;
        std::promise<bool> wasKnown;
        std::once_flag first;
        PlayerEvents events;
        events.onFrame = [&](const ShownFrame&) {
            std::call_once(first, [&] { wasKnown.set_value(isKnown); });
        };
        events.onIndex = [&](const std::shared_ptr<const VideoIndex>& index, double) {
            isKnown = isKnown || index;
        };
        ThreadedPlayer player(clip("h264_240.mp4"), cache, std::move(events));
        player.showFrame(0);
        auto told = wasKnown.get_future();
        ASSERT_EQ(told.wait_for(Patience), std::future_status::ready);
        ASSERT_TRUE(told.get()) << "opened for the " << opened << "th time";
    }
}

TEST(ThreadedPlayer, TellsWhatWasAskedBeforeTheFilmIsRead) {
    Watched watched(clip("h264_50.mp4"));
    watched.player->showFrame(10);
    watched.player->requestPosition(2);
    ASSERT_TRUE(watched.player->asked());
    const FrameRequest asked = *watched.player->asked();
    ASSERT_TRUE(watched.waitForFrame(100));
    EXPECT_EQ(frameOf(*watched.player->index(), asked), 100);
    EXPECT_EQ(watched.frames().back().request, watched.player->requests());
    EXPECT_EQ(watched.player->asked(), FrameRequest(FrameNumber{100}));
}

TEST(ThreadedPlayer, GoesOnOnceAFilmCanBeReadAgain) {
    const fs::path folder = fs::temp_directory_path() / ("kavela-film-" + std::to_string(getpid()));
    fs::create_directories(folder);
    const fs::path film = folder / "film.mov";
    const fs::path away = folder / "away.mov";
    fs::copy_file(clip("intra.mov"), away, fs::copy_options::overwrite_existing);
    {
        Watched watched(film);
        watched.player->showFrame(3);
        ASSERT_TRUE(watched.waitForError()) << "the stick is not there yet";
        fs::rename(away, film);
        watched.player->showFrame(20);
        ASSERT_TRUE(watched.waitForFrame(20));
        const auto whole = fs::file_size(film);
        fs::copy_file(film, away);
        fs::resize_file(film, whole / 8); // as a stick that is pulled out while its film is open
        watched.forgetError();
        watched.player->showFrame(95);
        ASSERT_TRUE(watched.waitForError());
        EXPECT_THAT(watched.error(), HasSubstr("film.mov"));
        std::ofstream(film, std::ios::binary | std::ios::in | std::ios::out)
            << std::ifstream(away, std::ios::binary).rdbuf();
        watched.player->showFrame(95);
        ASSERT_TRUE(watched.waitForFrame(95));
        EXPECT_EQ(numberIn(*watched.player->shown()->samples), 95);
    }
    fs::remove_all(folder);
}

/// Plays by refreshes of a screen that waits for every frame.
class Playing : public ::testing::Test {
protected:
    static constexpr auto Refresh = std::chrono::nanoseconds(1'000'000'000 / 60);

    void refresh(CameraGroup& group, std::vector<std::unique_ptr<Watched>>& cameras) {
        m_now += Refresh;
        group.tick(m_now);
        for (const auto& camera : cameras)
            ASSERT_TRUE(camera->waitForFrame(*camera->player->target()));
    }

    CameraGroup groupOf(std::vector<std::unique_ptr<Watched>>& cameras,
                        const std::vector<const char*>& names) {
        const auto cache = std::make_shared<FrameCache>(8 << 20);
        std::vector<std::shared_ptr<VideoPlayer>> players;
        for (const char* const name : names) {
            cameras.push_back(std::make_unique<Watched>(clip(name), cache));
            EXPECT_TRUE(cameras.back()->waitForIndex());
            players.push_back(cameras.back()->player);
        }
        return CameraGroup(players);
    }

    PlayClock::Moment m_now;
};

class Reverse : public Playing, public ::testing::WithParamInterface<double> {};

TEST_P(Reverse, SkipsNoFrame) {
    std::vector<std::unique_ptr<Watched>> cameras;
    CameraGroup group = groupOf(cameras, {"h264_50.mp4"});
    group.seek(group.player(0).index()->stampOf(180), m_now);
    ASSERT_TRUE(cameras[0]->waitForFrame(180));
    group.setRate(GetParam(), m_now);
    group.play(m_now);
    while (group.clock().position(m_now) > 1)
        refresh(group, cameras);
    FrameNumber last = 180;
    for (const ShownFrame& shown : cameras[0]->frames()) {
        if (shown.isPreview)
            continue;
        EXPECT_EQ(numberIn(*shown.frame.samples), shown.frame.number);
        EXPECT_LE(last - shown.frame.number, 1);
        last = shown.frame.number;
    }
    EXPECT_LE(last, 50);
}

INSTANTIATE_TEST_SUITE_P(Rates, Reverse, ::testing::Values(-0.25, -0.5, -1));

class Cameras : public Playing {
protected:
    /// The second film begins at frame 65 of the first; they are brought together by hand.
    CameraGroup alignedGroup() {
        CameraGroup group = groupOf(m_cameras, {"h264_50.mp4", "edit_list.mp4"});
        group.seek(group.player(0).index()->stampOf(100), m_now);
        EXPECT_TRUE(m_cameras[0]->waitForFrame(100));
        group.player(1).showFrame(30);
        EXPECT_TRUE(m_cameras[1]->waitForFrame(30));
        group.stepAlone(1, 5, m_now);
        EXPECT_TRUE(m_cameras[1]->waitForFrame(35));
        EXPECT_TRUE(group.alignShown(m_now));
        return group;
    }
    [[nodiscard]] int numberShown(std::size_t camera) {
        return numberIn(*m_cameras[camera]->player->shown()->samples);
    }

    std::vector<std::unique_ptr<Watched>> m_cameras;
};

TEST_F(Cameras, StayTogether) {
    CameraGroup group = alignedGroup();
    for (const double rate : {1.0, -0.5, 4.0, -2.0}) {
        group.setRate(rate, m_now);
        group.play(m_now);
        for (int i = 0; i < 30; ++i) {
            refresh(group, m_cameras);
            // Before its first and after its last frame a film stands still.
            if (65 <= numberShown(0)) {
                ASSERT_EQ(numberShown(1), numberShown(0)) << "rate " << rate;
            }
        }
    }
    for (int i = 0; i < 60; ++i) {
        group.step(i % 3 == 0 ? 2 : -1, m_now);
        refresh(group, m_cameras);
        if (65 <= numberShown(0)) {
            ASSERT_EQ(numberShown(1), numberShown(0)) << "step " << i;
        }
    }
}

TEST_F(Cameras, StepAloneLeavesTheOthersUntilTheClockMoves) {
    CameraGroup group = alignedGroup();
    group.stepAlone(1, -3, m_now);
    ASSERT_TRUE(m_cameras[1]->waitForFrame(32));
    refresh(group, m_cameras);
    EXPECT_EQ(m_cameras[1]->player->shown()->number, 32);
    EXPECT_EQ(m_cameras[0]->player->shown()->number, 100);
    group.step(1, m_now);
    ASSERT_TRUE(m_cameras[1]->waitForFrame(36));
    ASSERT_TRUE(m_cameras[0]->waitForFrame(101));
}

TEST_F(Cameras, TheClockCoversAllFilmsAndStopsAtTheirEnd) {
    CameraGroup group = alignedGroup();
    group.tick(m_now);
    EXPECT_DOUBLE_EQ(group.clock().start(), 0);
    EXPECT_NEAR(group.clock().end(), 3.98, 1e-9);
    group.setRate(8, m_now);
    group.play(m_now);
    for (int i = 0; i < 30; ++i)
        refresh(group, m_cameras);
    EXPECT_FALSE(group.clock().isPlaying());
    EXPECT_EQ(numberShown(0), 199);
    EXPECT_THROW(group.setOffset(0, {}, m_now), std::out_of_range);
    EXPECT_THROW(group.setOffset(1, {.own = {0, 0, 0, 0}}, m_now), std::invalid_argument);
}

} // namespace
} // namespace kavela
