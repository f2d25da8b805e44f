#include "desktop/charts/sensor_chart.h"

#include "common/temp_folder.h"
#include "desktop/charts/sensor_drawing.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QSignalSpy>
#include <QWheelEvent>

#include <cmath>
#include <random>

namespace kavela::test {

using namespace kavela::desktop;
using testing::HasSubstr;

namespace {

using Values = std::vector<double>;
constexpr double Missing = std::numeric_limits<double>::quiet_NaN();

std::shared_ptr<const Values> shared(Values values) {
    return std::make_shared<Values>(std::move(values));
}

Values every(double step, std::size_t count, double first = 0) {
    Values times;
    for (std::size_t i = 0; i < count; ++i)
        times.push_back(first + step * static_cast<double>(i));
    return times;
}

DrawnSeries drawn(Values times, Values values) {
    const SensorSeries series{.name = "a",
                              .unit = {},
                              .times = shared(std::move(times)),
                              .values = shared(std::move(values))};
    return {series, std::make_shared<SamplePyramid>(series.values), joinedGap(*series.times)};
}

} // namespace

TEST(SamplePyramid, IsWhatLookingAtEverySampleGives) {
    std::mt19937 dice(3);
    std::normal_distribution<double> value(0, 10);
    for (const std::size_t size : {0U, 1U, 15U, 16U, 17U, 256U, 257U, 5000U}) {
        Values values;
        for (std::size_t i = 0; i < size; ++i)
            values.push_back(dice() % 7 == 0 ? Missing : value(dice));
        const SamplePyramid pyramid(shared(values));
        for (int i = 0; i < 400; ++i) {
            const std::size_t a = dice() % (size + 1);
            const std::size_t b = dice() % (size + 3);
            Extent expected;
            for (std::size_t at = a; at < std::min(b, size); ++at)
                expected.add(values[at]);
            const Extent found = pyramid.over(a, b);
            ASSERT_EQ(found.low, expected.low) << size << ": " << a << " to " << b;
            ASSERT_EQ(found.high, expected.high) << size << ": " << a << " to " << b;
        }
    }
}

TEST(SensorLines, JoinWhatBelongsTogetherAtEveryZoom) {
    // 100 s at 100 a second, a hole of 5 s at 50 s, one of 1 s at 20 s, one missing value at 80 s.
    Values times;
    Values values;
    for (int i = 0; i < 10000; ++i) {
        const double time = i / 100.0;
        if ((time >= 20 && time < 21) || (time >= 50 && time < 55))
            continue;
        times.push_back(time);
        values.push_back(i == 8000 ? Missing : std::sin(time));
    }
    values[3] = 40; // one hit
    const DrawnSeries series = drawn(times, values);
    const auto made = [&](double from, double to) {
        const SensorScale scale{{0, 0, 400, 100}, from, to, -1, 50};
        return linesOf(series, scale, 400);
    };
    EXPECT_EQ(made(19, 22).lines.size(), 1U);
    EXPECT_EQ(made(49, 56).lines.size(), 2U);
    EXPECT_EQ(made(79, 81).lines.size(), 2U) << "a missing value is no zero";

    const std::vector<QRectF> columns = made(0, 100).columns;
    ASSERT_GT(columns.size(), 300U);
    const auto top = std::ranges::min(columns, {}, &QRectF::top).top();
    EXPECT_NEAR(top, 100 - 41.0 / 51 * 100, 0.01) << "the hit is not lost between the columns";
    double widest = 0;
    for (std::size_t i = 1; i < columns.size(); ++i) {
        widest = std::max(widest, columns[i].left() - columns[i - 1].right());
        if (columns[i].left() - columns[i - 1].right() < 5) {
            EXPECT_LE(columns[i].top(), columns[i - 1].bottom() + 1e-9) << "joined at " << i;
            EXPECT_GE(columns[i].bottom(), columns[i - 1].top() - 1e-9) << "joined at " << i;
        }
    }
    EXPECT_NEAR(widest, 20, 1.5) << "the hole of 5 s is one of 20 columns";
}

TEST(SensorLines, ThinSeriesAreJoinedInTheirOwnRhythm) {
    EXPECT_EQ(joinedGap(every(0.01, 1000)), 2);
    EXPECT_EQ(joinedGap(every(5, 100)), 12.5);
    const SensorSeries heart{"hr", "bpm", shared(every(5, 10)), shared(every(1, 10, 100))};
    EXPECT_EQ(valueAt(heart, 12.6), 103);
    EXPECT_EQ(valueAt(heart, 45 + 7), std::nullopt) << "after its end";
}

TEST(SensorChart, ManyHoursAndOddValuesAreTold) {
    EXPECT_EQ(momentText(59.999), "1:00.00");
    EXPECT_EQ(momentText(-3, 0), "-0:03");
    EXPECT_EQ(momentText(3723.5, 1), "1:02:03.5");
    EXPECT_EQ(niceTimeStep(7200, 10), 900);
    EXPECT_EQ(niceStep(0.9, 5), 0.2);
}

class SensorCharts : public testing::Test {
protected:
    SensorCharts() {
        for (SensorChart* chart : {&m_chart, &m_other}) {
            chart->resize(800, 200);
            chart->setSeries({{.name = "a",
                               .unit = "g",
                               .times = shared(every(0.01, 10001)),
                               .values = shared(every(1, 10001))}});
            chart->show();
        }
        const auto share = [](SensorChart& from, SensorChart& to) {
            QObject::connect(&from, &SensorChart::viewChanged, &to, &SensorChart::setView);
            QObject::connect(&from, &SensorChart::hoveredAt, &to, &SensorChart::showCursorAt);
            QObject::connect(&from, &SensorChart::hoverEnded, &to, &SensorChart::hideCursor);
        };
        share(m_chart, m_other);
        share(m_other, m_chart);
    }

    void mouse(QEvent::Type type, double time, Qt::MouseButton button,
               Qt::KeyboardModifiers modifiers = {}) {
        const QPointF at(m_chart.pixelAt(time), 100);
        QMouseEvent event(type, at, m_chart.mapToGlobal(at), button,
                          type == QEvent::MouseButtonRelease ? Qt::NoButton : button, modifiers);
        QApplication::sendEvent(&m_chart, &event);
    }
    void drag(double from, double to, Qt::MouseButton button,
              Qt::KeyboardModifiers modifiers = {}) {
        mouse(QEvent::MouseButtonPress, from, button, modifiers);
        mouse(QEvent::MouseMove, (from + to) / 2, button, modifiers);
        mouse(QEvent::MouseMove, to, button, modifiers);
        mouse(QEvent::MouseButtonRelease, to, button, modifiers);
    }

    SensorChart m_chart;
    SensorChart m_other;
};

TEST_F(SensorCharts, ShareViewAndCursorInARing) {
    QSignalSpy changes(&m_chart, &SensorChart::viewChanged);
    const QPointF at(m_other.pixelAt(25), 100);
    QWheelEvent wheel(at, m_other.mapToGlobal(at), {}, {0, 120}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(&m_other, &wheel);
    EXPECT_EQ(changes.size(), 1);
    EXPECT_EQ(m_chart.view(), m_other.view());
    EXPECT_NEAR(m_chart.pixelAt(25), at.x(), 0.01) << "what is under the cursor stays there";
    m_chart.showCursorAt(30);
    EXPECT_EQ(m_other.cursor(), 30);
    m_other.hideCursor();
    EXPECT_EQ(m_chart.cursor(), std::nullopt);
    m_chart.fit();
    EXPECT_EQ(m_other.view(), std::pair(0.0, 100.0));
}

TEST_F(SensorCharts, ShowTheCurveWhileTheFocusAndTheCursorStandOnIt) {
    m_chart.showCursorAt(30); // on a value, which gets a dot
    QApplication::setActiveWindow(&m_chart);
    m_chart.clearFocus();
    const QImage before = m_chart.grab().toImage();
    m_chart.setFocus();
    ASSERT_TRUE(m_chart.hasFocus());
    const QImage focused = m_chart.grab().toImage();
    const QRect inside = focused.rect().adjusted(2, 2, -2, -2);
    EXPECT_EQ(focused.copy(inside), before.copy(inside)) << "the frame alone is added";
    EXPECT_NE(focused, before);
}

TEST_F(SensorCharts, DragsSelectPanAndShift) {
    QSignalSpy selected(&m_chart, &SensorChart::rangeSelected);
    drag(20, 40, Qt::LeftButton);
    EXPECT_NEAR(m_chart.view().first, 20, 0.01);
    EXPECT_NEAR(m_chart.view().second, 40, 0.01);
    // While the view moves, a moment stays under the mouse: the later steps begin at its new place.
    mouse(QEvent::MouseButtonPress, 30, Qt::MiddleButton);
    mouse(QEvent::MouseMove, 35, Qt::MiddleButton);
    mouse(QEvent::MouseButtonRelease, 30, Qt::MiddleButton);
    EXPECT_NEAR(m_chart.view().first, 15, 0.01);
    m_chart.setDragZooms(false);
    drag(20, 25, Qt::LeftButton);
    EXPECT_NEAR(m_chart.view().first, 15, 0.01);
    ASSERT_EQ(selected.size(), 2);
    EXPECT_NEAR(selected.back()[1].toDouble(), 25, 0.01);
    double shift = 0;
    QObject::connect(&m_chart, &SensorChart::shiftDragged, [&](double by) { shift += by; });
    drag(20, 23, Qt::LeftButton, Qt::ShiftModifier);
    EXPECT_NEAR(shift, 3, 0.01);
}

TEST_F(SensorCharts, SavesWhatIsSeen) {
    const TempFolder folder;
    m_chart.setView(10, 10.02);
    m_chart.save(folder.path() / "a.csv");
    EXPECT_EQ(contentOf(folder.path() / "a.csv"),
              "Time (s);a (g)\n10;1000\n10.01;1001\n10.02;1002\n");
    m_chart.save(folder.path() / "a.svg");
    EXPECT_THAT(contentOf(folder.path() / "a.svg"), HasSubstr("<polyline"));
    m_chart.save(folder.path() / "a.png");
    EXPECT_THAT(contentOf(folder.path() / "a.png"), HasSubstr("PNG"));
    EXPECT_ANY_THROW(m_chart.save(folder.path() / "a.doc"));
}

} // namespace kavela::test
