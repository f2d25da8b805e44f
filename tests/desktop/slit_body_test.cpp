#include "desktop/slit_fixture.h"

#include <QComboBox>

/// The point of a boat that is timed, what was found before, and lines of another film.
namespace kavela::test {
namespace {

using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::SizeIs;

TEST_F(SlitWindowTest, ProposalsAreOfThePointThatIsTimed) {
    SlitWindow& window = openWithRace();
    window.search().keep(lineOf(*window.line()), boatOf(*window.line()),
                         crossingsAt({0.4, 1.0, 1.6}));
    press(Qt::Key_PageDown);
    EXPECT_EQ(hairFrame(), 20);
    press(Qt::Key_Return);
    window.setTimingPoint(TimingPoint::Body);
    EXPECT_THAT(window.told().toStdString(), HasSubstr("A mark of this line was made before"));
    press(Qt::Key_PageUp);
    EXPECT_EQ(hairFrame(), 25);
    press(Qt::Key_PageDown);
    EXPECT_EQ(hairFrame(), 55);
    press(Qt::Key_Delete);
    EXPECT_THAT(window.proposals(), SizeIs(2));
    window.setTimingPoint(TimingPoint::Bow);
    EXPECT_THAT(window.proposals(), SizeIs(2)) << "refused is the boat";
    press(Qt::CTRL | Qt::Key_Z);
    EXPECT_EQ(window.marking().point(), TimingPoint::Body);
    press(Qt::CTRL | Qt::Key_Z);
    EXPECT_THAT(window.proposals(), SizeIs(3));
}

TEST_F(SlitWindowTest, KeepsWhatWasFoundUntilTheFilmIsOpenedAgain) {
    SlitWindow& window = openWithRace();
    Crossings found = crossingsAt({0.4, 1.0, 1.6});
    found.frames = window.loader().index()->frameCount();
    window.search().keep(lineOf(*window.line()), boatOf(*window.line()), found);
    emit window.search().found();
    press(Qt::Key_PageDown);
    press(Qt::Key_Delete);
    disk::waitForAll();
    m_slit.reset();
    SlitWindow& again = openFilm();
    EXPECT_TRUE(QTest::qWaitFor([&] { return again.proposals().size() == 2; }, SlitPatience))
        << "without another search";
    press(Qt::CTRL | Qt::Key_Z);
    EXPECT_THAT(again.proposals(), SizeIs(2)) << "finding is no step";
    again.turnArrow();
    EXPECT_THAT(again.proposals(), IsEmpty()) << "it was looked for from the other side";
    press(Qt::CTRL | Qt::Key_Z);
    EXPECT_THAT(again.proposals(), SizeIs(2));
}

/// A film of each run, by the same camera.
TEST_F(SlitWindowTest, TakesOverTheLinesOfTheFilmBesideIt) {
    openFilm();
    drawLine();
    m_slit->setTimingPoint(TimingPoint::Body);
    disk::waitForAll();
    fs::copy_file(film(), films() / "next.mp4");
    ASSERT_TRUE(m_slit->open(QString::fromStdString((films() / "next.mp4").string())));
    ASSERT_TRUE(QTest::qWaitFor(
        [this] { return m_slit->loader().index() && m_slit->keeping().neighbour(); },
        SlitPatience));
    EXPECT_EQ(m_slit->line(), nullptr);
    EXPECT_EQ(m_slit->marking().point(), TimingPoint::Body) << "one point for one race";
    EXPECT_THAT(m_slit->marking().drawingHint().toStdString(), HasSubstr("“bridge”"));
    press(Qt::Key_L);
    ASSERT_TRUE(m_slit->line());
    EXPECT_NEAR(m_slit->line()->x2, 1918, 4);
    m_slit->setTimingPoint(TimingPoint::Bow);
    EXPECT_THAT(m_slit->told().toStdString(), HasSubstr("“bridge” is timed at the body"));
    press(Qt::CTRL | Qt::Key_Z);
    EXPECT_THAT(m_slit->told().toStdString(), Not(HasSubstr("is timed at")));
    press(Qt::CTRL | Qt::Key_Z);
    EXPECT_EQ(m_slit->line(), nullptr);

    slitfile002 other = readSlitFile(slitFileOf(film())).value();
    other.width = 640;
    writeSlitFile(other, slitFileOf(film()));
    ASSERT_TRUE(m_slit->open(QString::fromStdString((films() / "next.mp4").string())));
    ASSERT_TRUE(QTest::qWaitFor(
        [this] { return m_slit->loader().index() && m_slit->keeping().neighbour(); },
        SlitPatience));
    press(Qt::Key_L);
    EXPECT_EQ(m_slit->line(), nullptr);
    EXPECT_THAT(m_slit->told().toStdString(), HasSubstr("picture of 640 ×"));
}

} // namespace
} // namespace kavela::test
