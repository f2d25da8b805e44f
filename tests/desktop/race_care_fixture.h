#pragma once

#include "desktop/charts/chart.h"
#include "desktop/charts/chart_panel.h"
#include "desktop/race/run_chooser.h"
#include "desktop/race/table_export.h"
#include "desktop/race_fixture.h"
#include "sample/races.h"
#include "splitdata/loader.h"

#include <QClipboard>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QListWidget>
#include <QLocale>
#include <QPushButton>
#include <QScrollBar>
#include <QTabBar>

#include <algorithm>

namespace kavela::test {

using ::testing::HasSubstr;

/// What a coach has chosen and is looking at stays, and nothing is called what it is not.
class RaceCareTest : public RaceWindowTest {
protected:
    /// A window of the size of a small laptop.
    RaceWindow* show(const fs::path& file) {
        RaceWindow* const window = open(file);
        if (window == nullptr)
            return nullptr;
        window->resize(1280, 800);
        window->show();
        QApplication::processEvents();
        return window;
    }

    fs::path write(const splittakerdata031& race, const char* name = "race.kvx") {
        fs::path file = m_folder.path() / name;
        EXPECT_TRUE(saveSplitFile(race, file, m_recorder.log()));
        return file;
    }

    static std::string nameIn(const RaceWindow& window, int row) {
        return cell(window, row, 0, Qt::DisplayRole).toString().toStdString();
    }

    static int rowOf(const RaceWindow& window, const std::string& name) {
        for (int row = 0; row < window.model().rowCount(); ++row)
            if (nameIn(window, row) == name)
                return row;
        return -1;
    }

    static std::vector<std::string> selected(const RaceWindow& window) {
        std::vector<std::string> names;
        for (const QModelIndex& row : window.table().selectionModel()->selectedRows())
            names.push_back(nameIn(window, row.row()));
        return names;
    }

    static QString text(const RaceWindow& window, const std::string& name, int column) {
        return cell(window, rowOf(window, name), column, Qt::DisplayRole).toString();
    }

    /// What the cell of a section shows on the screen, whatever lies over it.
    static bool isInView(const RaceWindow& window, int column) {
        const desktop::FrozenTable& table = window.table();
        const int left = table.columnViewportPosition(column);
        const QTableView& back = *table.backView();
        const int end =
            back.isVisible() ? back.x() - table.frameWidth() : table.viewport()->width();
        return left >= table.frozenView()->width() && left + table.columnWidth(column) <= end;
    }
};

/// Four crews over three sections; the second was not timed but touched a gate.
inline splittakerdata031 smallRace() {
    splittakerdata031 race;
    race.info.title = "Small Race";
    race.info.totalsplits = 3;
    race.info.splitTitles = {"Start", "Pool", "Finish"};
    const std::vector<std::vector<double>> times{{10, 20, 30}, {0, 0, 0}, {9, 19}, {11, 22, 33}};
    const std::vector<std::string> names{"Ann", "Bea", "Cyd", "Dee"};
    for (std::size_t i = 0; i < names.size(); ++i) {
        athletedata031& run = race.athletes.emplace_back();
        run.names = {names[i]};
        run.cat = i % 2 == 0 ? "K1W" : "C1W";
        run.phase = i < 3 ? "Heats" : "Final";
        run.sectioninfo.times = times[i];
        run.sectioninfo.pens = {i == 1 ? 2 : 0, 0, 0};
    }
    return race;
}

} // namespace kavela::test
