#include "desktop/desktop.h"
#include "desktop/race/frozen_table.h"
#include "desktop/race/race_view.h"
#include "desktop/race/race_window.h"
#include "sample/season.h"
#include "splitdata/loader.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QScrollBar>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <string_view>

/// What a coach waits for in the desktop program: a race opened and painted, scrolling and sorting
/// a long table.
namespace {

using namespace kavela;
using namespace kavela::desktop;

constexpr int Repetitions = 9;

double median(std::vector<double> values) {
    std::ranges::sort(values);
    return values[values.size() / 2];
}

/// Milliseconds until `act` is done and everything it changed is painted.
template <class Act>
double painted(Act act) {
    QElapsedTimer timer;
    timer.start();
    act();
    QApplication::processEvents();
    QApplication::sendPostedEvents();
    QApplication::processEvents();
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

double residentMegabytes() {
    std::ifstream status("/proc/self/statm");
    double pages = 0;
    status >> pages >> pages;
    return pages * 4096 / 1e6;
}

/// A large file is read beside the windows.
void openAndWait(Desktop& program, const QString& path) {
    program.open(path);
    while (program.isOpening())
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

/// The largest race of the sample season with its runs repeated up to a number.
std::filesystem::path raceOf(std::size_t runs, const QTemporaryDir& folder) {
    for (const SampleFile& file : sampleSeason()) {
        if (file.name != "races/riverside_cup.kvx")
            continue;
        const std::filesystem::path path =
            folder.path().toStdString() + "/race" + std::to_string(runs) + ".kvx";
        std::ofstream(path, std::ios::binary) << file.content;
        splittakerdata031 document = recogniseSplitFile(path, {}, systemNow).document;
        const std::size_t some = document.athletes.size();
        document.athletes.reserve(runs);
        for (std::size_t i = some; i < runs; ++i)
            document.athletes.push_back(document.athletes[i % some]);
        (void)saveSplitFile(document, path, {});
        return path;
    }
    return {};
}

void measureRace(std::size_t runs) {
    const QTemporaryDir folder;
    const QString path = QString::fromStdString(raceOf(runs, folder).string());
    Workspace workspace(
        Preferences(folder.path().toStdString() + "/preferences.ini"), [](std::string_view) {},
        systemNow);
    workspace.setPreference("colorMode", std::string("Training"));
    std::vector<double> opened;
    for (int i = 0; i < Repetitions; ++i) {
        Desktop program(workspace);
        opened.push_back(painted([&] { openAndWait(program, path); }));
    }
    Desktop program(workspace);
    openAndWait(program, path);
    FrozenTable& table = program.windowsOf<RaceWindow>().front()->table();
    double scroll = 0;
    QScrollBar& bar = *table.verticalScrollBar();
    for (int at = 0; at <= bar.maximum(); at += std::max(1, bar.maximum() / 200))
        scroll = std::max(scroll, painted([&] { bar.setValue(at); }));
    double sort = 0;
    for (int column = 0; column < table.model()->columnCount(); ++column)
        sort = std::max(sort, painted([&] { table.sortByColumn(column, Qt::AscendingOrder); }));
    const double select = painted([&] { table.selectRow(5); });
    const double colours = painted([&] { workspace.setPreference("penaltiesIncluded", true); });
    std::printf("%4zu runs: opened and painted %6.1f ms (median), worst scroll %5.1f ms, worst "
                "sort %5.1f ms,\n           selection %5.1f ms, penalties included %5.1f ms, "
                "memory %5.0f MB\n",
                runs, median(opened), scroll, sort, select, colours, residentMegabytes());
}

} // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    for (const std::size_t runs : {std::size_t{60}, std::size_t{2000}})
        measureRace(runs);
}
