#include "common/recorders.h"
#include "common/temp_folder.h"
#include "desktop/course/course_editor.h"
#include "desktop/desktop.h"
#include "desktop/help/guide_window.h"
#include "desktop/shell/settings_window.h"
#include "desktop/shell/tool_window.h"
#include "desktop/tools.h"

#include <gmock/gmock.h>

#include <QAccessible>
#include <QApplication>
#include <QEventLoop>
#include <QProcess>
#include <QTabWidget>
#include <QTest>

#include <memory>

/// What a screen reader hears of each window, over the bus, in a process of its own.
namespace kavela::test {
namespace {

class ScreenReaderTest : public ::testing::Test {
protected:
    ScreenReaderTest() {
        m_workspace.setAlerts(&m_recorder);
        m_workspace.setChoice([](const Alert&, const QStringList&) { return -1; });
    }

    /// Hears what is shown of a window: each part that is wrong, a line each.
    void hear(QWidget& window) {
        constexpr int FewestParts = 10;
        window.setWindowTitle(QString("heard %1").arg(++m_windows)); // found among the others
        QProcess reader;
        QEventLoop until;
        QObject::connect(&reader, &QProcess::finished, &until, &QEventLoop::quit);
        QObject::connect(&reader, &QProcess::errorOccurred, &until, &QEventLoop::quit);
        reader.start(KAVELA_READER_PYTHON,
                     {KAVELA_READER, QString::number(QCoreApplication::applicationPid()),
                      window.windowTitle()});
        until.exec();
        QStringList lines = QString::fromUtf8(reader.readAllStandardOutput()).trimmed().split('\n');
        const int heard = lines.takeLast().toInt();
        ASSERT_GE(heard, FewestParts)
            << lines.join('\n').toStdString() << reader.readAllStandardError().toStdString();
        lines.removeDuplicates();
        for (const QString& line : lines)
            ADD_FAILURE() << window.metaObject()->className() << ": " << line.toStdString();
    }

    /// On every page.
    void hearPages(QWidget& window) {
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
        ASSERT_NO_FATAL_FAILURE(hear(window));
        for (QTabWidget* const tabs : window.findChildren<QTabWidget*>())
            for (int page = 1; page < tabs->count() && tabs->isVisible(); ++page) {
                tabs->setCurrentIndex(page);
                QApplication::processEvents();
                hear(window);
            }
    }

    static QString example(const char* name) { return QString(KAVELA_EXAMPLES) + '/' + name; }

    int m_windows = 0;
    TempFolder m_folder;
    Recorder m_recorder;
    desktop::Workspace m_workspace{Preferences(m_folder.path() / "preferences.ini"),
                                   m_recorder.log(), [] { return ReferenceDate{8e8}; }};
    desktop::Autosave m_kept{QString::fromStdString((m_folder.path() / "kept").string())};
    desktop::Desktop m_program{m_workspace, m_kept};
};

TEST_F(ScreenReaderTest, HearsHomeAndEveryWindowWithAFile) {
    m_program.showHome();
    ASSERT_NO_FATAL_FAILURE(hearPages(*m_program.front()));
    for (const char* const file :
         {"races/riverside_cup.kvx", "races/harbour_cross.kvx", "team/kavela_team.kvteam",
          "selection/spring_selection.kvsr", "planning/season.planning", "tests/form_tests.kvtest",
          "recordings/upstream_drill.kvb", "races/spring_opener_results.csv",
          "races/compare_final.json"})
        m_program.open(example(file));
    (void)m_program.openTaking(example("races/spring_opener.kvx"));
    m_program.openLosses({example("races/riverside_cup.kvx")});
    m_program.openPenalties({example("races/riverside_cup.kvx")});
    ASSERT_TRUE(QTest::qWaitFor([&] { return m_program.windows().size() == 12; }));
    for (desktop::ToolWindow* const window : m_program.windows())
        ASSERT_NO_FATAL_FAILURE(hearPages(*window));
}

TEST_F(ScreenReaderTest, HearsEveryToolBeforeItsFileIsOpenedAndTheDialogs) {
    infodata031 race;
    race.gates = 4;
    race.upGates = {2};
    std::vector<std::unique_ptr<QWidget>> windows;
    for (const desktop::ToolKind& tool : desktop::toolKinds())
        windows.emplace_back(tool.make(m_workspace, m_kept));
    windows.push_back(std::make_unique<desktop::CourseEditor>(race, m_workspace, nullptr));
    windows.push_back(std::make_unique<desktop::SettingsWindow>(m_workspace));
    windows.push_back(std::make_unique<desktop::GuideWindow>(m_workspace));
    for (const auto& window : windows) {
        window->setAttribute(Qt::WA_DeleteOnClose, false);
        window->show();
        ASSERT_NO_FATAL_FAILURE(hearPages(*window));
        window->hide();
    }
}

} // namespace
} // namespace kavela::test

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    ::testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
