#include "common/alerts.h"
#include "desktop/planning/athlete_list.h"
#include "desktop/planning/planning_window.h"
#include "desktop/shell/autosave.h"
#include "desktop/shell/workspace.h"
#include "planning/planning_file.h"
#include "planning/weeks.h"

#include <QApplication>
#include <QBuffer>
#include <QEventLoop>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>
#include <QUndoStack>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <fstream>
#include <random>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

/// The most memory that the planning of a group with a picture of every athlete takes while a coach
/// works on it, undoes all of it and does it again.
namespace {

using namespace kavela;
using namespace kavela::desktop;
using namespace std::chrono_literals;

constexpr int Athletes = 10;
constexpr int Edits = 200;
constexpr int PictureBytes = 3'000'000;
constexpr int MillisecondsPerEdit = 50; ///< so that work is kept meanwhile, too
constexpr double AllowedMegabytes = 300;

/// As a camera makes them: twelve megapixels with noise, in about three megabytes.
Blob picture(unsigned seed) {
    QImage image(4000, 3000, QImage::Format_RGB32);
    std::minstd_rand noise(seed);
    for (int y = 0; y < image.height(); ++y) {
        auto* const line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x)
            line[x] = qRgb(x * 200 / image.width(), y * 200 / image.height(),
                           static_cast<int>(noise() >> 8) % 56);
    }
    QByteArray bytes;
    for (int quality = 95; quality > 0; quality -= 5) {
        bytes.clear();
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::WriteOnly);
        image.save(&buffer, "JPG", quality);
        if (bytes.size() <= PictureBytes)
            break;
    }
    bytes.append(std::max<qsizetype>(0, PictureBytes - bytes.size()), '\0'); // behind its end
    return Blob{std::vector<unsigned char>(bytes.begin(), bytes.end())};
}

planningdatac_v6 planning() {
    planningdatac_v6 plan;
    for (unsigned number = 0; number < Athletes; ++number) {
        athletesplanning_v6& athlete = plan.athletes.emplace_back();
        athlete.name = "Athlete " + std::to_string(number + 1);
        athlete.photo = picture(number + 1);
        yearsplannings_v6& season = athlete.year.emplace_back();
        season.year = 2026;
        season.micros = newSeason(2026y / 1 / 1);
    }
    return plan;
}

/// Lets the window live for a while: what it paints, reads and keeps is done meanwhile.
void live(int milliseconds) {
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

/// Nobody sees a message box.
class PrintedAlerts : public Alerts {
public:
    void show(const Alert& alert) override {
        std::fprintf(stderr, "%s %s\n", alert.title.c_str(), alert.text.c_str());
    }
};

/// Unlike the figure of getrusage, this one starts anew with the program.
double peakMegabytes() {
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);) {
        std::istringstream words(line);
        std::string name;
        double kilobytes = 0;
        if (words >> name >> kilobytes && name == "VmHWM:")
            return kilobytes * 1024 / 1e6;
    }
    return 0;
}

void edit(PlanningWindow& window, int number) {
    const auto athlete = static_cast<std::size_t>(number % Athletes);
    window.athletes().chooseAthlete(athlete);
    window.document().editSeason({athlete, 0}, "week", [&](yearsplannings_v6& season) {
        const auto week = static_cast<std::size_t>(number) % season.micros.size();
        season.micros[week].event = "Race " + std::to_string(number);
    });
}

int measure(const QString& file, const QTemporaryDir& folder) {
    Workspace workspace(
        Preferences(folder.path().toStdString() + "/preferences.ini"), [](std::string_view) {},
        systemNow);
    PrintedAlerts alerts;
    workspace.setAlerts(&alerts);
    workspace.setAnswer([](const Alert&) { return true; }); // to replace the file
    PlanningWindow window(workspace, Autosave(folder.filePath("kept")));
    window.setAttribute(Qt::WA_DeleteOnClose, false);
    if (!window.open(file))
        return 1;
    window.resize(1280, 800);
    window.show();
    live(1000);
    std::printf("planning with %d pictures of %.0f MB: opened %.0f MB at most\n", Athletes,
                PictureBytes / 1e6, peakMegabytes());
    for (int number = 0; number < Edits; ++number) {
        edit(window, number);
        live(MillisecondsPerEdit);
    }
    std::printf("%d edits: %.0f MB at most\n", Edits, peakMegabytes());
    window.document().undoStack().setIndex(0);
    window.document().undoStack().setIndex(Edits);
    if (!window.save())
        return 1;
    live(2000);
    const double peak = peakMegabytes();
    std::printf("undone, done again and saved: %.0f MB at most, allowed %.0f MB\n", peak,
                AllowedMegabytes);
    return peak <= AllowedMegabytes ? 0 : 1;
}

} // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    if (argc == 2) // in a process of its own: making pictures takes more than looking at them
        return savePlanningFile(planning(), argv[1], [](std::string_view) {}) ? 0 : 1;
    const QTemporaryDir folder;
    const QString file = folder.filePath("group.planning");
    if (QProcess::execute(QApplication::applicationFilePath(), {file}) != 0)
        return 1;
    return measure(file, folder);
}
