#include "common/recorders.h"
#include "common/temp_folder.h"
#include "desktop/compose/compare_player.h"
#include "desktop/compose/compare_window.h"
#include "desktop/cross/cross_window.h"
#include "desktop/desktop.h"
#include "desktop/film/film_stage.h"
#include "desktop/find/find_window.h"
#include "desktop/find/found_table.h"
#include "desktop/folder/films_window.h"
#include "desktop/losses/losses_window.h"
#include "desktop/motion/motion_window.h"
#include "desktop/numbered_film.h"
#include "desktop/penalties/penalties_window.h"
#include "desktop/race/race_window.h"
#include "desktop/season/season_window.h"
#include "desktop/shell/key_list.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/tool_window.h"
#include "desktop/tables/tables_window.h"
#include "desktop/taking/taking_window.h"
#include "desktop/tools.h"

#include <gmock/gmock.h>

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSet>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTest>

/// Every key that the overview of keys lists is heard where it is listed.
namespace kavela::test {
namespace {

namespace fs = std::filesystem;
using desktop::Desktop;
using desktop::ListedKey;

struct WindowOf {
    const char* name;
    const char* example;
    const char* knownKey = nullptr; ///< that was deaf once: it is among the keys
};

class WindowKeysTest : public ::testing::TestWithParam<WindowOf> {
protected:
    WindowKeysTest() { m_workspace.setAlerts(&m_recorder); }

    QMainWindow* open() {
        const WindowOf& wanted = GetParam();
        if (std::string_view(wanted.name) == "films") {
            openFilms();
        } else if (std::string_view(wanted.name) == "compare") {
            openCompare();
        } else if (std::string_view(wanted.name) == "fetch") {
            m_program.openFetch();
        } else if (!wanted.example) {
            m_program.showHome();
        } else {
            const fs::path from = fs::path(KAVELA_EXAMPLES) / wanted.example;
            const fs::path file = m_folder.path() / from.filename();
            fs::copy_file(from, file);
            const QString path = QString::fromStdString(file.string());
            if (std::string_view(wanted.name) == "taking")
                (void)m_program.openTaking(path);
            else if (std::string_view(wanted.name) == "penalties")
                openPenalties(path);
            else if (std::string_view(wanted.name) == "losses")
                openLosses(path);
            else if (std::string_view(wanted.name) == "season")
                openSeason(path);
            else if (std::string_view(wanted.name) == "find")
                openFind(path);
            else if (std::string_view(wanted.name) == "tables")
                openTable(path);
            else if (std::string_view(wanted.name) == "session")
                openSession(path);
            else
                m_program.open(path);
        }
        for (QWidget* const window : QApplication::topLevelWidgets())
            if (auto* const main = qobject_cast<QMainWindow*>(window); main && main->isVisible())
                return main;
        return nullptr;
    }

    /// The file is read before there is a window.
    void openSession(const QString& path) {
        (void)m_program.openIn(*desktop::toolOfKind("session"), path);
        EXPECT_TRUE(QTest::qWaitFor([&] { return !m_program.windows().isEmpty(); }));
    }

    /// What it shows comes a little later.
    void openPenalties(const QString& path) {
        m_program.openPenalties({path});
        for (const auto* const window : m_program.windowsOf<desktop::PenaltiesWindow>())
            EXPECT_TRUE(QTest::qWaitFor([&] { return !window->isBusy() && window->figures(); }));
    }

    void openLosses(const QString& path) {
        m_program.openLosses({path});
        for (auto* const window : m_program.windowsOf<desktop::LossesWindow>())
            EXPECT_TRUE(QTest::qWaitFor([&] { return window->state().hasRun(); }));
    }

    void openTable(const QString& path) {
        m_program.openTables({path});
        for (auto* const window : m_program.windowsOf<desktop::TablesWindow>())
            EXPECT_TRUE(QTest::qWaitFor([&] { return window->document().hasList(); }));
    }

    void openSeason(const QString& path) {
        m_program.openSeason({path});
        for (const auto* const window : m_program.windowsOf<desktop::SeasonWindow>())
            EXPECT_TRUE(QTest::qWaitFor([&] { return !window->isBusy() && window->season(); }));
    }

    /// A film in a folder of its own.
    QString film(const char* name) {
        const fs::path folder = m_folder.path() / "films";
        fs::create_directories(folder);
        fs::create_symlink(numberedFilm(), folder / name);
        return QString::fromStdString((folder / name).string());
    }

    void openFilms() {
        m_program.openFilms(film("a.mp4"));
        for (auto* const window : m_program.windowsOf<desktop::FilmsWindow>())
            EXPECT_TRUE(QTest::qWaitFor(
                [&] { return !window->shelf().isReading() && window->stage().deck().shown(0); },
                30'000));
    }

    void openCompare() {
        m_program.openCompare(
            {.runs = {}, .films = {{film("a.mp4"), "One", 1}, {film("b.mp4"), "Two", 2}}});
        for (auto* const window : m_program.windowsOf<desktop::CompareWindow>())
            EXPECT_TRUE(
                QTest::qWaitFor([&] { return window->player().prepared().has_value(); }, 30'000));
    }

    void openFind(const QString& path) {
        m_program.openFind({path});
        for (auto* const window : m_program.windowsOf<desktop::FindWindow>()) {
            window->ask("runs");
            EXPECT_TRUE(QTest::qWaitFor([&] { return window->results().found() != nullptr; }));
        }
    }

    /// Where a coach's hands may be: tables, films, charts; nothing that is typed in or pressed.
    static QList<QWidget*> places(const QWidget& window) {
        QList<QWidget*> found;
        for (QWidget* const part : window.findChildren<QWidget*>()) {
            const bool isTyped =
                qobject_cast<QLineEdit*>(part) || qobject_cast<QAbstractSpinBox*>(part) ||
                qobject_cast<QComboBox*>(part) || qobject_cast<QPlainTextEdit*>(part) ||
                qobject_cast<QAbstractButton*>(part);
            if (part->isVisible() && part->isEnabled() && !part->focusProxy() && !isTyped &&
                part->focusPolicy() != Qt::NoFocus)
                found.append(part);
        }
        return found;
    }

    /// Whether the key of an action reaches it from a place; what the action does is left out. A
    /// table that has the keys copies what is selected in it.
    static bool isHeard(QAction& action, QWidget& place) {
        if (action.shortcut() == QKeySequence::Copy && qobject_cast<desktop::ColumnTable*>(&place))
            return true;
        place.setFocus();
        QSignalSpy heard(&action, &QAction::triggered);
        const QKeyCombination key = action.shortcut()[0];
        QTest::keyClick(&place, key.key(), key.keyboardModifiers());
        return heard.count() == 1;
    }

    static QString told(const QAction& action, const QWidget& place) {
        return action.shortcut().toString() + " (" + action.text() + ") at " +
               place.metaObject()->className() + ' ' + place.objectName();
    }

    /// The keys that are not heard at a place where they are listed.
    QStringList deafKeys(QMainWindow& window) {
        QStringList deaf;
        for (const desktop::KeyGroup& group : desktop::keyGroups(window))
            for (const ListedKey& listed : group.keys) {
                QAction& action = *listed.action;
                EXPECT_FALSE(action.text().isEmpty()) << action.shortcut().toString().toStdString();
                QObject::disconnect(&action, &QAction::triggered, nullptr, nullptr);
                if (!action.isEnabled())
                    continue;
                ++m_pressed;
                for (QWidget* const place :
                     listed.part ? QList<QWidget*>{listed.part} : places(window))
                    if (!isHeard(action, *place))
                        deaf.append(told(action, *place));
                m_heard.insert(action.shortcut().toString());
            }
        return deaf;
    }

    TempFolder m_folder;
    Recorder m_recorder;
    desktop::Workspace m_workspace{Preferences(m_folder.path() / "preferences.ini"),
                                   m_recorder.log(), [] { return ReferenceDate{8e8}; }};
    Desktop m_program{m_workspace, desktop::Autosave(QString::fromStdString(
                                       (m_folder.path() / "kept").string()))};
    QSet<QString> m_heard;
    int m_pressed = 0;
};

TEST_P(WindowKeysTest, HearsEveryKeyOfTheOverviewWhereverTheFocusIs) {
    QMainWindow* const window = open();
    ASSERT_TRUE(window);
    QApplication::setActiveWindow(window);
    QApplication::processEvents();
    QStringList deaf = deafKeys(*window);
    for (QTabWidget* const tabs : window->findChildren<QTabWidget*>())
        for (int page = 1; page < tabs->count(); ++page) {
            tabs->setCurrentIndex(page);
            QApplication::processEvents();
            deaf += deafKeys(*window);
        }
    deaf.removeDuplicates();
    EXPECT_EQ(deaf.join('\n').toStdString(), "");
    EXPECT_GT(m_pressed, 4);
    const char* const key = GetParam().knownKey;
    EXPECT_TRUE(!key || m_heard.contains(key)) << key;
}

INSTANTIATE_TEST_SUITE_P(
    Windows, WindowKeysTest,
    ::testing::Values(
        WindowOf{"home", nullptr}, WindowOf{"race", "races/riverside_cup.kvx", "Alt+1"},
        WindowOf{"taking", "races/spring_opener.kvx"}, WindowOf{"cross", "races/harbour_cross.kvx"},
        WindowOf{"team", "team/kavela_team.kvteam"},
        WindowOf{"selection", "selection/spring_selection.kvsr"},
        WindowOf{"planning", "planning/season.planning"},
        WindowOf{"watertests", "tests/form_tests.kvtest"},
        WindowOf{"penalties", "races/riverside_cup.kvx", "Alt+4"},
        WindowOf{"losses", "races/riverside_cup.kvx", "Shift+W"},
        WindowOf{"season", "team/kavela_team.kvteam", "Alt+9"},
        WindowOf{"find", "races/riverside_cup.kvx", "Alt+2"},
        WindowOf{"tables", "races/spring_opener_results.csv"},
        WindowOf{"motion", "recordings/upstream_drill.kvb"},
        WindowOf{"session", "recordings/upstream_drill.kvb"}, WindowOf{"films", nullptr, "W"},
        WindowOf{"compare", nullptr, "I"}, WindowOf{"fetch", nullptr, "F5"}),
    [](const auto& window) { return window.param.name; });

} // namespace
} // namespace kavela::test
