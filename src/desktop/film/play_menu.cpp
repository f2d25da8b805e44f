#include "desktop/film/play_menu.h"

#include "desktop/film/film_deck.h"
#include "desktop/film/film_sound.h"
#include "desktop/shell/workspace.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMainWindow>
#include <QMenuBar>

namespace kavela::desktop {

namespace {

constexpr double SlowMotion = 0.25;
constexpr const char* SoundKey = "sound";
constexpr const char* SoundOff = "off";

template <class Act>
QAction* add(QMainWindow& window, QMenu& menu, const QString& text,
             const QList<QKeySequence>& shortcuts, Act act) {
    QAction* const action = menu.addAction(text);
    action->setShortcuts(shortcuts);
    QObject::connect(action, &QAction::triggered, &window, std::move(act));
    return action;
}

} // namespace

PlayMenu::PlayMenu(QMainWindow& window, FilmDeck& deck, FilmSound& sound, Workspace& workspace)
    : QObject(&window), m_window(window), m_deck(deck), m_sound(sound) {
    QMenu* const menu = window.menuBar()->addMenu(tr("&Play"));
    addShuttle(*menu);
    addSpeeds(*menu);
    addSound(*menu, workspace);
    menu->addSeparator();
    addSteps(*menu);
    qApp->installEventFilter(this);
}

/// K held down turns J and L into single steps. The key itself goes on to its action.
bool PlayMenu::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::WindowDeactivate)
        m_isStopHeld = false; // its release goes elsewhere
    const bool isDown =
        event->type() == QEvent::ShortcutOverride || event->type() == QEvent::KeyPress;
    if (isDown || event->type() == QEvent::KeyRelease) {
        const auto* const key = static_cast<QKeyEvent*>(event);
        if (key->key() == Qt::Key_K && !key->isAutoRepeat())
            m_isStopHeld = isDown;
    }
    return QObject::eventFilter(watched, event);
}

void PlayMenu::addShuttle(QMenu& menu) {
    add(m_window, menu, tr("&Play or pause"), {Qt::Key_Space}, [this] { m_deck.togglePlaying(); });
    const auto shuttle = [this](ShuttleKey key) {
        return [this, key] { m_deck.shuttle(key, m_isStopHeld); };
    };
    add(m_window, menu, tr("Backwards, again: faster"), {Qt::Key_J}, shuttle(ShuttleKey::J));
    add(m_window, menu, tr("Stop; held, J and L step a frame"), {Qt::Key_K},
        shuttle(ShuttleKey::K));
    add(m_window, menu, tr("Forwards, again: faster"), {Qt::Key_L}, shuttle(ShuttleKey::L));
}

void PlayMenu::addSpeeds(QMenu& menu) {
    add(m_window, menu, tr("Slow motion backwards"), {Qt::SHIFT | Qt::Key_J},
        [this] { m_deck.play(-SlowMotion); });
    add(m_window, menu, tr("Slow motion forward"), {Qt::SHIFT | Qt::Key_L},
        [this] { m_deck.play(SlowMotion); });
    add(m_window, menu, tr("&Slower"), {Qt::Key_BracketLeft}, [this] { m_deck.slower(); });
    add(m_window, menu, tr("&Faster"), {Qt::Key_BracketRight}, [this] { m_deck.faster(); });
    add(m_window, menu, tr("&Normal speed"), {Qt::Key_Backspace}, [this] { m_deck.normalSpeed(); });
}

void PlayMenu::addSound(QMenu& menu, Workspace& workspace) {
    m_sound.setMuted(workspace.remembered(SoundKey).value(0) == SoundOff);
    QAction* const action =
        add(m_window, menu, tr("S&ound, at normal speed"), {Qt::Key_S}, [this, &workspace] {
            m_sound.setMuted(!m_sound.isMuted());
            workspace.remember(SoundKey, {m_sound.isMuted() ? SoundOff : "on"});
        });
    action->setCheckable(true);
    action->setChecked(!m_sound.isMuted());
}

void PlayMenu::addSteps(QMenu& menu) {
    add(m_window, menu, tr("One frame back"), {Qt::Key_Left, Qt::Key_Comma},
        [this] { m_deck.step(-1); });
    add(m_window, menu, tr("One frame forward"), {Qt::Key_Right, Qt::Key_Period},
        [this] { m_deck.step(1); });
    add(m_window, menu, tr("One second back"), {Qt::SHIFT | Qt::Key_Left},
        [this] { m_deck.jump(-1); });
    add(m_window, menu, tr("One second forward"), {Qt::SHIFT | Qt::Key_Right},
        [this] { m_deck.jump(1); });
    addJumps(m_window, menu, m_deck);
}

void PlayMenu::addJumps(QMainWindow& window, QMenu& menu, FilmDeck& deck) {
    add(window, menu, tr("Ten seconds back"), {Qt::Key_PageUp}, [&deck] { deck.jump(-10); });
    add(window, menu, tr("Ten seconds forward"), {Qt::Key_PageDown}, [&deck] { deck.jump(10); });
    add(window, menu, tr("To the beginning"), {Qt::Key_Home}, [&deck] { deck.seek(deck.start()); });
    add(window, menu, tr("To the end"), {Qt::Key_End}, [&deck] { deck.seek(deck.end()); });
}

} // namespace kavela::desktop
