#pragma once

#include <QList>
#include <QString>
#include <QWidget>

#include <array>
#include <cstddef>
#include <memory>
#include <optional>

class QAction;
class QCheckBox;
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
/// again. The shorter one stops at its end, where its time stands. Goes forwards and back by
/// frames, and slowly. What has no film, or none that can be read, says so in its place; the other
/// plays.
class ClipPair : public QWidget {
    Q_OBJECT

public:
    explicit ClipPair(Workspace& workspace, QWidget* parent = nullptr);
    ~ClipPair() override;

    /// Opens the films and plays them as soon as both stand at their beginnings.
    void play(const Clip& own, const Clip& reference);
    /// Closes the films.
    void clear();

    /// Whether there is something to play.
    [[nodiscard]] bool isEmpty() const { return !m_isOpen; }
    [[nodiscard]] bool isLooped() const;
    void setLooped(bool isLooped);

    /// The keys of the pair, for a menu of its window. They act wherever the focus is in the
    /// window, and are disabled while there is nothing to play.
    [[nodiscard]] QList<QAction*> playActions() const { return actions(); }

    /// The player. Its time is that of the own film, or of the reference's where that plays alone.
    [[nodiscard]] FilmDeck& deck() const { return *m_deck; }
    /// Own first, the reference's second.
    [[nodiscard]] FilmView& view(std::size_t side) const { return *m_sides.at(side).view; }
    /// What stands below a picture: whose run, and its time so far or at its end.
    [[nodiscard]] QString told(std::size_t side) const;

signals:
    /// The longer one has come to its end, or to its beginning backwards.
    void ended();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    struct Side {
        Clip clip;
        std::optional<std::size_t> camera; ///< of the deck; none without a film
        FilmView* view = nullptr;
        QLabel* time = nullptr;
        QString fault; ///< why there is no picture
    };

    void makeActions();
    void makeLayout();
    void open();
    void makeView(Side& side, std::size_t emptyCamera);
    void follow();
    void fail(std::size_t camera, const QString& message);
    void playWhenReady();
    [[nodiscard]] bool isAtBeginning(const Side& side) const;
    [[nodiscard]] bool isAtEnd() const;
    void playOrPause();
    void playAgain();
    void showTime(const Side& side);
    void showTimes();

    FilmDeck* m_deck;
    FilmGrid* m_grid;
    std::array<Side, 2> m_sides;
    QLabel* m_rate;
    QCheckBox* m_loop;
    bool m_isOpen = false;
    bool m_isStarting = false; ///< plays as soon as both films stand at their beginnings
    bool m_wasPlaying = false;
};

} // namespace kavela::desktop
