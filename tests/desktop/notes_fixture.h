#pragma once

#include "common/recorders.h"
#include "common/safe_file.h"
#include "common/temp_folder.h"
#include "desktop/film/film_deck.h"
#include "desktop/patience.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/workspace.h"
#include "desktop/taking/gate_strip.h"
#include "desktop/taking/notes/lane_strip.h"
#include "desktop/taking/notes/mark_list.h"
#include "desktop/taking/notes/notes_panel.h"
#include "desktop/taking/taking_window.h"
#include "films/season_films.h"
#include "sample/races.h"
#include "splitdata/loader.h"
#include "splittaking/messages.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <QTreeWidget>

namespace kavela::test {

namespace fs = std::filesystem;
using desktop::ColumnTable;
using desktop::NoteMode;
using desktop::NotesPanel;
using desktop::TakingWindow;
using desktop::Workspace;
using ::testing::ElementsAre;
using ::testing::SizeIs;

/// Two runs whose splits are taken and that have no notes yet.
inline splittakerdata031 timedRace() {
    splittakerdata031 race = sample::holdRace(sample::harbourNight());
    race.athletes.resize(2);
    for (athletedata031& run : race.athletes) {
        run.upstreams.clear();
        run.strokes.clear();
        run.microsplits.clear();
        run.timeslosses.clear();
        run.customData.clear();
        run.sectioninfo.pendetails.clear();
        run.sectioninfo.comments.clear();
        run.sectioninfo.pens.assign(static_cast<std::size_t>(race.info.gates), 0);
    }
    race.info.tags = {"Start", "Wave"};
    return race;
}

/// Films take seconds to make: they are kept beside the program.
inline std::string filmOf(const films::PlannedFilm& film) {
    const fs::path kept = fs::path(KAVELA_FILM_FOLDER) / film.name.filename();
    if (fs::exists(kept))
        return contentOf(kept);
    fs::create_directories(kept.parent_path());
    std::string made = films::makeFilm(*film.scene);
    writeFileSafely(kept, made);
    return made;
}

class NotesTest : public ::testing::Test {
protected:
    NotesTest() {
        m_workspace.setAlerts(&m_recorder);
        fs::create_directory(folder());
    }

    fs::path folder() const { return m_folder.path() / "films"; }

    /// With the films of both runs, as they are made for the timed race, or without any.
    void open(const splittakerdata031& race, bool withFilms) {
        if (withFilms)
            for (const films::PlannedFilm& film :
                 films::sessionFilms(timedRace(), {}, [](const fs::path&) { return true; }))
                (void)m_folder.add("films/" + film.name.filename().string(), filmOf(film));
        const fs::path file = folder() / "films.kvx";
        ASSERT_TRUE(saveSplitFile(race, file, m_recorder.log()));
        m_window = std::make_unique<TakingWindow>(
            m_workspace,
            desktop::Autosave(QString::fromStdString((m_folder.path() / "autosave").string())));
        m_window->setAttribute(Qt::WA_DeleteOnClose, false);
        ASSERT_TRUE(m_window->open(QString::fromStdString(file.string())));
        m_window->show();
        QApplication::setActiveWindow(m_window.get());
        QApplication::processEvents();
        ASSERT_TRUE(!withFilms || settles());
    }

    bool settles() const {
        return QTest::qWaitFor([this] { return !m_window->deck().stamps().empty(); }, Patience);
    }

    void press(QKeyCombination keys) {
        if (QApplication::activeWindow() != m_window.get())
            QApplication::setActiveWindow(m_window.get());
        QWidget* const focus = m_window->focusWidget() ? m_window->focusWidget() : m_window.get();
        QTest::keyClick(focus, keys.key(), keys.keyboardModifiers());
        QApplication::processEvents();
    }

    /// One second on, until that frame stands on the screen.
    void goOnASecond() {
        const auto before = m_window->deck().stamps();
        press(Qt::SHIFT | Qt::Key_Right);
        const auto target = before.front().seconds() + 1;
        ASSERT_TRUE(QTest::qWaitFor(
            [&] {
                const auto stamps = m_window->deck().stamps();
                return !stamps.empty() && std::abs(stamps.front().seconds() - target) < 0.001;
            },
            Patience));
    }

    void undo(int steps) {
        for (int i = 0; i < steps; ++i)
            press(Qt::CTRL | Qt::Key_Z);
    }

    void choose(const char* name, int index) {
        auto* const combo = m_window->findChild<QComboBox*>(name);
        combo->setCurrentIndex(index);
        emit combo->activated(index);
    }

    template <class T>
    T& part(const char* name) const {
        return *m_window->findChild<T*>(name);
    }

    ColumnTable& table(const char* name) const { return part<ColumnTable>(name); }

    void click(const char* name, int row) const {
        emit table(name).clicked(table(name).cellAt(row, 0));
    }

    QString cell(const char* name, int row, int column) const {
        return table(name).cellAt(row, column).data().toString();
    }

    void enter(const char* name, int row, int column, const QVariant& value,
               int role = Qt::EditRole) const {
        table(name).model()->setData(table(name).cellAt(row, column), value, role);
    }

    const athletedata031& run(int index = 0) const { return m_window->document().run(index); }
    NotesPanel& notes() const { return m_window->notes(); }

    /// The texts of the list of marks.
    QStringList listed() const {
        QStringList texts;
        const auto& tree = part<QTreeWidget>("marks");
        for (int row = 0; row < tree.topLevelItemCount(); ++row)
            texts.append(tree.topLevelItem(row)->text(1));
        return texts;
    }

    TempFolder m_folder;
    Recorder m_recorder;
    Workspace m_workspace{Preferences(m_folder.path() / "preferences.ini"), m_recorder.log(),
                          [] { return ReferenceDate{7e8}; }};
    std::unique_ptr<TakingWindow> m_window;
};

} // namespace kavela::test
