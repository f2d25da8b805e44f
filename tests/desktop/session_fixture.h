#pragma once

#include "common/json_encode.h"
#include "common/recorders.h"
#include "common/temp_folder.h"
#include "desktop/saving.h"
#include "desktop/sessions/replay.h"
#include "desktop/sessions/session_exports.h"
#include "desktop/sessions/session_tables.h"
#include "desktop/sessions/session_view.h"
#include "desktop/sessions/session_window.h"
#include "desktop/shell/workspace.h"
#include "sample/recordings.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QTest>

#include <optional>

namespace kavela::test {

/// Windows of sessions in a folder of their own.
class SessionFixture : public ::testing::Test {
protected:
    SessionFixture() {
        m_workspace.setAlerts(&m_recorder);
        m_workspace.setAnswer([this](const Alert& question) {
            m_questions.push_back(question.text);
            return m_isYes;
        });
    }

    QString path(const char* name) const {
        return QString::fromStdString((m_folder.path() / name).string());
    }

    QString add(const char* name, const std::string& content) const {
        return QString::fromStdString(m_folder.add(name, content).string());
    }

    std::unique_ptr<desktop::SessionWindow> makeWindow() {
        auto window = std::make_unique<desktop::SessionWindow>(m_workspace,
                                                               desktop::Autosave(path("autosave")));
        window->setAttribute(Qt::WA_DeleteOnClose, false);
        window->setAskPowerMeter([this](const QString& question) {
            m_questions.push_back(question.toStdString());
            return std::optional(m_isYes);
        });
        window->startNew(path("new.bms"));
        window->show();
        QApplication::setActiveWindow(window.get());
        QApplication::processEvents();
        return window;
    }

    /// Opens a file, and waits for its end; whether it is open.
    static bool opens(desktop::SessionWindow& window, const QString& file) {
        std::optional<bool> answer;
        window.openBeside(file, [&](bool isOpen) { answer = isOpen; });
        return QTest::qWaitFor([&] { return answer.has_value(); }, Patience) && *answer;
    }

    /// Writes what is left of the recording: whether it is written.
    static bool savesRecording(const desktop::SessionWindow& window, const QString& path) {
        return isWritten([&](auto told) { window.exports().saveRecording(path, std::move(told)); });
    }

    /// Waits until nothing is read or analysed any more.
    static bool rests(const desktop::SessionWindow& window) {
        return QTest::qWaitFor([&] { return !window.isBusy(); }, Patience);
    }

    /// A window with the drill of the sample season, forty seconds with two turns and more.
    std::unique_ptr<desktop::SessionWindow> openDrill() {
        auto window = makeWindow();
        EXPECT_TRUE(opens(*window, add("drill.kvb", encode(sample::upstreamDrill()))));
        return window;
    }

    static void press(QWidget& widget, QKeyCombination keys) {
        if (QApplication::activeWindow() != widget.window())
            QApplication::setActiveWindow(widget.window());
        QTest::keyClick(&widget, keys.key(), keys.keyboardModifiers());
        QApplication::processEvents();
    }

    /// Marks so many seconds after the start.
    static void markAt(desktop::SessionWindow& window, std::initializer_list<double> seconds) {
        for (const double second : seconds) {
            window.replay().setMoment(window.replay().from() + second);
            press(window, Qt::Key_M);
        }
    }

    /// Every table, with the cursor at both ends.
    static void showEverything(desktop::SessionWindow& window) {
        for (int page = 0; page < window.view().tables().count(); ++page) {
            window.view().tables().setCurrentIndex(page);
            for (const double moment : {window.replay().from(), window.replay().to()})
                window.replay().setMoment(moment);
            (void)window.grab();
        }
    }

    static std::string sessionOf(const desktop::SessionWindow& window) {
        return encode(window.document().value().session);
    }

    static constexpr int Patience = 30000; // ms

    TempFolder m_folder;
    Recorder m_recorder;
    bool m_isYes = true;
    std::vector<std::string> m_questions;
    desktop::Workspace m_workspace{Preferences(m_folder.path() / "preferences.ini"),
                                   m_recorder.log(), [] { return ReferenceDate{7.7e8}; }};
};

} // namespace kavela::test
