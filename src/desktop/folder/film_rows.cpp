#include "desktop/folder/film_rows.h"

#include "desktop/shell/qt_text.h"
#include "desktop/shell/shown_number.h"

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>
#include <cmath>
#include <functional>
#include <utility>

namespace kavela::desktop {

namespace {

QString filmsText(const char* text) {
    return QCoreApplication::translate("Films", text);
}

QString fileNameOf(const ListedFilm& film) {
    return qtText(film.path.filename().string());
}

QString crewOf(const ListedFilm& film) {
    return joined(film.names);
}

Column<FilmRow, QString> filmTextColumn(const QString& title,
                                        std::function<QString(const FilmRow&)> told) {
    Column<FilmRow, QString> column;
    column.title = title;
    column.show = [told = std::move(told)](const FilmRow& row) { return Cell{told(row)}; };
    return column;
}

Cell filmNameCell(const FilmRow& row) {
    Cell cell{.text = fileNameOf(row.film)};
    if (!row.fault.isEmpty()) {
        cell.look = Cell::Look::Warning;
        cell.tip = row.fault;
    }
    return cell;
}

Cell watchedCell(const FilmRow& row) {
    return {.text = row.isWatched ? QStringLiteral("●") : QString(),
            .sortValue = row.isWatched ? 1.0 : 0.0,
            .tip = row.isWatched ? filmsText("Watched: 80 % of it was shown") : QString()};
}

} // namespace

QString lengthText(double seconds) {
    const auto tenths = std::llround(seconds * 10);
    return shownNumbers(QStringLiteral("%1:%2.%3")
                            .arg(tenths / 600)
                            .arg(tenths / 10 % 60, 2, 10, QLatin1Char('0'))
                            .arg(tenths % 10));
}

QString titleOf(const ListedFilm& film) {
    return film.names.empty() ? qtText(film.path.stem().string()) : crewOf(film);
}

QString detailsOf(const FilmRow& row) {
    QStringList details;
    if (row.film.bib)
        details.append(QString::number(*row.film.bib));
    for (const std::string& text : {row.film.category, row.film.phase})
        if (!text.empty())
            details.append(qtText(text));
    if (row.seconds)
        details.append(lengthText(*row.seconds));
    return details.join(QStringLiteral(" · "));
}

ColumnModel<FilmRow, QString>::Columns filmColumns() {
    using FilmColumn = Column<FilmRow, QString>;
    FilmColumn bib{.title = filmsText("Bib"),
                   .kind = ColumnKind::Number,
                   .show = [](const FilmRow& row) {
                       return row.film.bib ? Cell{.text = QString::number(*row.film.bib),
                                                  .number = *row.film.bib}
                                           : Cell{};
                   }};
    FilmColumn length{.title = filmsText("Length"),
                      .tip = filmsText("Minutes and seconds"),
                      .kind = ColumnKind::Number,
                      .show = [](const FilmRow& row) {
                          return row.seconds
                                     ? Cell{.text = lengthText(*row.seconds), .number = row.seconds}
                                     : Cell{};
                      }};
    return {{.title = QStringLiteral("●"), .tip = filmsText("Watched"), .show = watchedCell},
            {.title = filmsText("Film"), .show = filmNameCell},
            filmTextColumn(filmsText("Name"),
                           [](const FilmRow& row) { return crewOf(row.film); }),
            std::move(bib),
            filmTextColumn(filmsText("Category"),
                           [](const FilmRow& row) { return qtText(row.film.category); }),
            filmTextColumn(filmsText("Phase"),
                           [](const FilmRow& row) { return qtText(row.film.phase); }),
            std::move(length)};
}

ColumnModel<TagRow, QString>::Columns tagColumns() {
    using TagColumn = Column<TagRow, QString>;
    return {{.title = filmsText("Tag"),
             .show =
                 [](const TagRow& row) {
                     return Cell{.text = qtText(row.tag.name),
                                 .tip = row.tag.isOfSplitFile
                                            ? filmsText("Of the split file: split taking edits it")
                                            : QString()};
                 }},
            {.title = filmsText("Name"),
             .show = [](const TagRow& row) { return Cell{.text = row.crew}; }},
            {.title = filmsText("Film"),
             .show = [](const TagRow& row) { return Cell{.text = fileNameOf(row.film)}; }},
            {.title = filmsText("At"),
             .tip = filmsText("Moment of the film, minutes and seconds"),
             .kind = ColumnKind::Number,
             .show = [](const TagRow& row) {
                 const double seconds = row.tag.moment.seconds();
                 return Cell{.text = lengthText(std::max(seconds, 0.0)), .number = seconds};
             }}};
}

QString tagKey(const TagRow& row) {
    return row.path + '\n' + QString::number(row.number) + '\n' + qtText(row.tag.name);
}

} // namespace kavela::desktop
