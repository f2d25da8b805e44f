#include "desktop/compose/compare_sound.h"

#include "common/sound_films.h"
#include "common/temp_folder.h"
#include "desktop/compose/compare_player.h"
#include "video/frame_cache.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QTest>

#include <algorithm>
#include <optional>

namespace kavela::test {
namespace {

using desktop::ComparePlayer;
using desktop::CompareSound;
using desktop::SoundOutput;

constexpr int CompareSoundWait = 30000; // milliseconds

/// Takes samples as fast as they would be heard, and notes when the tone comes.
class CompareOutput final : public SoundOutput {
public:
    explicit CompareOutput(const ComparePlayer& player) : m_player(player) {
        QObject::connect(&m_timer, &QTimer::timeout, [this] { takeDue(); });
        m_timer.setTimerType(Qt::PreciseTimer);
    }

    bool start(Take take) override {
        m_take = std::move(take);
        m_sinceTake.start();
        m_timer.start(5);
        return true;
    }
    void stop() override {
        m_take = nullptr;
        m_timer.stop();
    }
    double waiting() const override { return 0; }

    [[nodiscard]] bool isOn() const { return m_take != nullptr; }

    std::optional<double> toneAt; ///< the player's clock

private:
    void takeDue() {
        const auto frames = static_cast<std::size_t>(m_sinceTake.nsecsElapsed() * 48 / 1000000);
        m_sinceTake.restart();
        std::vector<std::int16_t> samples(frames * SoundChannels);
        m_take(samples);
        if (!toneAt && std::ranges::any_of(samples, [](int value) { return value > 2000; }))
            toneAt = m_player.clock();
    }

    const ComparePlayer& m_player;
    Take m_take;
    QTimer m_timer;
    QElapsedTimer m_sinceTake;
};

class CompareSoundTest : public ::testing::Test {
protected:
    CompareSoundTest()
        : m_player(std::make_shared<FrameCache>(std::size_t{64} << 20)),
          m_sound(m_player, nullptr, [this] {
              auto output = std::make_unique<CompareOutput>(m_player);
              m_output = output.get();
              return output;
          }) {
        const std::string silent = (m_folder.path() / "silent.mp4").string();
        const std::string tone = (m_folder.path() / "tone.mp4").string();
        makeToneFilm(silent, "-an");
        makeToneFilm(tone, "-c:a aac");
        m_job.films = {{.film = silent}, {.film = tone, .startsAt = 1}};
        m_job.range = {"free", 0, 0, 0, 4.5};
        m_job.output.width = 320;
        m_job.output.height = 180;
        m_job.captions = {false, false, false, false, false, false};
        m_job.sound = 2;
    }

    [[nodiscard]] bool shows(const composejob002& job) {
        bool isThere = false;
        const auto connection =
            QObject::connect(&m_player, &ComparePlayer::preparedChanged, [&] { isThere = true; });
        m_player.show(job, {320, 180});
        const bool isShown = QTest::qWaitFor([&] { return isThere; }, CompareSoundWait);
        QObject::disconnect(connection);
        return isShown && m_player.prepared().has_value();
    }
    [[nodiscard]] bool isOn() const { return m_output && m_output->isOn(); }

    TempFolder m_folder;
    composejob002 m_job;
    CompareOutput* m_output = nullptr;
    ComparePlayer m_player;
    CompareSound m_sound;
};

TEST_F(CompareSoundTest, OfTheChosenFilmComesWithItsPictures) {
    ASSERT_TRUE(shows(m_job));
    m_player.seek(ToneStart - 1 - 0.4); // that film is a second ahead
    m_player.play();
    ASSERT_TRUE(QTest::qWaitFor([&] { return m_output && m_output->toneAt; }, CompareSoundWait));
    EXPECT_NEAR(*m_output->toneAt, ToneStart - 1, 0.1);
    m_player.pause();
    EXPECT_FALSE(isOn());
}

TEST_F(CompareSoundTest, IsSilentWhereTheComposedFilmIs) {
    ASSERT_TRUE(shows(m_job));
    m_player.play();
    ASSERT_TRUE(QTest::qWaitFor([&] { return isOn(); }, CompareSoundWait));
    composejob002 silent = m_job;
    silent.sound = 0;
    ASSERT_TRUE(shows(silent));
    EXPECT_FALSE(isOn()) << "the choice is taken while it plays";
    composejob002 slow = m_job;
    slow.speed = 0.5;
    ASSERT_TRUE(shows(slow));
    EXPECT_FALSE(isOn());
    EXPECT_FALSE(m_player.prepared()->heard) << "slow motion has no sound";
    m_player.pause();
}

} // namespace
} // namespace kavela::test
