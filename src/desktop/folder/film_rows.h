#pragma once

#include "desktop/shell/tables/column_model.h"
#include "splittaking/folder/film_list.h"

#include <QIcon>
#include <QSize>
#include <QString>

#include <optional>
#include <vector>

/// What the lists of the films of a folder show.
namespace kavela::desktop {

struct FilmRow {
    ListedFilm film;
    QString path;
    bool isWatched = false;
    std::optional<double> seconds = {}; ///< how long it is, once it was looked at
    QString fault = {};                 ///< why it cannot be shown
    QIcon look = {};                    ///< its small picture, once it was looked at
};

/// A tag of one of the films.
struct FilmTagRow {
    QString path;
    QString crew;
    ListedFilm film; ///< that it is on
    FilmTag tag;
    std::size_t number = 0; ///< among the tags of the film
};

/// The size of the small pictures in front of the names of films.
inline constexpr QSize RowLook{64, 36};

/// Rows are known by the path of their film.
[[nodiscard]] ColumnModel<FilmRow, QString>::Columns filmColumns();
/// Rows are known by tagKey().
[[nodiscard]] ColumnModel<FilmTagRow, QString>::Columns tagColumns();
[[nodiscard]] QString tagKey(const FilmTagRow& row);

/// "Ann Lee", or the film's own name where no crew is known.
[[nodiscard]] QString titleOf(const ListedFilm& film);
/// "12 · K1W · Semifinal · 1:32.4", as far as it is known.
[[nodiscard]] QString detailsOf(const FilmRow& row);
/// "1:32.4"
[[nodiscard]] QString lengthText(double seconds);

} // namespace kavela::desktop
