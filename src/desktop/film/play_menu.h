#pragma once

#include <QObject>

class QMainWindow;
class QMenu;

namespace kavela::desktop {

class FilmDeck;
class FilmSound;
class Workspace;

/// The menu and the keys that play the films of a window: pausing, shuttling with J, K and L,
/// speeds, sound, and steps of a frame or some seconds. Belongs to the window.
class PlayMenu : public QObject {
    Q_OBJECT

public:
    /// Adds the menu behind those that the window has. Whether sound is heard is remembered for all
    /// windows. Deck and sound must live as long as the window's actions.
    PlayMenu(QMainWindow& window, FilmDeck& deck, FilmSound& sound, Workspace& workspace);

    /// Only the steps of ten seconds, and those to the ends of a film, for a window that plays in
    /// its own way and has other uses for the arrows. The deck must live as long as its actions.
    static void addJumps(QMainWindow& window, QMenu& menu, FilmDeck& deck);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void addShuttle(QMenu& menu);
    void addSpeeds(QMenu& menu);
    void addSound(QMenu& menu, Workspace& workspace);
    void addSteps(QMenu& menu);

    QMainWindow& m_window;
    FilmDeck& m_deck;
    FilmSound& m_sound;
    bool m_isStopHeld = false;
};

} // namespace kavela::desktop
