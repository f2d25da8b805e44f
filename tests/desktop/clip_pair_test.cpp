#include "desktop/film/clip_pair.h"

#include "common/recorders.h"
#include "common/temp_folder.h"
#include "desktop/film/film_deck.h"
#include "desktop/film/film_view.h"
#include "desktop/numbered_film.h"
#include "desktop/patience.h"
#include "desktop/shell/workspace.h"

#include <gmock/gmock.h>

#include <QAction>
#include <QSignalSpy>
#include <QTest>

#include <fstream>
#include <utility>

namespace kavela::test {
namespace {

namespace fs = std::filesystem;
using desktop::Clip;
using desktop::ClipPair;
using desktop::Workspace;
using ::testing::HasSubstr;

using Numbers = std::pair<int, int>;

class ClipPairTest : public ::testing::Test {
protected:
    ClipPairTest() {
        m_pair.resize(900, 400);
        m_pair.show();
        m_pair.setLooped(false);
    }

    /// A stretch of a film whose frames carry their numbers.
    [[nodiscard]] Clip clipOf(const char* name, int from, int to) const {
        const fs::path film = m_folder.path() / (std::string(name) + ".mp4");
        if (!fs::exists(film))
            fs::create_symlink(numberedFilm(), film);
        return {QString::fromStdString(film), static_cast<double>(from) / NumberedRate,
                static_cast<double>(to) / NumberedRate, name};
    }
    [[nodiscard]] int numberOn(std::size_t side) const {
        const QImage& image = m_pair.view(side)->image();
        return image.isNull() ? -1 : numberIn(image);
    }
    [[nodiscard]] Numbers numbers() const { return {numberOn(0), numberOn(1)}; }
    /// Whether both come to show these frames.
    [[nodiscard]] bool comesTo(Numbers wanted) const {
        return QTest::qWaitFor([&] { return numbers() == wanted; }, Patience);
    }
    [[nodiscard]] bool comesToPlay() {
        return QTest::qWaitFor([this] { return m_pair.deck().isPlaying(); }, Patience);
    }
    void playToTheEnd(const Clip& own, const Clip& reference) {
        QSignalSpy ended(&m_pair, &ClipPair::ended);
        m_pair.play(own, reference);
        ASSERT_TRUE(ended.wait(Patience));
    }

    TempFolder m_folder;
    Recorder m_recorder;
    Workspace m_workspace{Preferences(m_folder.path() / "preferences.ini"), m_recorder.log(),
                          [] { return ReferenceDate{7e8}; }};
    ClipPair m_pair{m_workspace};
};

TEST_F(ClipPairTest, LetsTheShorterClipWaitAtItsEndWithItsTime) {
    QStringList toldAtOwnEnd;
    QObject::connect(&m_pair.deck(), &desktop::FilmDeck::frameShown, &m_pair, [&] {
        if (numberOn(0) == 125 && numberOn(1) < 580)
            toldAtOwnEnd.append(m_pair.told(0));
    });
    playToTheEnd(clipOf("Own", 100, 125), clipOf("Winner", 500, 580));
    ASSERT_TRUE(comesTo(Numbers(125, 580)));
    EXPECT_EQ(m_pair.told(0), "Own · 0.50 s, at its end");
    EXPECT_EQ(m_pair.told(1), "Winner · 1.60 s, at its end");
    EXPECT_TRUE(toldAtOwnEnd.contains(m_pair.told(0))) << "while the longer one still played";
}

TEST_F(ClipPairTest, StepsBothByFramesWithinTheirStretches) {
    playToTheEnd(clipOf("Own", 100, 125), clipOf("Winner", 500, 540));
    const auto step = [this](int frames, Numbers expected) {
        m_pair.deck().step(frames);
        ASSERT_TRUE(comesTo(expected)) << numberOn(0) << ", " << numberOn(1);
    };
    step(-10, {125, 530});
    step(-10, {120, 520});
    EXPECT_EQ(m_pair.told(0), "Own · 0.40 of 0.50 s");
    step(-1, {119, 519});
    step(-100, {100, 500});
    step(6, {106, 506});
    step(100, {125, 540});
}

TEST_F(ClipPairTest, BeginsAgainAsOftenAsItIsToldTo) {
    m_pair.setLooped(true);
    QSignalSpy ended(&m_pair, &ClipPair::ended);
    m_pair.play(clipOf("Own", 100, 110), clipOf("Winner", 500, 515));
    ASSERT_TRUE(QTest::qWaitFor([&] { return ended.count() >= 3; }, Patience));
    m_pair.setLooped(false);
    ASSERT_TRUE(comesTo(Numbers(110, 515)));
    ASSERT_TRUE(QTest::qWaitFor([this] { return !m_pair.deck().isPlaying(); }, Patience));
}

TEST_F(ClipPairTest, PlaysTheOneWhenTheOtherHasNoFilm) {
    const fs::path text = m_folder.path() / "text.mp4";
    std::ofstream(text) << "no film at all";
    struct Case {
        QString film;
        const char* told;
    };
    for (const Case& lacking :
         {Case{QString::fromStdString(m_folder.path() / "gone.mp4"), "gone.mp4"},
          Case{"", "no film"}, Case{QString::fromStdString(text), "text.mp4"}}) {
        playToTheEnd({lacking.film, 1, 9, "Own"}, clipOf("Winner", 500, 510));
        ASSERT_TRUE(QTest::qWaitFor([this] { return numberOn(1) == 510; }, Patience));
        EXPECT_THAT(m_pair.view(0)->message().toStdString(), HasSubstr(lacking.told));
        EXPECT_EQ(m_pair.told(0), "Own");
    }
}

TEST_F(ClipPairTest, GivesNoRoomToAReferenceThatNobodyPaddled) {
    playToTheEnd(clipOf("Own", 100, 110), {});
    EXPECT_EQ(m_pair.view(1), nullptr);
    m_pair.clear();
    EXPECT_FALSE(m_pair.canPlay());
    for (const QAction* const action : m_pair.playActions())
        EXPECT_FALSE(action->isEnabled()) << action->text().toStdString();
}

TEST_F(ClipPairTest, HearsItsKeys) {
    ASSERT_TRUE(QTest::qWaitForWindowActive(&m_pair));
    m_pair.setFocus();
    m_pair.play(clipOf("Own", 100, 900), clipOf("Winner", 500, 1400));
    ASSERT_TRUE(comesToPlay());
    QTest::keyClick(&m_pair, Qt::Key_L, Qt::ShiftModifier);
    EXPECT_EQ(m_pair.deck().rate(), 0.25);
    QTest::keyClick(&m_pair, Qt::Key_Space);
    EXPECT_FALSE(m_pair.deck().isPlaying());
    ASSERT_TRUE(QTest::qWaitFor([this] { return numberOn(1) - numberOn(0) == 400; }, Patience));
    const Numbers before = numbers();
    QTest::keyClick(&m_pair, Qt::Key_Right);
    QTest::keyClick(&m_pair, Qt::Key_Period);
    ASSERT_TRUE(comesTo(Numbers(before.first + 2, before.second + 2)));
    m_pair.play(clipOf("Own", 200, 900), clipOf("Winner", 500, 1400));
    ASSERT_TRUE(comesToPlay());
    EXPECT_EQ(m_pair.deck().rate(), 0.25) << "the next clips play as the last did";
}

} // namespace
} // namespace kavela::test
