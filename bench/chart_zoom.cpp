#include "desktop/charts/sensor_chart.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <random>

/// What a step of zooming costs in a chart of four recordings of two hours at 100 samples a second,
/// laid over each other: a frame on the screen lasts 16 ms.
namespace {

using namespace kavela::desktop;

constexpr std::size_t Samples = 720000;
constexpr std::size_t Recordings = 4;

std::vector<SensorSeries> recordings() {
    auto times = std::make_shared<std::vector<double>>();
    for (std::size_t i = 0; i < Samples; ++i)
        times->push_back(static_cast<double>(i) / 100);
    std::vector<SensorSeries> all;
    std::mt19937 dice(7);
    std::normal_distribution<double> noise(0, 0.6);
    for (std::size_t slot = 0; slot < Recordings; ++slot) {
        auto values = std::make_shared<std::vector<double>>();
        for (const double time : *times)
            values->push_back(3 * std::sin(time * 8) + noise(dice));
        SensorSeries series;
        series.name = QStringLiteral("Recording %1").arg(slot + 1);
        series.unit = "m/s²";
        series.times = times;
        series.values = std::move(values);
        series.slot = slot;
        series.offset = 0.4 * static_cast<double>(slot);
        all.push_back(std::move(series));
    }
    return all;
}

/// Milliseconds for one notch of the wheel, painted.
double step(SensorChart& chart, int direction) {
    const QPointF at(0.6 * chart.width(), 0.5 * chart.height());
    QWheelEvent event(at, chart.mapToGlobal(at), {}, {0, 120 * direction}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QElapsedTimer timer;
    timer.start();
    QApplication::sendEvent(&chart, &event);
    chart.repaint();
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

void report(const char* what, std::vector<double> times) {
    std::ranges::sort(times);
    std::printf("%s: median %.2f ms, worst %.2f ms of %zu steps (16 ms are a frame)\n", what,
                times[times.size() / 2], times.back(), times.size());
}

} // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    SensorChart chart;
    chart.resize(1280, 400);
    chart.show();
    QApplication::processEvents(); // nothing is painted before the window is on the screen
    QElapsedTimer timer;
    timer.start();
    chart.setSeries(recordings());
    std::printf("made and shown: %.0f ms\n", static_cast<double>(timer.elapsed()));
    chart.repaint();
    // In and out again; the best of several rounds tells a step from what else the machine does.
    constexpr int Steps = 50;
    std::vector<double> zooms(2 * Steps, 1e9);
    for (int round = 0; round < 5; ++round)
        for (int i = 0; i < 2 * Steps; ++i) {
            double& best = zooms[static_cast<std::size_t>(i)];
            best = std::min(best, step(chart, i < Steps ? 1 : -1));
        }
    report("chart zoom, 4 x 720000 samples", std::move(zooms));
    std::vector<double> cursors;
    for (int x = 100; x < 1200; x += 10) {
        timer.restart();
        chart.showCursorAt(chart.timeAt(x));
        chart.repaint();
        cursors.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6);
    }
    report("cursor moved", std::move(cursors));
}
