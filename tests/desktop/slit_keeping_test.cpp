#include "desktop/barrier/slit_keeping.h"

#include "common/temp_folder.h"
#include "desktop/slow_disk.h"

#include <gmock/gmock.h>

#include <QSignalSpy>
#include <QTest>

namespace kavela::test {
namespace {

using desktop::SlitKeeping;
using ::testing::IsEmpty;
using ::testing::SizeIs;

void addLine(slitfile002& file) {
    file.lines.emplace_back();
}

TEST(SlitKeepingTest, ReadsBesideTheWindowAndWritesOverNothingUntilThen) {
    const TempFolder folder;
    const QString film = QString::fromStdString((folder.path() / "river.mp4").string());
    SlitKeeping other;
    other.open(film);
    other.edit(addLine);
    SlitKeeping opened;
    const QSignalSpy failures(&opened, &SlitKeeping::failed);
    {
        const SlowDisk slow;
        other.edit(addLine);
        opened.open(film);
        EXPECT_THAT(opened.file().lines, IsEmpty()) << "nobody waits for the disk";
        opened.edit([](slitfile002& file) { file.lines.clear(); });
        EXPECT_THAT(failures, SizeIs(1));
    }
    EXPECT_TRUE(QTest::qWaitFor([&] { return opened.file().lines.size() == 2; }))
        << "with what the other window had yet to write";
    opened.edit(addLine);
    desktop::disk::waitForAll();
    EXPECT_THAT(readSlitFile(slitFileOf(film.toStdString()))->lines, SizeIs(3));
}

TEST(SlitKeepingTest, ShowsTheLinesOfTheFilmThatWasOpenedLast) {
    const TempFolder folder;
    const QString lined = QString::fromStdString((folder.path() / "lined.mp4").string());
    const QString bare = QString::fromStdString((folder.path() / "bare.mp4").string());
    SlitKeeping keeping;
    keeping.open(lined);
    keeping.edit(addLine);
    desktop::disk::waitForAll();
    {
        const SlowDisk slow;
        keeping.open(lined);
        keeping.open(bare);
    }
    desktop::disk::waitForAll();
    QTest::qWait(0); // for what both readings have to tell
    EXPECT_THAT(keeping.file().lines, IsEmpty());
}

} // namespace
} // namespace kavela::test
