#pragma once

#include "desktop/tables/tables_window.h"

#include "common/recorders.h"
#include "common/temp_folder.h"
#include "desktop/desktop.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/workspace.h"
#include "splitdata/document.h"

#include <gmock/gmock.h>

#include <QTest>

#include <cstdint>
#include <string>

/// Lists of results in a window of the program, and a race that carries one.
namespace kavela::test {

namespace fs = std::filesystem;
using namespace kavela::desktop;

inline constexpr const char* FinalList = "Pos;Name;Class;Time;Pen\n"
                                         "1;Bell Anna;K1W;95.50;0\n"
                                         "2;Novak Petr;K1M;92.10;2\n"
                                         "3;Lis Eva;K1W;fast;0\n"
                                         "4;Hora Jan;K1M;DNF;0\n"
                                         "5;Kos Iva;K1W;99.25;4\n"
                                         "6;Mach Ota;K1M;90.75;0\n";
inline constexpr int NameOfList = 1;
inline constexpr int ClassOfList = 2;
inline constexpr int TimeOfList = 3;

inline athletedata031 runOnFilm(const std::string& name, double second, std::int64_t penalty = 0) {
    athletedata031 run;
    run.names = {name};
    run.cat = "K1W";
    run.phase = "Final";
    run.sectioninfo.times = {40, second};
    run.sectioninfo.totalpen = penalty;
    return run;
}

inline splittakerdata031 raceOnFilm() {
    splittakerdata031 race;
    race.info.session = "Race";
    race.info.totalsplits = 2;
    race.athletes = {runOnFilm("Anna Bell", 50), runOnFilm("Eva Kos", 51, 2)};
    race.info.resultsCSVdata = {{1, 4, "Anna Bell", "CZE", 90, 2, 92},
                                {2, 5, "Eva Kos", "CZE", 91, 2, 93}};
    return race;
}

class TablesWindowTest : public ::testing::Test {
protected:
    TablesWindowTest() { m_workspace.setAlerts(&m_recorder); }

    QString add(const char* name, const std::string& content) {
        return QString::fromStdString(m_folder.add(name, content).string());
    }

    TablesWindow& last() { return *m_program.windowsOf<TablesWindow>().back(); }

    static void await(TablesWindow& window) {
        EXPECT_TRUE(QTest::qWaitFor([&] { return !window.isReading(); }, 20000));
    }

    TablesWindow& openTable(const QString& path, const QString& list = {}) {
        m_program.openTables({path}, list);
        await(last());
        return last();
    }

    TablesWindow& openFinal() { return openTable(add("final.csv", FinalList)); }

    /// The texts of a column from the top down.
    static QStringList column(const TablesWindow& window, int number) {
        const QAbstractItemModel& model = *window.table().model();
        QStringList texts;
        for (int row = 0; row < model.rowCount(); ++row)
            texts.append(model.index(row, number).data().toString());
        return texts;
    }

    TempFolder m_folder;
    Recorder m_recorder;
    Workspace m_workspace{Preferences(m_folder.path() / "preferences.ini"), m_recorder.log(),
                          [] { return ReferenceDate{7e8}; }};
    Desktop m_program{m_workspace,
                      Autosave(QString::fromStdString((m_folder.path() / "kept").string()))};
};

} // namespace kavela::test
