#pragma once

#include <QList>
#include <QString>
#include <QTimer>
#include <QWidget>

#include <array>
#include <cstddef>
#include <optional>
#include <vector>

class QAction;
class QLabel;

namespace kavela::desktop {

class FilmDeck;
class FilmGrid;
class FilmView;
class Workspace;

/// A stretch of a run on a film, such as from one mark to the next.
struct Clip {
    QString film;    ///< path; empty where the run has none
    double from = 0; ///< seconds of the film
    double to = 0;
    QString caption; ///< whose run it is

    friend bool operator==(const Clip&, const Clip&) = default;
};

/// Plays stretches of two runs side by side, in step from their beginnings, once or again and
/// again. The shorter one stops at its end, where its time stands. What has no film, or none that
/// can be read, says so in its place; the other plays.
class ClipPair : public QWidget {
    Q_OBJECT

public:
    explicit ClipPair(Workspace& workspace, QWidget* parent = nullptr);
    ~ClipPair() override;

    /// Opens the films, and plays them at the speed last used as soon as they stand at their
    /// beginnings. A clip of nothing at all, as of a reference that nobody paddled, takes no room.
    void play(const Clip& own, const Clip& reference);
    /// Closes the films.
    void clear();
    /// Whether there is something to play.
    [[nodiscard]] bool canPlay() const;

    [[nodiscard]] bool isLooped() const;
    void setLooped(bool isLooped);

    /// What can be done with the clips, for a menu of the window. Their keys are heard in the whole
    /// window while there is something to play; the arrows go by frames where the focus is here.
    [[nodiscard]] QList<QAction*> playActions() const { return actions(); }

    /// The player. The longer clip leads.
    [[nodiscard]] FilmDeck& deck() const { return *m_deck; }
    /// Own first, the reference's second; null where it takes no room.
    [[nodiscard]] FilmView* view(std::size_t side) const { return m_sides.at(side).view; }
    /// What stands below a picture: whose run it is, and its time so far or at its end.
    [[nodiscard]] QString told(std::size_t side) const;

signals:
    /// The longer clip was played to its end, or back to its beginning.
    void ended();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    struct Side {
        Clip clip;
        QString fault;                          ///< why there is no film to play
        std::optional<std::size_t> camera = {}; ///< of the deck, where there is one
        QWidget* panel = nullptr;
        FilmView* view = nullptr;
        QLabel* time = nullptr;
        bool isAtEnd = false;
    };

    void makeSides();
    void makeActions();
    void makeButtons(QWidget& bar);
    template <class Act>
    QAction* add(const QString& text, const QString& brief, const QKeySequence& key, Act act);
    void open();
    void openFilms(const std::vector<Side*>& sides);
    void showSides();
    void fail(std::size_t camera, const QString& message);
    void startWhenReady();
    [[nodiscard]] bool isReady(const Side& side) const;
    void followState();
    void showFrame(std::size_t camera);
    void showTime(Side& side);
    void seekToStart();

    FilmDeck* m_deck;
    FilmGrid* m_grid;
    std::array<Side, 2> m_sides;
    QLabel* m_rate;
    QAction* m_loop = nullptr;
    double m_speed = 1;        ///< last used, forwards
    QTimer m_again;            ///< runs while the ends stand, before the clips begin again
    bool m_isStarting = false; ///< plays as soon as both films stand at their beginnings
    bool m_wasPlaying = false;
};

} // namespace kavela::desktop
