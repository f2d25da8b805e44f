#include "desktop/taking/notes/note_actions.h"

#include "desktop/taking/notes/notes_panel.h"

#include <QActionGroup>
#include <QMainWindow>
#include <QMenuBar>
#include <QTabBar>

#include <functional>

namespace kavela::desktop {

namespace {

QString tr(const char* text) {
    return NotesPanel::tr(text);
}

QKeySequence keyOf(NoteMode mode) {
    const int digit = (static_cast<int>(mode) + 1) % NoteModes; // the tenth has the key behind 9
    return QKeySequence(Qt::CTRL | static_cast<Qt::Key>(static_cast<int>(Qt::Key_0) + digit));
}

void addModes(QMenu& menu, NotesPanel& notes) {
    auto* group = new QActionGroup(&menu);
    for (int place = 0; place < NoteModes; ++place) {
        const auto mode = static_cast<NoteMode>(place);
        QAction* const action = menu.addAction(titleOf(mode));
        action->setShortcut(keyOf(mode));
        action->setCheckable(true);
        action->setChecked(mode == notes.mode());
        group->addAction(action);
        QObject::connect(action, &QAction::triggered, &notes,
                         [&notes, mode] { notes.setMode(mode); });
        const auto showKey = [&notes, action, place] {
            notes.bar().setTabToolTip(place, action->shortcut().toString(QKeySequence::NativeText));
        };
        showKey();
        QObject::connect(action, &QAction::changed, &notes, showKey);
        // A mode that could not be entered must not stay checked.
        const auto showMode = [&notes, action, mode] { action->setChecked(notes.mode() == mode); };
        QObject::connect(action, &QAction::triggered, &notes, showMode);
        QObject::connect(&notes, &NotesPanel::modeChanged, action, showMode);
    }
}

} // namespace

void addNoteMenu(QMainWindow& window, NotesPanel& notes) {
    QMenu* menu = window.menuBar()->addMenu(tr("&Notes"));
    addModes(*menu, notes);
    menu->addSeparator();
    struct Entry {
        QString text;
        QKeyCombination key;
        NoteMode mode;
        std::function<void()> act;
    };
    for (const Entry& entry : {Entry{tr("Stroke on the left"), Qt::Key_A, NoteMode::Strokes,
                                     [&notes] { notes.markStroke(HandCode::Left); }},
                               Entry{tr("Stroke on the right"), Qt::Key_D, NoteMode::Strokes,
                                     [&notes] { notes.markStroke(HandCode::Right); }},
                               Entry{tr("Other hand for the selected stroke"), Qt::Key_X,
                                     NoteMode::Strokes, [&notes] { notes.swapHand(); }},
                               Entry{tr("Play from the selected tag"), Qt::SHIFT | Qt::Key_Space,
                                     NoteMode::Tags, [&notes] { notes.playTag(); }},
                               Entry{tr("To the other run of the time loss"), Qt::CTRL | Qt::Key_T,
                                     NoteMode::TimeLosses, [&notes] { notes.goToOtherRun(); }},
                               Entry{tr("Record the team radio, or end it"), Qt::Key_R,
                                     NoteMode::Comments, [&notes] { notes.recordRadio(); }}}) {
        QAction* const action = menu->addAction(entry.text);
        action->setShortcut(QKeySequence(entry.key));
        // Always enabled: a key without its action would type into the list of runs.
        QObject::connect(action, &QAction::triggered, &notes,
                         [&notes, entry] { notes.actIn(entry.mode, entry.act); });
    }
    QAction* const clips = menu->addAction(tr("Clips of the chosen marks, one after another"));
    clips->setShortcut(QKeySequence(Qt::Key_C));
    QObject::connect(clips, &QAction::triggered, &notes, &NotesPanel::playClips);
}

} // namespace kavela::desktop
