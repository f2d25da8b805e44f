#include "desktop/preview/page_view.h"

#include "desktop_preview/sample_reports.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QScrollBar>
#include <QTest>
#include <QWheelEvent>

namespace kavela::test {

namespace {

using desktop::PagePlaces;
using desktop::PageView;
using testing::Contains;
using testing::ElementsAre;
using testing::Not;

class PageViewTest : public testing::Test {
protected:
    void show(const report::PagedReport& report, QSize size = {800, 600}) {
        m_view.setReport(&report);
        m_view.resize(size);
        m_view.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&m_view));
        (void)m_view.grab();
    }

    void wheel(int delta, QPointF at) {
        QWheelEvent event(at, m_view.viewport()->mapToGlobal(at), {}, {0, delta}, Qt::NoButton,
                          Qt::ControlModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(m_view.viewport(), &event);
    }

    [[nodiscard]] int scrolled() const { return m_view.verticalScrollBar()->value(); }
    [[nodiscard]] QColor pixel(QPoint at) {
        return m_view.viewport()->grab().toImage().pixelColor(at);
    }

    PageView m_view;
};

} // namespace

TEST(PagePlacesTest, FindsThePageThatIsLookedAt) {
    const PagePlaces places(3, {100, 200}, 300);
    EXPECT_EQ(places.desk(), QSize(300, 2 * 24 + 3 * 200 + 2 * 20));
    EXPECT_EQ(places.page(1), QRect(100, 244, 100, 200));
    struct Row {
        int top;
        int bottom;
        int page;
    };
    for (const Row& row : {Row{0, 150, 0}, Row{100, 400, 1}, Row{0, 700, 0}, Row{24, 444, 0},
                           Row{200, 250, 0}, Row{600, 690, 2}, Row{-50, 5000, 0}})
        EXPECT_EQ(places.mostSeen(row.top, row.bottom), row.page) << row.top;
    EXPECT_EQ(PagePlaces(0, {1, 1}, 300).desk().height(), 0);
}

TEST_F(PageViewTest, PaintsWhatIsSeenOnceAndNothingElse) {
    const NotingReport report(60);
    show(report);
    EXPECT_THAT(report.painted(), ElementsAre(0));
    m_view.goToPage(40);
    (void)m_view.grab();
    m_view.goToPage(0);
    (void)m_view.grab();
    (void)m_view.grab();
    EXPECT_THAT(report.painted(), Not(Contains(20)));
    EXPECT_EQ(std::ranges::count(report.painted(), 0), 1);
    EXPECT_EQ(std::ranges::count(report.painted(), 40), 1);
}

TEST_F(PageViewTest, GoesThroughThePagesByKeys) {
    const NotingReport report(4);
    show(report);
    const auto pageAfter = [&](Qt::Key key) {
        QTest::keyClick(&m_view, key);
        return m_view.currentPage();
    };
    EXPECT_EQ(pageAfter(Qt::Key_PageUp), 0);
    EXPECT_EQ(pageAfter(Qt::Key_PageDown), 1);
    EXPECT_EQ(pageAfter(Qt::Key_End), 3);
    EXPECT_EQ(pageAfter(Qt::Key_PageDown), 3);
    EXPECT_EQ(pageAfter(Qt::Key_PageUp), 2);
    EXPECT_EQ(pageAfter(Qt::Key_Home), 0);
    EXPECT_EQ(pageAfter(Qt::Key_Space), 0) << "a screenful is less than this page";
    EXPECT_EQ(pageAfter(Qt::Key_Space), 1);
}

TEST_F(PageViewTest, ReachesEveryPageWhenAllAreSeenAtOnce) {
    const NotingReport report(3);
    show(report, {1200, 1100});
    for (int i = 0; i < 20; ++i)
        m_view.zoomOut();
    EXPECT_EQ(m_view.verticalScrollBar()->maximum(), 0);
    for (const int page : {1, 2, 1})
        EXPECT_EQ((m_view.goToPage(page), m_view.currentPage()), page);
}

TEST_F(PageViewTest, FitsTheWidthUntilAnotherZoomIsAskedFor) {
    const NotingReport report(2);
    show(report);
    const double narrow = m_view.zoom();
    m_view.resize(1000, 600);
    EXPECT_GT(m_view.zoom(), narrow);
    EXPECT_EQ(m_view.horizontalScrollBar()->maximum(), 0);
    m_view.zoomIn();
    const double chosen = m_view.zoom();
    m_view.resize(700, 600);
    EXPECT_EQ(m_view.zoom(), chosen);
    EXPECT_GT(m_view.horizontalScrollBar()->maximum(), 0);
    m_view.fitWidth();
    EXPECT_LT(m_view.zoom(), narrow);
}

TEST_F(PageViewTest, ZoomsAtTheCursor) {
    const NotingReport report(3);
    show(report, {700, 600});
    m_view.goToPage(1);
    const double scale = m_view.zoom() * 96 / 72;
    const QPoint inSquare(24 + static_cast<int>(74 * scale), 10 + static_cast<int>(74 * scale));
    const QPoint outside = inSquare - QPoint(6, 6);
    ASSERT_EQ(pixel(inSquare), QColor(Qt::black));
    for (const int delta : {60, 60, 120, -120, 120}) {
        wheel(delta, inSquare);
        EXPECT_EQ(pixel(inSquare), QColor(Qt::black));
        EXPECT_EQ(pixel(outside), QColor(Qt::white));
    }
    EXPECT_FALSE(m_view.isFitted());
}

TEST_F(PageViewTest, ShowsAReportWithoutPagesOrNoneAtAll) {
    const NotingReport empty(0);
    show(empty);
    for (const Qt::Key key : {Qt::Key_End, Qt::Key_PageDown, Qt::Key_Space})
        QTest::keyClick(&m_view, key);
    m_view.zoomIn();
    m_view.fitWidth();
    m_view.setReport(nullptr);
    (void)m_view.grab();
    EXPECT_EQ(m_view.currentPage(), 0);
    EXPECT_THAT(empty.painted(), testing::IsEmpty());
}

} // namespace kavela::test
