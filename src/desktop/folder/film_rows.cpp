#include "desktop/folder/film_rows.h"

#include "desktop/shell/qt_text.h"
#include "desktop/shell/shown_number.h"

#include <QCoreApplication>
#include <QPixmap>
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

Column<FilmRow, QString> filmColumn(const QString& title,
                                    std::function<Cell(const FilmRow&)> show) {
    Column<FilmRow, QString> column;
    column.title = title;
    column.show = std::move(show);
    return column;
}

Column<FilmTagRow, QString> tagColumn(const QString& title,
                                      std::function<Cell(const FilmTagRow&)> show) {
    Column<FilmTagRow, QString> column;
    column.title = title;
    column.show = std::move(show);
    return column;
}

/// Keeps the place of a picture that is still to come: names do not move when it does.
QIcon unseenLook() {
    static const QIcon empty = [] {
        QPixmap pixmap(RowLook);
        pixmap.fill(Qt::transparent);
        return QIcon(pixmap);
    }();
    return empty;
}

/// A film whose name tells nobody is known by its file's.
Cell crewCell(const FilmRow& row) {
    Cell cell{titleOf(row.film)};
    cell.badge = row.look.isNull() ? unseenLook() : row.look;
    if (!row.fault.isEmpty()) {
        cell.look = Cell::Look::Warning;
        cell.tip = row.fault;
    }
    return cell;
}

Cell watchedCell(const FilmRow& row) {
    Cell cell;
    cell.sortValue = row.isWatched ? 1.0 : 0.0;
    if (row.isWatched) {
        cell.text = QStringLiteral("●");
        cell.tip = filmsText("Watched: 80 % of it was shown");
    }
    return cell;
}

Cell bibCell(const FilmRow& row) {
    Cell cell;
    if (row.film.bib) {
        cell.text = QString::number(*row.film.bib);
        cell.number = *row.film.bib;
    }
    return cell;
}

Cell lengthCell(const FilmRow& row) {
    Cell cell;
    if (row.seconds)
        cell.text = lengthText(*row.seconds);
    cell.number = row.seconds;
    return cell;
}

Cell tagNameCell(const FilmTagRow& row) {
    Cell cell{qtText(row.tag.name)};
    if (row.tag.isOfSplitFile)
        cell.tip = filmsText("Of the split file: split taking edits it");
    return cell;
}

Cell momentCell(const FilmTagRow& row) {
    const double seconds = row.tag.moment.seconds();
    Cell cell{lengthText(std::max(seconds, 0.0))};
    cell.number = seconds;
    return cell;
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
    const auto text = [](const ListedFilm& film, std::string ListedFilm::*member) {
        return qtText(film.*member);
    };
    auto watched = filmColumn(QStringLiteral("●"), watchedCell);
    watched.tip = filmsText("Watched");
    auto bib = filmColumn(filmsText("Bib"), bibCell);
    bib.kind = ColumnKind::Number;
    auto length = filmColumn(filmsText("Length"), lengthCell);
    length.tip = filmsText("Minutes and seconds");
    length.kind = ColumnKind::Number;
    return {
        std::move(watched),
        filmColumn(filmsText("Name"), crewCell),
        std::move(bib),
        filmColumn(
            filmsText("Category"),
            [text](const FilmRow& row) { return Cell{text(row.film, &ListedFilm::category)}; }),
        filmColumn(filmsText("Phase"),
                   [text](const FilmRow& row) { return Cell{text(row.film, &ListedFilm::phase)}; }),
        std::move(length),
        filmColumn(filmsText("Film"),
                   [](const FilmRow& row) { return Cell{fileNameOf(row.film)}; })};
}

ColumnModel<FilmTagRow, QString>::Columns tagColumns() {
    auto at = tagColumn(filmsText("At"), momentCell);
    at.tip = filmsText("Moment of the film, minutes and seconds");
    at.kind = ColumnKind::Number;
    return {tagColumn(filmsText("Tag"), tagNameCell),
            tagColumn(filmsText("Name"), [](const FilmTagRow& row) { return Cell{row.crew}; }),
            tagColumn(filmsText("Film"),
                      [](const FilmTagRow& row) { return Cell{fileNameOf(row.film)}; }),
            std::move(at)};
}

QString tagKey(const FilmTagRow& row) {
    return row.path + '\n' + QString::number(row.number) + '\n' + qtText(row.tag.name);
}

} // namespace kavela::desktop
