#pragma once

#include "common/json_encode.h"
#include "common/recorders.h"
#include "common/temp_folder.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/workspace.h"
#include "desktop/team/athlete_panel.h"
#include "desktop/team/team_window.h"
#include "results/team_file.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QTest>

#include <filesystem>
#include <memory>

namespace kavela::test {

inline mtRaceStruct teamRace(const char* event, const char* location, std::int64_t finalPos) {
    mtRaceStruct made;
    made.event = event;
    made.location = location;
    made.finalPos = finalPos;
    return made;
}

inline mtSeasonStruct teamSeason(std::int64_t year, std::vector<mtRaceStruct> races) {
    mtSeasonStruct made;
    made.year = year;
    made.races = std::move(races);
    return made;
}

/// An athlete whose third season makes the difference, and a second one.
inline myTeamToSaveStruct smallTeam() {
    myTeamToSaveStruct team;
    myTeamStruct ann{"ŠTERN Ann Marie", 1998, {}, false};
    ann.cats.push_back(
        {"WK1",
         {teamSeason(2025, {teamRace("WC1", "Tacen", 5), teamRace("ICF", "Solkan", 9)}),
          teamSeason(2024, {teamRace("WC2", "Praha", 12)}),
          teamSeason(2023, {teamRace("EUROS", "Ljubljana", 2)})},
         {}});
    team.realMyTeam.push_back(ann);
    team.realMyTeam.push_back({"OAKES Tom", 2001, {{"MC1", {}, {}}}, false});
    return team;
}

/// Windows of a small team in a folder of its own.
class TeamFixture : public ::testing::Test {
protected:
    TeamFixture() {
        m_workspace.setAlerts(&m_recorder);
        m_workspace.setAnswer([this](const Alert& question) {
            m_questions.push_back(question.text);
            return true;
        });
        saveTeamFile(smallTeam(), file());
    }

    std::filesystem::path file() const { return m_folder.path() / "team.kvteam"; }

    std::unique_ptr<desktop::TeamWindow> makeWindow() {
        auto window = std::make_unique<desktop::TeamWindow>(
            m_workspace,
            desktop::Autosave(QString::fromStdString((m_folder.path() / "autosave").string())));
        window->setAttribute(Qt::WA_DeleteOnClose, false);
        return window;
    }

    static void show(desktop::TeamWindow& window) {
        window.show();
        QApplication::setActiveWindow(&window);
        QApplication::processEvents();
    }

    std::unique_ptr<desktop::TeamWindow> openWindow() {
        auto window = makeWindow();
        if (!window->open(QString::fromStdString(file().string())))
            return nullptr;
        show(*window);
        window->athletes().choose(0);
        return window;
    }

    static void press(desktop::TeamWindow& window, QKeyCombination keys) {
        if (QApplication::activeWindow() != &window)
            QApplication::setActiveWindow(&window); // no window manager does
        QWidget* const focus = window.focusWidget() ? window.focusWidget() : &window;
        QTest::keyClick(focus, keys.key(), keys.keyboardModifiers());
        QApplication::processEvents();
    }

    const mtCatsStruct& results(const desktop::TeamWindow& window) const {
        return window.document().athletes()[0].cats[0];
    }

    TempFolder m_folder;
    Recorder m_recorder;
    std::vector<std::string> m_questions;
    desktop::Workspace m_workspace{Preferences(m_folder.path() / "preferences.ini"),
                                   m_recorder.log(),
                                   [] { return ReferenceDate{7.7e8}; }}; // in May 2025
};

} // namespace kavela::test
