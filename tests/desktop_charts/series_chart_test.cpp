#include "desktop/charts/series_chart.h"

#include "common/error.h"
#include "common/temp_folder.h"
#include "desktop/charts/chart_plot.h"
#include "desktop/charts/series_labels.h"
#include "desktop/shell/theme.h"

#include "desktop_charts/chart_races.h"

#include <gmock/gmock.h>

#include <QSignalSpy>
#include <QWheelEvent>

#include <cmath>
#include <limits>

namespace kavela::test {

using namespace kavela::desktop;
using testing::ElementsAre;
using testing::HasSubstr;

namespace {

using Form = ChartSeries::Form;

constexpr double NaN = std::numeric_limits<double>::quiet_NaN();
constexpr double Day = 86400;
constexpr double March = 9199 * Day; // 2026-03-10

/// Daily values with a gap, a mean, what is usual and a measure of another size.
ChartContent heartContent() {
    ChartContent content;
    content.title = "Resting heart rate";
    content.across = ChartContent::Across::Date;
    content.yTitle = "beats per minute";
    content.rightTitle = "hours";
    content.series = {
        {"Daily", {{March, 50}, {March + Day, NaN}, {March + 2 * Day, 54}, {1e300, 48}}},
        {"Mean", {{March, 50}, {March + 2 * Day, 52}}, Form::Line, 1},
        {"Sleep", {{March, 7}, {March + 2 * Day, 8}}, Form::Steps, 2, true},
    };
    content.bands = {{"Usual", {March, March + Day, March + 2 * Day}, {48, 47, 48}, {51, 50, 51}}};
    content.emptyText = "Add a morning's heart rate.";
    return content;
}

class SeriesChartTest : public testing::Test {
protected:
    void SetUp() override {
        m_chart.show(heartContent());
        showNow(m_chart);
    }

    QPointF pixel(double x, double y) { return m_chart.plot().toPixel(x, y); }

    void turnWheel(const QPointF& at) {
        QWheelEvent event(at, m_chart.plot().mapToGlobal(at), {}, {0, 240}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&m_chart.plot(), &event);
        QCoreApplication::processEvents();
    }

    SeriesChart m_chart;
};

} // namespace

TEST_F(SeriesChartTest, GivesTheVisibleRangeOfTheVisibleSeries) {
    EXPECT_EQ(m_chart.csv(), "Date;Daily;Mean;Sleep;Usual: low;Usual: high\n"
                             "2026-03-10;50;50;7;48;51\n"
                             "2026-03-11;;;;47;50\n"
                             "2026-03-12;54;52;8;48;51\n");
    m_chart.toggleSeries(1);
    m_chart.toggleSeries(3);
    m_chart.plot().xAxis->setRange(March + Day, March + 3 * Day);
    EXPECT_EQ(m_chart.csv(), "Date;Daily;Sleep\n2026-03-12;54;8\n");
}

TEST_F(SeriesChartTest, LeavesNamesOutThatHaveNoRoomAtAll) {
    static QStringList warnings;
    warnings.clear();
    ChartContent races = heartContent();
    races.across = ChartContent::Across::Category;
    races.categories = {"WC1\nTacen", "WC2\nPraha", "WC3\nPau"};
    races.series = {{"Final", {{0, 1}, {1, 3}, {2, 2}}}};
    m_chart.show(races);
    const QtMessageHandler before = qInstallMessageHandler(
        [](QtMsgType, const QMessageLogContext&, const QString& text) { warnings.append(text); });
    for (const int width : {20, 60, 80, 100, 140}) {
        m_chart.plot().resize(width, 200);
        m_chart.plot().replot();
    }
    qInstallMessageHandler(before);
    EXPECT_EQ(warnings.join('\n').toStdString(), "");
}

TEST_F(SeriesChartTest, TellsWhatStandsAtTheCursorAndLinksCharts) {
    QSignalSpy hovered(&m_chart, &SeriesChart::hoveredAt);
    QSignalSpy ended(&m_chart, &SeriesChart::hoverEnded);
    QTest::mouseMove(&m_chart.plot(), pixel(March + 1.8 * Day, 50).toPoint());
    ASSERT_EQ(hovered.size(), 1);
    EXPECT_EQ(hovered[0][0].toDouble(), March + 2 * Day) << "at a measured day";
    for (const char* told : {"2026-03-12", "Daily", "54", "48 \u2013 51", "Sleep"})
        EXPECT_THAT(m_chart.readOutAt(March + 2 * Day).toStdString(), HasSubstr(told));
    QTest::keyClick(&m_chart.plot(), Qt::Key_Left);
    EXPECT_EQ(hovered.back()[0].toDouble(), March);
    QTest::keyClick(&m_chart.plot(), Qt::Key_Escape);
    EXPECT_EQ(ended.size(), 1);
    m_chart.showCursorAt(March + Day);
    m_chart.showCursorAt(NaN);
    EXPECT_EQ(ended.size(), 1) << "the cursor of another chart is not told again";
}

TEST_F(SeriesChartTest, KeepsTheViewAndTheHiddenWhileOnlyValuesChange) {
    m_chart.toggleSeries(1);
    turnWheel(pixel(March + Day, 50));
    const QCPRange zoomed = m_chart.plot().xAxis->range();
    ChartContent content = heartContent();
    content.series[0].points[0].setY(51);
    m_chart.show(content);
    EXPECT_EQ(m_chart.plot().xAxis->range(), zoomed);
    EXPECT_TRUE(m_chart.labels().labels()[1].isHidden);
    content.series[0].name = "Another";
    m_chart.show(content);
    EXPECT_FALSE(m_chart.plot().isZoomed());
    EXPECT_FALSE(m_chart.labels().labels()[1].isHidden);
}

TEST_F(SeriesChartTest, ZoomsTheRightHandAxisAlone) {
    const QCPRange left = m_chart.plot().yAxis->range();
    const QCPRange right = m_chart.plot().yAxis2->range();
    EXPECT_TRUE(right.contains(7) && right.contains(8) && !right.contains(50));
    const QRect rect = m_chart.plot().axisRect()->rect();
    turnWheel({rect.right() + 4.0, rect.center().y() + 0.0});
    EXPECT_EQ(m_chart.plot().yAxis->range(), left);
    EXPECT_LT(m_chart.plot().yAxis2->range().size(), right.size());
    m_chart.plot().fit();
    EXPECT_EQ(m_chart.plot().yAxis2->range(), right);
}

TEST_F(SeriesChartTest, FindsTheClickedPointByItsPlaceInTheContent) {
    ChartContent content;
    content.across = ChartContent::Across::Category;
    content.categories = {"A", "B", "C"};
    content.series = {{"Bars", {{2, 8}, {0, 4}, {1, NaN}}, Form::Bars},
                      {"Points", {{1, 6}, {0, 9}}, Form::Points, 1}};
    m_chart.show(content);
    m_chart.plot().replot();
    QSignalSpy activated(&m_chart, &SeriesChart::pointActivated);
    for (const QPointF at : {pixel(2, 3), pixel(0, 9), pixel(1, 2)})
        QTest::mouseClick(&m_chart.plot(), Qt::LeftButton, {}, at.toPoint());
    ASSERT_EQ(activated.size(), 2);
    EXPECT_EQ(activated[0], (QList<QVariant>{0, 0}));
    EXPECT_EQ(activated[1], (QList<QVariant>{1, 1}));
    EXPECT_THAT(m_chart.csv().toStdString(), HasSubstr("C;8;\n"));
}

TEST_F(SeriesChartTest, PutsStackedBarsOnEachOtherBesideTheOthers) {
    ChartContent content;
    content.across = ChartContent::Across::Category;
    content.categories = {"A", "B"};
    content.series = {{"Water", {{0, 3}, {1, 5}}, Form::StackedBars},
                      {"Gym", {{0, 2}, {1, 4}}, Form::StackedBars, 1},
                      {"Planned", {{0, 4}, {1, 4}}, Form::Bars, 2}};
    m_chart.show(content);
    m_chart.plot().replot();
    EXPECT_GE(m_chart.plot().yAxis->range().upper, 9) << "the sum has room";
    QSignalSpy activated(&m_chart, &SeriesChart::pointActivated);
    for (const QPointF at : {pixel(0.8, 4), pixel(0.8, 7), pixel(1.2, 2), pixel(1.2, 6)})
        QTest::mouseClick(&m_chart.plot(), Qt::LeftButton, {}, at.toPoint());
    ASSERT_EQ(activated.size(), 3) << "above the planned there is none";
    EXPECT_EQ(activated[0], (QList<QVariant>{0, 1}));
    EXPECT_EQ(activated[1], (QList<QVariant>{1, 1}));
    EXPECT_EQ(activated[2], (QList<QVariant>{2, 1}));
}

TEST_F(SeriesChartTest, HidesWhatSharesALabelTogetherAndTellsRowsOfItsOwn) {
    ChartContent content;
    content.across = ChartContent::Across::Category;
    content.categories = {"WC1\nTacen", "WC2\nPraha"};
    content.series = {{"Heats", {{0, 2.5}, {1, 3}}},
                      {"Final", {{1, 1}}, Form::LineAndPoints, 1},
                      {"Heats: penalty (s)", {{0, 2}, {1, 0}}, Form::Bars, 0, true}};
    content.series[2].labelOf = 0;
    content.rightHeights = 3;
    content.rowTitles = QStringList{"Race", "Phase", "Result"};
    content.rows = {{0, 0, {"WC1", "Heats", "2.5+2"}}, {1, 1, {"WC2", "Final", "1"}}};
    m_chart.show(content);
    EXPECT_EQ(m_chart.labels().labels().size(), 2U);
    EXPECT_EQ(m_chart.plot().yAxis2->range(), QCPRange(0, 6)) << "bars in the lower third";
    EXPECT_THAT(m_chart.readOutAt(0).toStdString(), HasSubstr("WC1 Tacen"));
    EXPECT_EQ(m_chart.csv(), "Race;Phase;Result\nWC1;Heats;2.5+2\nWC2;Final;1\n");
    m_chart.toggleSeries(0);
    EXPECT_EQ(m_chart.plot().plottableCount(), 1) << "the final alone";
    EXPECT_EQ(m_chart.csv(), "Race;Phase;Result\nWC2;Final;1\n");
    m_chart.isolateSeries(0);
    EXPECT_EQ(m_chart.plot().plottableCount(), 2);
}

TEST_F(SeriesChartTest, CountsPlacesFromTheTop) {
    ChartContent content;
    content.across = ChartContent::Across::Category;
    content.categories = {"A", "B"};
    content.yReversed = content.yWhole = true;
    content.series = {{"Position", {{0, 1}, {1, 30}}}};
    m_chart.show(content);
    m_chart.plot().replot();
    EXPECT_LT(pixel(0, 1).y(), pixel(0, 30).y());
    for (const double tick : m_chart.plot().yAxis->tickVector())
        if (m_chart.plot().yAxis->range().contains(tick)) {
            EXPECT_EQ(tick, std::round(tick));
            EXPECT_GE(tick, 1) << "nobody is at place 0";
        }
}

TEST_F(SeriesChartTest, SavesWhatItShowsAndRefusesOtherKinds) {
    const TempFolder folder;
    for (const char* name : {"chart.png", "chart.svg", "chart.csv"}) {
        m_chart.save(folder.path() / name);
        EXPECT_GT(std::filesystem::file_size(folder.path() / name), 50U) << name;
    }
    EXPECT_THROW(m_chart.save(folder.path() / "chart.doc"), FileError);
}

TEST_F(SeriesChartTest, SurvivesWhatNobodyMeasures) {
    ChartContent content = heartContent();
    content.series = {{"Only one", {{5e9, 1e300}, {NaN, NaN}, {March, -4}}}};
    content.bands[0].low.clear();
    m_chart.show(content);
    EXPECT_EQ(m_chart.csv(), "Date;Only one;Usual: low;Usual: high\n2026-03-10;-4;;\n");
    content.series[0].points = {{1e300, 5}, {March, NaN}};
    m_chart.show(content);
    EXPECT_EQ(m_chart.emptyMessage(), "Add a morning's heart rate.");
    EXPECT_EQ(m_chart.csv(), "");
}

} // namespace kavela::test
