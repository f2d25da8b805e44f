#pragma once

#include "desktop/folder/film_rows.h"

#include <QHash>
#include <QListWidget>
#include <QStringList>

#include <vector>

namespace kavela::desktop {

class ThumbnailStore;

/// Films as small pictures with their crew and what else is known of them.
class FilmTiles : public QListWidget {
    Q_OBJECT

public:
    explicit FilmTiles(ThumbnailStore& looks, QWidget* parent = nullptr);

    /// Shows films in this order; those that were chosen stay so.
    void setFilms(const std::vector<const FilmRow*>& rows);
    [[nodiscard]] QString currentFilm() const;
    /// In the order of the screen.
    [[nodiscard]] QStringList chosenFilms() const;
    void choose(const QString& film);
    /// Those whose pictures are seen, then the others.
    [[nodiscard]] QStringList filmsBySight() const;

    /// Of a film that is shown here.
    struct TileText {
        QString title;
        QString details;
        bool isWatched = false;
        QString fault = {};
    };
    [[nodiscard]] TileText textOf(const QString& film) const { return m_texts.value(film); }

signals:
    void chosen();
    /// Other films come into sight.
    void sightChanged();

protected:
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    QHash<QString, TileText> m_texts;
};

} // namespace kavela::desktop
