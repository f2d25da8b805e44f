#pragma once

#include "desktop/barrier/slit_window.h"

#include "common/json_encode.h"
#include "common/recorders.h"
#include "common/temp_folder.h"
#include "desktop/barrier/line_overlay.h"
#include "desktop/barrier/slit_stage.h"
#include "desktop/barrier/slit_strip.h"
#include "desktop/barrier/slit_view.h"
#include "desktop/film/film_deck.h"
#include "desktop/film/film_stage.h"
#include "desktop/film/time_line.h"
#include "desktop/numbered_film.h"
#include "desktop/shell/disk_worker.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/workspace.h"
#include "desktop/taking/taking_window.h"
#include "splitdata/document.h"
#include "splittaking/marking.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QSignalSpy>
#include <QTest>
#include <QUndoStack>

#include <unistd.h>

#include <cstdlib>
#include <fstream>
#include <initializer_list>
#include <memory>
#include <stdexcept>

/// The slit picture of a film whose frames carry their numbers, and the race that its marks go to.
namespace kavela::test {

namespace fs = std::filesystem;
using namespace kavela::desktop;

inline constexpr int SlitPatience = 40000; // milliseconds
inline constexpr int SlitDigits = 16;      // over the film from left to right, the lowest first

/// Two seconds of the numbered film; they begin with its first frame.
inline fs::path slitFilm() {
    const fs::path kept = numberedFilm().parent_path() / "numbered-square-slit.mp4";
    if (fs::exists(kept))
        return kept;
    const fs::path fresh = kept.string() + '.' + std::to_string(::getpid()) + ".mp4";
    const std::string command = "ffmpeg -v error -y -i '" + numberedFilm().string() +
                                "' -c copy -t 2 '" + fresh.string() + "'";
    if (std::system(command.c_str()) != 0)
        throw std::runtime_error("failed: " + command);
    fs::rename(fresh, kept);
    return kept;
}

/// The number that stands in a column, of a line that was drawn over all digits.
inline int numberInSlit(const SlitPicture& picture, FrameNumber column) {
    const SlitTile* const tile = picture.tileOf(column);
    if (!tile)
        return -1;
    const Picture& pixels = tile->levels[0];
    int number = 0;
    for (int digit = 0; digit < SlitDigits; ++digit) {
        const int y = pixels.height * (2 * digit + 1) / (2 * SlitDigits);
        const auto at =
            static_cast<std::size_t>(y * pixels.bytesPerLine + (column - tile->first) * 4);
        if (pixels.pixels[at + 1] > 127)
            number |= 1 << digit;
    }
    return number;
}

/// Seconds from a proposed bow to the paddler.
inline constexpr double SlitBodyBehind = 0.1;

inline Crossings crossingsAt(std::initializer_list<double> seconds) {
    Crossings crossings;
    for (const double each : seconds)
        crossings.proposals.push_back(
            {static_cast<FrameNumber>(each * NumberedRate), each, 0.8,
             static_cast<FrameNumber>((each + SlitBodyBehind) * NumberedRate),
             each + SlitBodyBehind});
    return crossings;
}

class SlitWindowTest : public ::testing::Test {
protected:
    SlitWindowTest() {
        fs::create_directory(films());
        fs::copy_file(slitFilm(), film());
        m_workspace.setAlerts(&m_recorder);
        m_workspace.setAnswer([](const Alert&) { return true; });
        splittakerdata031 race;
        race.info.totalsplits = 2;
        for (const char* const name : {"Ann Lee", "Bo Fox", "Cy Dal"}) {
            athletedata031 run;
            run.names = {name};
            run.videoname = {"bridge.mp4"};
            race.athletes.push_back(run);
        }
        race.athletes.emplace_back().names = {"On another film"};
        race.athletes.back().videoname = {"other.mp4"};
        std::ofstream(films() / "race.kvx", std::ios::binary) << encode(race);
    }
    ~SlitWindowTest() override {
        if (m_taking)
            m_taking->document().discard();
        m_slit.reset();
        m_taking.reset();
        disk::waitForAll();
    }

    [[nodiscard]] fs::path films() const { return m_folder.path() / "films"; }
    [[nodiscard]] fs::path film() const { return films() / "bridge.mp4"; }
    [[nodiscard]] Autosave autosave() const {
        return Autosave(QString::fromStdString((m_folder.path() / "autosave").string()));
    }

    SlitWindow& openFilm() {
        m_slit = std::make_unique<SlitWindow>(m_workspace);
        m_slit->setAttribute(Qt::WA_DeleteOnClose, false);
        m_slit->resize(1280, 800);
        m_slit->show();
        QApplication::setActiveWindow(m_slit.get());
        EXPECT_TRUE(m_slit->open(QString::fromStdString(film().string())));
        EXPECT_TRUE(
            QTest::qWaitFor([this] { return m_slit->loader().index() != nullptr; }, SlitPatience));
        return *m_slit;
    }
    TakingWindow& openRace() {
        m_taking = std::make_unique<TakingWindow>(m_workspace, autosave());
        m_taking->setAttribute(Qt::WA_DeleteOnClose, false);
        EXPECT_TRUE(m_taking->open(QString::fromStdString((films() / "race.kvx").string())));
        return *m_taking;
    }
    /// By the mouse, across all digits of the film.
    void drawLine() {
        LineOverlay& overlay = m_slit->overlay();
        m_slit->drawLine();
        ASSERT_TRUE(
            QTest::qWaitFor([this] { return m_slit->deck().shown(0) != nullptr; }, SlitPatience));
        QApplication::processEvents(); // the film has its place
        drag(overlay, overlay.placeOf({2, 180}), overlay.placeOf({1918, 180}));
        QTest::qWait(0);
        ASSERT_THAT(m_slit->keeping().file().lines, ::testing::SizeIs(m_slit->lineNumber() + 1));
        EXPECT_NEAR(m_slit->line()->x1, 2, 4);
        EXPECT_NEAR(m_slit->line()->x2, 1918, 4);
        ASSERT_TRUE(QTest::qWaitFor(
            [this] {
                return !m_slit->loader().isReading() &&
                       m_slit->loader().picture(m_slit->lineNumber()).columns > 0;
            },
            SlitPatience));
    }
    static void drag(QWidget& widget, const QPointF& from, const QPointF& to) {
        QTest::mousePress(&widget, Qt::LeftButton, {}, from.toPoint());
        QTest::mouseMove(&widget, ((from + to) / 2).toPoint());
        QTest::mouseMove(&widget, to.toPoint());
        QTest::mouseRelease(&widget, Qt::LeftButton, {}, to.toPoint());
    }
    void press(QKeyCombination keys) {
        if (QApplication::activeWindow() != m_slit.get())
            QApplication::setActiveWindow(m_slit.get());
        QWidget* const focus = m_slit->focusWidget() ? m_slit->focusWidget() : m_slit.get();
        QTest::keyClick(focus, keys.key(), keys.keyboardModifiers());
        QApplication::processEvents();
    }
    /// A window with a line and the race, whose first run is in front.
    SlitWindow& openWithRace() {
        TakingWindow& taking = openRace();
        SlitWindow& window = openFilm();
        window.setRace(taking.document(), taking);
        drawLine();
        return window;
    }
    [[nodiscard]] FrameNumber hairFrame() const {
        return slitFrameAt(*m_slit->loader().index(), 0, m_slit->view().hair());
    }
    /// The frame of a mark on this film of 50 frames a second; -1 where none is.
    [[nodiscard]] FrameNumber markedFrame(int run, std::size_t split) const {
        const RunMarks marks = m_taking->document().marks(run);
        if (split > marks.marks.size() || marks.marks[split - 1].empty())
            return -1;
        return m_slit->loader().index()->frameAt(marks.marks[split - 1].front()).value_or(-1);
    }

    TempFolder m_folder;
    Recorder m_recorder;
    Workspace m_workspace{Preferences(m_folder.path() / "preferences.ini"), m_recorder.log(),
                          [] { return ReferenceDate{7e8}; }};
    std::unique_ptr<TakingWindow> m_taking;
    std::unique_ptr<SlitWindow> m_slit;
};

} // namespace kavela::test
