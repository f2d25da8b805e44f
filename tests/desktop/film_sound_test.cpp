#include "desktop/film/film_sound.h"

#include "common/recorders.h"
#include "common/sound_films.h"
#include "common/temp_folder.h"
#include "desktop/film/film_deck.h"
#include "desktop/film/film_stage.h"
#include "desktop/patience.h"
#include "desktop/shell/workspace.h"
#include "desktop/taking/taking_window.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QTest>

#include <algorithm>
#include <optional>

namespace kavela::test {
namespace {

namespace fs = std::filesystem;
using desktop::FilmDeck;
using desktop::FilmSound;
using desktop::nextSoundStep;
using desktop::SoundOutput;
using desktop::SoundSituation;
using desktop::SoundStep;

constexpr SoundSituation Playing{.hasFilm = true, .isPlaying = true};

TEST(SoundDecision, IsToPlayForwardAtNormalSpeedOnly) {
    struct Row {
        const char* name;
        SoundSituation silent; ///< what to do while nothing sounds
        bool isDue;
    };
    const auto with = [](auto change) {
        SoundSituation situation = Playing;
        change(situation);
        return situation;
    };
    for (const Row& row : {Row{"normal speed", Playing, true},
                           Row{"standing", with([](auto& s) { s.isPlaying = false; }), false},
                           Row{"slow", with([](auto& s) { s.rate = 0.5; }), false},
                           Row{"fast", with([](auto& s) { s.rate = 2; }), false},
                           Row{"backwards", with([](auto& s) { s.rate = -1; }), false},
                           Row{"muted", with([](auto& s) { s.isMuted = true; }), false},
                           Row{"no film", with([](auto& s) { s.hasFilm = false; }), false}}) {
        SoundSituation situation = row.silent;
        EXPECT_EQ(nextSoundStep(situation), row.isDue ? SoundStep::Start : SoundStep::Stay)
            << row.name;
        situation.isSounding = true;
        EXPECT_EQ(nextSoundStep(situation), row.isDue ? SoundStep::Stay : SoundStep::Stop)
            << row.name;
        situation.jump = -1;
        EXPECT_EQ(nextSoundStep(situation), row.isDue ? SoundStep::Restart : SoundStep::Stop)
            << row.name;
    }
}

/// Takes samples as fast as they would be heard, and notes when the tone comes.
class FakeOutput final : public SoundOutput {
public:
    explicit FakeOutput(const FilmDeck& deck) : m_deck(deck) {
        QObject::connect(&m_timer, &QTimer::timeout, [this] { takeDue(); });
        m_timer.setTimerType(Qt::PreciseTimer);
    }

    bool start(Take take) override {
        ++starts;
        if (!canStart)
            return false;
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

    int starts = 0;
    bool canStart = true;
    bool isStuck = false;
    std::optional<double> toneAt; ///< position of the deck

private:
    void takeDue() {
        const auto frames = static_cast<std::size_t>(m_sinceTake.nsecsElapsed() * 48 / 1000000);
        m_sinceTake.restart();
        if (isStuck)
            return;
        std::vector<std::int16_t> samples(frames * SoundChannels);
        m_take(samples);
        if (!toneAt && std::ranges::any_of(samples, [](int value) { return value > 2000; }))
            toneAt = m_deck.position();
    }

    const FilmDeck& m_deck;
    Take m_take;
    QTimer m_timer;
    QElapsedTimer m_sinceTake;
};

class FilmSoundTest : public ::testing::Test {
protected:
    FilmSoundTest()
        : m_deck(std::make_shared<FrameCache>(std::size_t{64} << 20)),
          m_sound(m_deck, nullptr, [this] {
              auto output = std::make_unique<FakeOutput>(m_deck);
              output->canStart = m_hasLoudspeaker;
              m_output = output.get();
              return output;
          }) {}

    QString film(const char* name, const std::string& coding) const {
        const fs::path path = m_folder.path() / name;
        makeToneFilm(path, coding);
        return QString::fromStdString(path.string());
    }
    void open(const QString& film) {
        m_deck.open({film});
        ASSERT_TRUE(waitFor([this] { return m_deck.end() > 5; }));
    }
    bool isOn() const { return m_output && m_output->isOn(); }
    static bool waitFor(const std::function<bool()>& isSo) {
        return QTest::qWaitFor(isSo, Patience);
    }

    TempFolder m_folder;
    bool m_hasLoudspeaker = true;
    FakeOutput* m_output = nullptr;
    FilmDeck m_deck;
    FilmSound m_sound;
};

TEST_F(FilmSoundTest, IsInStepWithTheClock) {
    open(film("tone.mp4", "-c:a aac"));
    m_deck.seek(ToneStart - 0.4);
    m_deck.play(1);
    ASSERT_TRUE(waitFor([this] { return m_output && m_output->toneAt; }));
    EXPECT_NEAR(*m_output->toneAt, ToneStart, 0.06);
}

TEST_F(FilmSoundTest, ComesBackIntoStepAfterAHitch) {
    open(film("tone.mov", "-c:a pcm_s16le"));
    m_deck.seek(ToneStart - 1);
    m_deck.play(1);
    ASSERT_TRUE(waitFor([this] { return isOn(); }));
    m_output->isStuck = true;
    ASSERT_TRUE(waitFor([this] { return m_deck.position() > ToneStart - 0.7; }));
    m_output->isStuck = false;
    ASSERT_TRUE(waitFor([this] { return m_output->toneAt.has_value(); }));
    EXPECT_NEAR(*m_output->toneAt, ToneStart, 0.08);
    EXPECT_EQ(m_output->starts, 1);
}

TEST_F(FilmSoundTest, StopsAtOnceWithWhateverEndsNormalPlaying) {
    const QString tone = film("tone.mp4", "-c:a aac");
    struct Row {
        const char* name;
        std::function<void()> act;
        bool goesOn = false;
    };
    for (const Row& row :
         {Row{"pause", [&] { m_deck.pause(); }}, Row{"slower", [&] { m_deck.slower(); }},
          Row{"backwards", [&] { m_deck.play(-1); }}, Row{"a step", [&] { m_deck.step(1); }},
          Row{"muted", [&] { m_sound.setMuted(true); }}, Row{"closed", [&] { m_deck.open({}); }},
          Row{"seek", [&] { m_deck.seek(3.0); }, true},
          Row{"jump", [&] { m_deck.jump(-0.5); }, true}}) {
        open(tone);
        m_sound.setMuted(false);
        m_deck.seek(1.0);
        m_deck.play(1);
        ASSERT_TRUE(waitFor([this] { return isOn(); })) << row.name;
        row.act();
        EXPECT_FALSE(isOn()) << row.name;
        if (row.goesOn) {
            EXPECT_TRUE(waitFor([this] { return isOn(); })) << row.name;
        }
    }
    m_sound.setMuted(false);
    m_deck.open({});
}

TEST_F(FilmSoundTest, LooksForALoudspeakerOnlyWhenThereIsSoundToPlay) {
    open(film("tone.mp4", "-c:a aac"));
    m_deck.play(2);
    ASSERT_TRUE(waitFor([this] { return m_deck.position() > 0.5; }));
    m_deck.pause();
    open(film("mute.mp4", "-an"));
    m_deck.play(1);
    ASSERT_TRUE(waitFor([this] { return m_deck.position() > 0.5; }));
    EXPECT_EQ(m_output, nullptr);
}

TEST_F(FilmSoundTest, PlaysOnSilentlyWithoutALoudspeaker) {
    m_hasLoudspeaker = false;
    open(film("tone.mp4", "-c:a aac"));
    m_deck.play(1);
    ASSERT_TRUE(waitFor([this] { return m_output && m_output->starts == 1; }));
    m_deck.seek(ToneStart);
    ASSERT_TRUE(waitFor([this] { return m_output->starts == 2; })) << "tries again at each start";
    ASSERT_TRUE(waitFor([this] { return m_deck.position() > ToneStart + 0.3; }));
    m_deck.pause();
    EXPECT_EQ(m_output->starts, 2);
}

TEST(SoundAction, IsSwitchedByAKeyAndRemembered) {
    const TempFolder folder;
    Recorder recorder;
    desktop::Workspace workspace(Preferences(folder.path() / "preferences.ini"), recorder.log(),
                                 [] { return ReferenceDate{7e8}; });
    const auto isMutedAfterKey = [&](bool isPressed) {
        desktop::TakingWindow window(
            workspace, desktop::Autosave(QString::fromStdString(folder.path().string())));
        window.setAttribute(Qt::WA_DeleteOnClose, false);
        window.show();
        QApplication::setActiveWindow(&window);
        if (isPressed)
            QTest::keyClick(&window, Qt::Key_S);
        return window.stage().sound().isMuted();
    };
    EXPECT_FALSE(isMutedAfterKey(false));
    EXPECT_TRUE(isMutedAfterKey(true));
    EXPECT_TRUE(isMutedAfterKey(false)) << "in the next window";
    EXPECT_FALSE(isMutedAfterKey(true));
}

} // namespace
} // namespace kavela::test
