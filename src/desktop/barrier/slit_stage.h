#pragma once

#include "video/index.h"

#include <QSplitter>

#include <memory>

namespace kavela::desktop {

class FilmDeck;
class FilmView;
class LineOverlay;
class SlitView;
class Workspace;

/// A film with lines over it, above the slit picture of one of them; its frame is the one under the
/// hair line. Places are columns of the slit picture.
class SlitStage : public QSplitter {
    Q_OBJECT

public:
    explicit SlitStage(Workspace& workspace);
    ~SlitStage() override;

    [[nodiscard]] FilmDeck& deck() const { return *m_deck; }
    [[nodiscard]] FilmView& film() const { return *m_film; }
    [[nodiscard]] LineOverlay& overlay() const { return *m_overlay; }
    [[nodiscard]] SlitView& slit() const { return *m_slit; }

    /// Shows a film in place of the one before.
    void open(const QString& film);
    /// The film as far as it is known; null before the first of it.
    [[nodiscard]] std::shared_ptr<const VideoIndex> index() const;

    /// The film follows, and stops where it plays.
    void setHair(double column);
    void stepHair(int frames); ///< to the middle of a frame
    void refineHair(double frames);

signals:
    void indexChanged(); ///< more of the film is known
    void failed(const QString& why);

private:
    void followFilm();

    FilmDeck* m_deck;
    FilmView* m_film;
    LineOverlay* m_overlay;
    SlitView* m_slit;
};

} // namespace kavela::desktop
