#include "desktop/charts/chart_plot.h"
#include "desktop/charts/gap_chart.h"
#include "desktop/charts/read_out.h"
#include "desktop/charts/series_labels.h"

#include "desktop_charts/chart_races.h"

#include <gmock/gmock.h>

#include <QSignalSpy>
#include <QWheelEvent>

namespace kavela::test {

using namespace kavela::desktop;
using testing::ElementsAre;

namespace {

/// A gap chart with all four runs on the screen.
class Navigation : public testing::Test {
protected:
    void SetUp() override {
        m_chart.setRace(chartRaceSet());
        m_chart.setSelection({0, 1, 2, 3});
        showNow(m_chart);
    }

    ChartPlot& plot() { return m_chart.plot(); }
    QCPRange x() { return plot().xAxis->range(); }
    QCPRange y() { return plot().yAxis->range(); }

    void turnWheel(const QPointF& at, int notches) {
        QWheelEvent event(at, plot().mapToGlobal(at), {}, {0, 120 * notches}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&plot(), &event);
        QCoreApplication::processEvents();
    }

    void drag(Qt::MouseButton button, const QPointF& from, const QPointF& to) {
        const auto send = [&](QEvent::Type type, const QPointF& at, Qt::MouseButtons down) {
            QMouseEvent event(type, at, plot().mapToGlobal(at),
                              type == QEvent::MouseMove ? Qt::NoButton : button, down,
                              Qt::NoModifier);
            QCoreApplication::sendEvent(&plot(), &event);
        };
        send(QEvent::MouseButtonPress, from, button);
        send(QEvent::MouseMove, (from + to) / 2, button);
        send(QEvent::MouseMove, to, button);
        send(QEvent::MouseButtonRelease, to, Qt::NoButton);
        QCoreApplication::processEvents();
    }

    void clickLabel(int id) {
        QTest::mouseClick(&plot(), Qt::LeftButton, {},
                          m_chart.labels().placeOf(id).value().toPoint());
        QCoreApplication::processEvents();
    }

    QStringList shownNames() {
        QStringList names;
        for (int i = 0; i < plot().graphCount(); ++i)
            names << plot().graph(i)->name();
        return names;
    }

    GapChart m_chart;
};

} // namespace

TEST_F(Navigation, WheelZoomsAtTheCursor) {
    const QPointF cursor = plot().toPixel(2, 1);
    const QCPRange before = x();
    turnWheel(cursor, 2);
    EXPECT_LT(x().size(), before.size());
    EXPECT_NEAR(plot().xAxis->pixelToCoord(cursor.x()), 2, 0.01)
        << "the place stays under the cursor";
    EXPECT_NEAR(plot().yAxis->pixelToCoord(cursor.y()), 1, 0.01);
}

TEST_F(Navigation, WheelOverAnAxisZoomsThatAxisAlone) {
    const QRect rect = plot().axisRect()->rect();
    const QCPRange wideX = x();
    const QCPRange wideY = y();
    turnWheel({static_cast<double>(rect.center().x()), rect.bottom() + 10.0}, 1);
    EXPECT_LT(x().size(), wideX.size());
    EXPECT_EQ(y(), wideY);
    plot().fit();
    turnWheel({rect.left() - 10.0, static_cast<double>(rect.center().y())}, 1);
    EXPECT_EQ(x(), wideX);
    EXPECT_LT(y().size(), wideY.size());
}

TEST_F(Navigation, NobodyGetsLostOutsideTheData) {
    const QCPRange wide = x();
    const QPointF centre = plot().toPixel(1.5, 1);
    turnWheel(centre, -20);
    EXPECT_EQ(x(), wide);
    EXPECT_FALSE(plot().isZoomed()) << "everything is in view again";
    turnWheel(centre, 3);
    drag(Qt::MiddleButton, centre, centre + QPointF(4000, 0));
    EXPECT_EQ(x().lower, wide.lower);
    turnWheel(centre, 1000);
    EXPECT_GT(x().size(), 0);
}

TEST_F(Navigation, LeftDragZoomsMiddleDragPansDoubleClickFits) {
    const QCPRange wideX = x();
    const QCPRange wideY = y();
    drag(Qt::LeftButton, plot().toPixel(1, 1), plot().toPixel(2, 1));
    EXPECT_NEAR(x().lower, 1, 0.02);
    EXPECT_NEAR(x().upper, 2, 0.02);
    EXPECT_NEAR(y().size(), wideY.size(), 0.05) << "a flat drag leaves the other axis alone";

    const QPointF middle = plot().axisRect()->rect().center();
    drag(Qt::MiddleButton, middle, middle - QPointF(50, 0));
    EXPECT_GT(x().lower, 1.01);
    EXPECT_NEAR(x().size(), 1, 0.02);

    QTest::mouseDClick(&plot(), Qt::LeftButton, {}, middle.toPoint());
    EXPECT_EQ(x(), wideX);
    EXPECT_EQ(y(), wideY);
}

TEST_F(Navigation, AChosenViewStaysWhileTheSelectionChanges) {
    drag(Qt::LeftButton, plot().toPixel(1, 1), plot().toPixel(2, 1));
    const QCPRange chosen = x();
    m_chart.setSelection({0, 1});
    EXPECT_EQ(x(), chosen);
    m_chart.setRace(chartRaceSet());
    m_chart.setSelection({0, 1});
    EXPECT_GT(x().size(), 3) << "another race is shown whole";
}

TEST_F(Navigation, CsvHoldsTheVisibleRangeOfTheShownRuns) {
    m_chart.setSelection({1, 2, 3});
    m_chart.toggleSeries(seriesId(2));
    EXPECT_EQ(m_chart.csv().toStdString(),
              "Section;Title;Bea: gap;Bea: in the section;Dee: gap;Dee: in the section\n"
              "1;Start;0.5;0.5;1;1\n2;Pool;0;-0.5;3;2\n3;Finish;1;1;;\n");
    drag(Qt::LeftButton, plot().toPixel(1.1, 1), plot().toPixel(1.9, 1));
    EXPECT_EQ(m_chart.csv().section('\n', 1), "2;Pool;0;-0.5;3;2\n");
}

TEST_F(Navigation, LabelClickHidesDoubleClickIsolates) {
    clickLabel(1);
    EXPECT_EQ(shownNames(), QStringList({"Ann", "Cyd", "Dee"}));
    clickLabel(1);
    EXPECT_EQ(plot().graphCount(), 4) << "a hidden label can still be clicked";

    const auto doubleClick = [this] {
        clickLabel(2);
        QTest::mouseDClick(&plot(), Qt::LeftButton, {},
                           m_chart.labels().placeOf(2).value().toPoint());
        QCoreApplication::processEvents();
    };
    doubleClick();
    EXPECT_EQ(shownNames(), QStringList({"Cyd"}));
    doubleClick();
    EXPECT_EQ(plot().graphCount(), 4);
}

TEST_F(Navigation, KeysHideIsolateAndReadOut) {
    plot().setFocus();
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Space})
        QTest::keyClick(&plot(), key);
    EXPECT_EQ(plot().graphCount(), 3);
    QTest::keyClick(&plot(), Qt::Key_Space);
    QTest::keyClick(&plot(), Qt::Key_Return);
    EXPECT_EQ(plot().graphCount(), 1);

    const auto* readOut = plot().findChild<ReadOut*>();
    QTest::keyClick(&plot(), Qt::Key_Right);
    QTest::keyClick(&plot(), Qt::Key_Right);
    EXPECT_TRUE(readOut->isVisible());
    EXPECT_TRUE(readOut->text().contains("After Pool"));
    QTest::keyClick(&plot(), Qt::Key_Escape);
    EXPECT_FALSE(readOut->isVisible());

    QTest::keyClick(&plot(), Qt::Key_Plus);
    EXPECT_TRUE(plot().isZoomed());
    QTest::keyClick(&plot(), Qt::Key_0);
    EXPECT_FALSE(plot().isZoomed());
}

TEST_F(Navigation, ClickOnALineLeadsToItsRun) {
    QSignalSpy activated(&m_chart, &Chart::runActivated);
    QTest::mouseClick(&plot(), Qt::LeftButton, {}, plot().toPixel(2.5, 3).toPoint());
    ASSERT_EQ(activated.size(), 1);
    EXPECT_EQ(activated[0][0].value<std::size_t>(), 2U)
        << "only one run is three seconds behind there";
}

} // namespace kavela::test
