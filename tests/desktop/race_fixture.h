#pragma once

#include "common/recorders.h"
#include "common/safe_file.h"
#include "common/temp_folder.h"
#include "desktop/desktop.h"
#include "desktop/race/frozen_table.h"
#include "desktop/race/race_view.h"
#include "desktop/race/race_window.h"
#include "desktop/shell/workspace.h"

#include <gmock/gmock.h>

#include <QAction>
#include <QApplication>
#include <QTest>

namespace kavela::test {

namespace fs = std::filesystem;
using desktop::Desktop;
using desktop::RaceWindow;
using desktop::SplitTableModel;
using desktop::Workspace;

inline const fs::path Examples = KAVELA_EXAMPLES;
inline constexpr int FirstTime = SplitTableModel::LeadingColumns;

/// The desktop program with preferences, files and alerts of its own.
class RaceWindowTest : public ::testing::Test {
protected:
    RaceWindowTest() { m_workspace.setAlerts(&m_recorder); }

    RaceWindow* open(const fs::path& file) {
        m_desktop.open(QString::fromStdString(file.string()));
        return m_desktop.windowsOf<RaceWindow>().isEmpty()
                   ? nullptr
                   : m_desktop.windowsOf<RaceWindow>().back();
    }

    fs::path copyOf(const fs::path& file) {
        return m_folder.add(file.filename().string(), contentOf(file));
    }

    /// Does what a shortcut does; the screen that nobody sees makes no window the active one.
    static void trigger(const RaceWindow& window, const QKeySequence& keys) {
        for (QAction* action : window.findChildren<QAction*>())
            if (action->shortcut() == keys)
                action->trigger();
    }

    /// Presses keys where the keyboard is, in a window that is in front.
    static void press(RaceWindow& window, const QKeySequence& keys) {
        window.show();
        QApplication::setActiveWindow(&window);
        QApplication::processEvents();
        QWidget* const focus = window.focusWidget() ? window.focusWidget() : &window;
        QTest::keyClick(focus, keys[0].key(), keys[0].keyboardModifiers());
        QApplication::processEvents();
    }

    static QVariant cell(const RaceWindow& window, int row, int column, int role) {
        return window.model().index(row, column).data(role);
    }

    static QStringList column(const RaceWindow& window, int number) {
        QStringList texts;
        for (int row = 0; row < window.model().rowCount(); ++row)
            texts.append(cell(window, row, number, Qt::DisplayRole).toString());
        return texts;
    }

    TempFolder m_folder;
    Recorder m_recorder;
    Workspace m_workspace{Preferences(m_folder.path() / "preferences.ini"), m_recorder.log(),
                          [] { return ReferenceDate{7e8}; }};
    Desktop m_desktop{m_workspace};
};

} // namespace kavela::test
