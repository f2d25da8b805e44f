#pragma once

#include "desktop/film/film_deck.h"

#include <QWidget>

#include <functional>
#include <map>
#include <memory>
#include <variant>
#include <vector>

class QLabel;
class QMainWindow;
class QVBoxLayout;

namespace kavela::desktop {

class FilmGrid;
class FilmMode;
class FilmSound;
class FilmView;
class TickStrip;
class TimeLine;
class Workspace;

/// Whose place on the film is remembered: a film by its path, or what the films belong to, as long
/// as that lives.
using FilmKey = std::variant<std::monostate, QString, std::shared_ptr<const char>>;

/// What is to be shown on a stage.
struct StageFilms {
    QStringList films;       ///< by their paths, the first leading; there or not
    QStringList beside = {}; ///< that only follow; none where the first film is not there
    FilmKey key = {};
};

/// The films of a window with everything that belongs to them: how they are played and heard, the
/// time line with its marks, what there is to say of them, and the keys of marking, which it hands
/// to the mode in front. Presses that mean a frame wait for it in the deck.
class FilmStage : public QWidget {
    Q_OBJECT

public:
    /// How the parts are called in this window.
    struct Parts {
        const char* state = "state";
        const char* health = "health";
        const char* typing = nullptr; ///< tells how the keys come back from a field; none without
        bool isQuiet = false;         ///< what is odd about a film is told without a warning sign
    };

    FilmStage(Workspace& workspace, const Parts& parts);
    ~FilmStage() override;

    [[nodiscard]] FilmDeck& deck() const { return *m_deck; }
    [[nodiscard]] FilmSound& sound() const { return *m_sound; }
    [[nodiscard]] TimeLine& line() const { return *m_line; }
    /// Where the films stand.
    [[nodiscard]] FilmGrid& grid() const { return *m_grid; }
    /// The films told to be shown, there or not.
    [[nodiscard]] const QStringList& films() const { return m_films; }

    void addAbove(QWidget& bar);
    void addOverLine(QWidget& strip); ///< between the state of the films and the time line
    void addBelow(QWidget& strip);    ///< under the time line, in the order of the calls
    /// The keys are the films' in a window, except in a field; `leave` gives the focus back.
    void keepKeys(QMainWindow& window, std::function<void()> leave);
    /// Nothing is told any more: what listens goes.
    void silence();

    /// Shows films in place of those before, from their beginning; none where the first one is not
    /// there, without which there is nothing to go by.
    void showFilms(const StageFilms& films);
    /// Remembers where the films stand, to be shown there again.
    void rememberPlace();
    void forgetPlace(const FilmKey& key) { m_places.erase(key); }
    /// To where the films were left; otherwise to a moment, where there is one.
    void goToPlace(const std::optional<CMTime>& otherwise);
    /// Whether the films rest at their end, after they were played forward.
    [[nodiscard]] bool isAtEnd() const;
    /// Said in place of the first picture.
    void setMessage(const QString& message);
    /// Said in place of a film that is not there, with a button that emits searchWanted().
    void askForFilm(std::size_t camera, const QString& message);

    /// A number of large letters over the first film for a moment.
    void flash(const QString& text);
    /// Why a key did nothing, over the first film, with a sound.
    void refuse(const QString& why);
    /// Acts with the stamps of the run's own cameras that are meant now, as soon as they are known;
    /// refuses when that can no longer be.
    void whenMeant(const PressQueue::Act& act);
    /// Acts with the stamp of a frame as soon as it is known; without one, and at once, where no
    /// film is there that could tell.
    void whenKnown(const FrameRequest& frame, const FilmDeck::Settled& act);

    /// The ways to mark; the first one's marks stand on the time line, and it is in front.
    void setModes(std::vector<FilmMode*> modes);
    /// Brings one of them in front.
    void setFront(FilmMode& mode) { m_front = &mode; }
    [[nodiscard]] const FilmMode& front() const { return *m_front; }
    /// Shows the marks of the first mode, and which one is selected.
    void showMarks();

    // What the keys and the mouse do, handed to a mode.
    void markHere();
    void moveMarkHere();
    void nudgeMark(int frames);
    void deleteMark();
    void stepMark(int step);
    void stepGate(int step);
    void goToMark(std::size_t number);
    void dropMark(std::size_t number, double seconds);
    void pressNumber(int number);

signals:
    void searchWanted(); ///< the coach wants to say where the films are

private:
    void makeLabels(const Parts& parts);
    void makeLayout();
    void connectParts();
    void showState();
    void showHealth();
    [[nodiscard]] FilmMode& first() const { return *m_modes.front(); }
    [[nodiscard]] FilmMode& marking() const;
    [[nodiscard]] FilmMode& editing() const;

    FilmDeck* m_deck; ///< goes before the views, which listen to it
    FilmSound* m_sound;
    QString m_warning; ///< before what is odd about a film
    QStringList m_films;
    FilmKey m_key;
    std::map<FilmKey, CMTime> m_places; ///< where films were left
    std::vector<FilmMode*> m_modes;
    FilmMode* m_front = nullptr;

    FilmGrid* m_grid;
    std::vector<FilmView*> m_views; ///< never empty
    QLabel* m_state;
    QLabel* m_health;
    QLabel* m_typing = nullptr;
    TimeLine* m_line;
    TickStrip* m_ticks;
    QVBoxLayout* m_column;
};

} // namespace kavela::desktop
