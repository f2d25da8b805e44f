#include "common/sound_films.h"
#include "desktop/film/time_line.h"
#include "desktop/notes_fixture.h"
#include "desktop/taking/notes/clip_player.h"
#include "desktop/taking/notes/radio_box.h"
#include "splittaking/annotations/camera_sync.h"
#include "splittaking/annotations/run_notes.h"
#include "video/sound_source.h"

#include <QCheckBox>
#include <QListWidget>
#include <QPushButton>
#include <QSignalSpy>

namespace kavela::test {
namespace {

using desktop::FilmPart;
using desktop::joinedClips;
using desktop::RadioBox;
using desktop::SoundInput;
using desktop::SoundOutput;
using ::testing::IsEmpty;

/// Says what it was given to say, as soon as it is started.
class SpokenWords : public SoundInput {
public:
    explicit SpokenWords(std::vector<std::int16_t> words) : m_words(std::move(words)) {}
    bool start(Give give) override {
        give(m_words);
        return !m_words.empty();
    }
    void stop() override {}

private:
    std::vector<std::int16_t> m_words;
};

/// Takes all that is played at once, up to a second of it.
class Listener : public SoundOutput {
public:
    explicit Listener(int& loudest) : m_loudest(loudest) {}
    bool start(Take take) override {
        std::vector<std::int16_t> samples(std::size_t{SoundRate} * SoundChannels);
        take(samples);
        for (const std::int16_t sample : samples)
            m_loudest = std::max(m_loudest, std::abs(int{sample}));
        return true;
    }
    void stop() override {}
    [[nodiscard]] double waiting() const override { return 0; }

private:
    int& m_loudest;
};

TEST_F(NotesTest, ComparesTheWaysOfASection) {
    ASSERT_NO_FATAL_FAILURE(open(timedRace(), true));
    press(Qt::CTRL | Qt::Key_9);
    ASSERT_EQ(notes().mode(), NoteMode::Strategies);
    part<QComboBox>("strategyTitle").setCurrentIndex(1);
    part<QPushButton>("strategyAdd").click();
    for (const char* way : {"Spin", "Direct"}) {
        auto& field = part<QLineEdit>("strategyNewWay");
        field.setFocus();
        QTest::keyClicks(&field, way);
        press(Qt::Key_Return);
    }
    press(Qt::Key_Escape);
    ASSERT_THAT(run().strategies, SizeIs(1));
    EXPECT_THAT(run().strategies[0].options, ElementsAre("Spin", "Direct"));
    auto& ways = table("strategyWays");
    ways.choose(0, 1);
    press(Qt::Key_M);
    ways.choose(1, 1);
    ways.choose(0, 1);
    EXPECT_EQ(part<QLabel>("strategyNext").text(), "M marks where Spin begins")
        << "another way was in hand";
    press(Qt::Key_M);
    ASSERT_NO_FATAL_FAILURE(goOnASecond());
    press(Qt::Key_M);
    EXPECT_NEAR(run().strategies[0].times.at(0), 1, 1e-9);
    EXPECT_EQ(ways.currentPlace(), 1) << "the next way follows";
    press(Qt::Key_M);
    press(Qt::SHIFT | Qt::Key_Left);
    ASSERT_TRUE(QTest::qWaitFor([&] { return m_window->deck().position() < 0.01; }, Patience));
    ASSERT_TRUE(settles());
    ASSERT_TRUE(QTest::qWaitFor([&] { return m_window->deck().stamps().front().seconds() < 0.01; },
                                Patience));
    press(Qt::Key_M);
    EXPECT_EQ(run().strategies[0].times.at(1), 0) << "no way ends before it begins";
    part<QComboBox>("strategyRun").setCurrentIndex(1);
    part<QComboBox>("strategySection").setCurrentIndex(0);
    part<QPushButton>("strategyTake").click();
    EXPECT_EQ(run().strategies[0].times.at(1), run(1).sectioninfo.times[0]);
    enter("strategyWays", 1, 0, Qt::Checked, Qt::CheckStateRole);
    EXPECT_EQ(run().strategies[0].optionInt, 1);
    enter("strategyWays", 1, 2, "0,5");
    EXPECT_EQ(run().strategies[0].times.at(1), 0.5);
    EXPECT_EQ(cell("strategyWays", 0, 3), "+0.50");
    enter("strategyWays", 1, 2, "fast");
    EXPECT_EQ(cell("strategyWays", 1, 2), "0.50") << "no number, no change";
    ways.setFocus();
    press(Qt::Key_Insert);
    EXPECT_TRUE(part<QLineEdit>("strategyNewWay").hasFocus());
    press(Qt::Key_Escape);
    press(Qt::Key_Delete);
    EXPECT_THAT(run().strategies[0].options, ElementsAre("Spin"));
    undo(8);
    EXPECT_THAT(run().strategies, IsEmpty());
    EXPECT_FALSE(m_window->document().isDirty());
}

TEST_F(NotesTest, ComparesWaysOnlyWhereTheCourseHasSections) {
    splittakerdata031 race = timedRace();
    race.info.definedsections.clear();
    race.athletes[0].strategies = {{"Old", {4.5, 5}, {"A", "B", "C"}, 7, ""}};
    ASSERT_NO_FATAL_FAILURE(open(race, false));
    press(Qt::CTRL | Qt::Key_9);
    EXPECT_THAT(m_recorder.alerts, ElementsAre(messages::NoSections));
    EXPECT_EQ(notes().mode(), NoteMode::Splits);
}

/// Lists of different lengths, and a choice beyond them.
TEST_F(NotesTest, ShowsTheWaysOfAnyFileAndKeepsThem) {
    splittakerdata031 race = timedRace();
    race.athletes[0].strategies = {{"Old", {4.5, 5}, {"A", "B", "C"}, 7, "why"},
                                   {"", {}, {}, 0, ""}};
    ASSERT_NO_FATAL_FAILURE(open(race, false));
    press(Qt::CTRL | Qt::Key_9);
    const QAbstractItemModel& ways = *table("strategyWays").model();
    ASSERT_EQ(ways.rowCount(), 3);
    EXPECT_EQ(cell("strategyWays", 2, 2), "–");
    EXPECT_EQ(cell("strategyWays", 0, 3), "best");
    for (int row = 0; row < 3; ++row)
        EXPECT_EQ(ways.index(row, 0).data(Qt::CheckStateRole).toInt(), Qt::Unchecked);
    choose("strategies", 1);
    EXPECT_EQ(ways.rowCount(), 0);
    press(Qt::Key_Delete);
    EXPECT_THAT(run().strategies, SizeIs(1)) << "without a way the comparison goes";
    undo(1);
    EXPECT_EQ(run().strategies[0].optionInt, 7);
    EXPECT_FALSE(m_window->document().isDirty());
}

TEST_F(NotesTest, PutsAFixedCameraInStepByAMomentOnBothFilms) {
    const splittakerdata031 race = timedRace();
    ASSERT_NO_FATAL_FAILURE(open(race, true));
    const QString other = QString::fromStdString(race.athletes[1].videoname[0]);
    m_window->setChooseFiles([&](const QString&, const QString&) {
        return QStringList{m_window->document().folder() + '/' + other};
    });
    press(Qt::CTRL | Qt::Key_0);
    part<QPushButton>("cameraAttach").click();
    EXPECT_THAT(run().fixcameras, ElementsAre(other.toStdString()));
    auto& deck = m_window->deck();
    const auto bothShown = [&] { return !deck.stamps().empty() && deck.stamp(1).has_value(); };
    const auto isRead = [&](std::size_t camera) {
        return deck.index(camera) && deck.index(camera)->isComplete();
    };
    ASSERT_TRUE(QTest::qWaitFor([&] { return bothShown() && isRead(0) && isRead(1); }, Patience));
    deck.seek(0.0); // the clock learns how long the films are
    EXPECT_THAT(deck.stamps(), SizeIs(1)) << "splits are marked on the run's own films only";
    const double length = deck.end();
    for (int frame = 0; frame < 25; ++frame)
        press(Qt::CTRL | Qt::ALT | Qt::Key_Right);
    ASSERT_TRUE(
        QTest::qWaitFor([&] { return bothShown() && deck.stamp(1)->seconds() > 0.49; }, Patience));
    const double lag = deck.stamp(1)->seconds() - deck.stamp(0)->seconds();
    press(Qt::Key_M);
    EXPECT_NEAR(lagOf(run(), 0).value_or(0), lag, 1e-9);
    EXPECT_THAT(fixMarksOf(run(), 0), IsEmpty()) << "the film has no date, and none is made up";
    ASSERT_NO_FATAL_FAILURE(goOnASecond());
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return bothShown() && std::abs(deck.stamp(1)->seconds() - lag - 1) < 0.03; },
        Patience))
        << "both go on together";
    EXPECT_EQ(deck.end(), length) << "the other film does not make the run longer";

    press(Qt::CTRL | Qt::Key_6);
    part<QComboBox>("tagName").setEditText("Wave");
    press(Qt::Key_M);
    EXPECT_EQ(syncMarksOf(run(), 0).size(), 1U) << "a tag tells nothing of the cameras";
    EXPECT_THAT(listed().filter("Wave · fixed camera 1 at "), SizeIs(1));

    m_window->selectRun(1);
    EXPECT_TRUE(m_window->deck().filmsBeside().isEmpty()) << "not attached to that run";
    m_window->selectRun(0);
    EXPECT_EQ(m_window->deck().filmsBeside().size(), 1);
    press(Qt::CTRL | Qt::Key_0);
    part<QPushButton>("cameraAll").click();
    EXPECT_THAT(run(1).fixcameras, SizeIs(1));
    part<QPushButton>("cameraDetach").click();
    EXPECT_THAT(run().fixMarkDates, IsEmpty());
    EXPECT_TRUE(m_window->deck().filmsBeside().isEmpty());
    undo(5);
    EXPECT_THAT(run().fixcameras, IsEmpty());
    EXPECT_FALSE(m_window->document().isDirty());
}

TEST(Radio, RecordsAttachesAndPlaysWhatIsSaid) {
    const TempFolder folder;
    std::vector<std::int16_t> words(desktop::SpeechRate / 2, 0);
    for (std::size_t i = 0; i < words.size(); ++i)
        words[i] = static_cast<std::int16_t>(i % 32 < 16 ? 9000 : -9000);
    int loudest = 0;
    RadioBox box([&] { return std::make_unique<Listener>(loudest); },
                 [&] { return std::make_unique<SpokenWords>(words); });
    std::vector<Blob> kept;
    QObject::connect(&box, &RadioBox::added, &box, [&](const Blob& recording) {
        kept.push_back(recording);
        box.setRecordings(kept);
    });
    QSignalSpy told(&box, &RadioBox::told);
    box.toggleRecording();
    box.toggleRecording();
    ASSERT_THAT(kept, SizeIs(1));
    EXPECT_EQ(soundExtension(kept[0]), ".wav");
    box.play(0);
    EXPECT_GT(loudest, 7000);
    EXPECT_LT(loudest, 12000);
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return box.findChild<QPushButton*>("radioPlay")->text() == "Play"; }, Patience))
        << "it comes to its end";

    const fs::path sound = folder.path() / "message.m4a";
    makeWithTool("-f lavfi -i sine=frequency=440:duration=0.5 -c:a aac '" + sound.string() + "'");
    box.attach(QString::fromStdString(sound.string()));
    ASSERT_THAT(kept, SizeIs(2));
    EXPECT_EQ(soundExtension(kept[1]), ".m4a");
    EXPECT_EQ(told.size(), 0);
    box.attach(QString::fromStdString(folder.add("letter.txt", "no sound").string()));
    box.attach("nowhere.wav");
    EXPECT_THAT(kept, SizeIs(2));
    EXPECT_EQ(told.size(), 2) << "why it is not taken";
    kept.push_back({{1, 2, 3}});
    box.setRecordings(kept);
    box.play(2);
    EXPECT_EQ(told.size(), 3) << "a damaged recording is listed and tells why it is silent";

    RadioBox silent([&] { return std::make_unique<Listener>(loudest); },
                    [] { return std::make_unique<SpokenWords>(std::vector<std::int16_t>()); });
    QSignalSpy toldSilent(&silent, &RadioBox::told);
    silent.toggleRecording();
    EXPECT_EQ(toldSilent.size(), 1) << "no microphone";
}

TEST_F(NotesTest, KeepsTheTeamRadioInTheSplitFile) {
    splittakerdata031 race = timedRace();
    race.athletes[0].sectioninfo.teamradio = {{{1, 2}}, {{3, 4, 5}}};
    ASSERT_NO_FATAL_FAILURE(open(race, false));
    press(Qt::CTRL | Qt::Key_8);
    auto& list = part<QListWidget>("radio");
    ASSERT_EQ(list.count(), 2);
    list.setCurrentRow(1);
    part<QPushButton>("radioEarlier").click();
    EXPECT_THAT(run().sectioninfo.teamradio[0].bytes.list(), SizeIs(3));
    part<QPushButton>("radioRemove").click();
    EXPECT_THAT(run().sectioninfo.teamradio, SizeIs(1));
    m_window->selectRun(1);
    EXPECT_EQ(list.count(), 0);
    m_window->selectRun(0);
    undo(2);
    EXPECT_EQ(run().sectioninfo.teamradio, race.athletes[0].sectioninfo.teamradio);
}

TEST_F(NotesTest, MovesMarksThatAreDragged) {
    splittakerdata031 race = timedRace();
    race.athletes[0].microsplits = {{{100, 50, 1, 0}, 0}};
    ASSERT_NO_FATAL_FAILURE(open(race, true));
    ASSERT_TRUE(QTest::qWaitFor([&] { return m_window->deck().end() > 1; }, Patience));
    const auto drag = [](QWidget& widget, QPoint from, QPoint to) {
        QTest::mousePress(&widget, Qt::LeftButton, {}, from);
        for (const QPoint& place : {(from + to) / 2, to}) {
            QMouseEvent move(QEvent::MouseMove, place, widget.mapToGlobal(place), Qt::NoButton,
                             Qt::LeftButton, {});
            QApplication::sendEvent(&widget, &move);
        }
        QTest::mouseRelease(&widget, Qt::LeftButton, {}, to);
    };
    auto& lanes = notes().lanes();
    auto* const line = m_window->findChild<desktop::TimeLine*>();
    const QPoint from(line->placeOf(2), 7);
    const QPoint to = from + QPoint(60, 0);
    drag(lanes, from, to);
    const CMTime moved = run().microsplits[0].cmtime;
    EXPECT_NEAR(moved.seconds(), line->momentAt(to.x()), 0.03);
    EXPECT_TRUE(m_window->deck().index(0)->frameWithStamp(moved.value) || moved.timescale != 50);
    EXPECT_EQ(m_window->deck().index(0)->stampOf(*m_window->deck().index(0)->frameAt(moved)), moved)
        << "a frame of the film";
    drag(lanes, to, to + QPoint(1, 0));
    EXPECT_EQ(run().microsplits[0].cmtime, moved) << "a click does not move it";

    const auto splits = run().sectioninfo.cmtimes;
    const QPoint flag(line->placeOf(splits[0][0].seconds()), 4);
    drag(*line, flag, flag + QPoint(40, 0));
    EXPECT_NEAR(run().sectioninfo.cmtimes[0][0].seconds(), line->momentAt(flag.x() + 40), 0.03);
    EXPECT_GT(run().sectioninfo.times[0], race.athletes[0].sectioninfo.times[0]);
    undo(2);
    EXPECT_EQ(run().sectioninfo.cmtimes, splits);
    EXPECT_FALSE(m_window->document().isDirty());
}

TEST_F(NotesTest, PlaysTheClipsOfChosenMarksOneAfterAnother) {
    splittakerdata031 race = timedRace();
    race.athletes[0].microsplits = {
        {{100, 50, 1, 0}, 0}, {{110, 50, 1, 0}, 0}, {{600, 50, 1, 0}, 0}};
    ASSERT_NO_FATAL_FAILURE(open(race, true));
    auto& deck = m_window->deck();
    ASSERT_TRUE(QTest::qWaitFor([&] { return deck.end() > 13; }, Patience));
    notes().list().setFilter(onlyKinds(std::array{MarkKind::MicroSplit}));
    notes().list().setClipSeconds(1);
    std::vector<double> begun;
    auto* const clips = m_window->findChild<desktop::ClipPlayer*>();
    QObject::connect(clips, &desktop::ClipPlayer::began, clips,
                     [&](std::size_t, std::size_t count) {
                         begun.push_back(deck.position());
                         EXPECT_EQ(count, 2U) << "the first two reach into each other";
                     });
    press(Qt::Key_C);
    EXPECT_TRUE(deck.isPlaying());
    EXPECT_TRUE(QTest::qWaitFor([&] { return begun.size() == 2 && !deck.isPlaying(); }, Patience));
    EXPECT_NEAR(deck.position(), 13, 0.5);
    EXPECT_FALSE(clips->current());
    press(Qt::Key_C);
    deck.seek(30.0);
    QApplication::processEvents();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !clips->current(); }, Patience))
        << "who goes elsewhere has left the clips";
}

TEST(Clips, AreJoinedWhereTheyMeet) {
    EXPECT_EQ(joinedClips({{5, 7}, {1, 3}, {2, 4}, {4, 4.5}}),
              (std::vector<FilmPart>{{1, 4.5}, {5, 7}}));
    EXPECT_THAT(joinedClips({}), IsEmpty());
}

} // namespace
} // namespace kavela::test
