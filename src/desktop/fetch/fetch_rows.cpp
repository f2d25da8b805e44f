#include "desktop/fetch/fetch_rows.h"

#include "common/display_text.h"
#include "desktop/shell/qt_text.h"

#include <QCoreApplication>
#include <QLocale>

#include <algorithm>

namespace kavela::desktop {

namespace {

using fetch::FilmResult;
using FilmState = fetch::PlannedFilm::State;

QString fetchTr(const char* text) {
    return QCoreApplication::translate("FetchWindow", text);
}

QString bytesText(std::int64_t bytes) {
    return QLocale().formattedDataSize(bytes, 1, QLocale::DataSizeSIFormat);
}

QString progressText(const FetchRow& row) {
    if (row.film.isPlaylist)
        return row.all > 0 && row.done == row.all
                   ? fetchTr("Put together…")
                   : fetchTr("Piece %1 of %2").arg(row.done).arg(row.all);
    if (row.all <= 0)
        return bytesText(row.done);
    if (row.done == row.all)
        return fetchTr("Checked…");
    return fetchTr("%1 %, %2 of %3")
        .arg(row.done * 100 / row.all)
        .arg(bytesText(row.done), bytesText(row.all));
}

Cell stateCell(const FetchRow& row) {
    const bool isFault = row.result && row.result->kind == FilmResult::Kind::Failed;
    const bool isOff = !row.canBeTicked() && !row.result;
    const QString text = stateText(row);
    return {.text = text,
            .tip = text,
            .look = isFault ? Cell::Look::Warning
                    : isOff ? Cell::Look::Quiet
                            : Cell::Look::Plain};
}

QString nameOfFile(const FetchRow& row) {
    const bool hasName = row.result && row.result->kind == FilmResult::Kind::Fetched;
    return qtText(validUtf8(hasName ? row.result->name : row.film.name));
}

std::optional<double> sizeOf(const FetchRow& row) {
    if (row.film.size)
        return static_cast<double>(*row.film.size);
    if (!row.film.isPlaylist && row.all > 0)
        return static_cast<double>(row.all);
    return std::nullopt;
}

qsizetype countOf(const std::vector<FetchRow>& rows, FilmResult::Kind kind) {
    return std::ranges::count_if(
        rows, [&](const FetchRow& row) { return row.result && row.result->kind == kind; });
}

} // namespace

bool FetchRow::canBeTicked() const {
    const bool isThere = result && result->kind == FilmResult::Kind::Fetched;
    return !isThere && (film.state == FilmState::Wanted || film.state == FilmState::Doubtful);
}

QString stateText(const FetchRow& row) {
    if (row.isRunning)
        return progressText(row);
    if (row.isWaiting)
        return fetchTr("Waits");
    if (row.result)
        return row.result->kind == FilmResult::Kind::Fetched
                   ? fetchTr("✓ Fetched")
                   : qtText(validUtf8(row.result->reason));
    return qtText(validUtf8(row.film.note));
}

ColumnModel<FetchRow>::Columns fetchColumns(const TickRow& tick) {
    return {{.title = fetchTr("Fetch"),
             .show =
                 [](const FetchRow& row) {
                     return Cell{.isTicked = row.isTicked,
                                 .isLocked = !row.canBeTicked() || row.isRunning || row.isWaiting};
                 },
             .tick = [tick](const std::size_t& place, const FetchRow&,
                            bool isTicked) { tick(place, isTicked); }},
            numberColumn<FetchRow>(
                fetchTr("Bib"),
                [](const FetchRow& row) { return static_cast<double>(row.film.run.bib); },
                [](double bib) { return QString::number(bib, 'f', 0); }),
            textColumn<FetchRow>(fetchTr("Name"),
                                 [](const FetchRow& row) {
                                     QStringList names;
                                     for (const std::string& name : row.film.run.names)
                                         names.append(qtText(name));
                                     return names.join(QStringLiteral(" / "));
                                 }),
            textColumn<FetchRow>(fetchTr("Category"),
                                 [](const FetchRow& row) { return qtText(row.film.run.category); }),
            textColumn<FetchRow>(fetchTr("Phase"),
                                 [](const FetchRow& row) { return qtText(row.film.run.phase); }),
            {.title = fetchTr("File"),
             .show =
                 [](const FetchRow& row) {
                     return Cell{.text = nameOfFile(row),
                                 .tip = row.film.state == FilmState::NoFilm
                                            ? QString()
                                            : qtText(row.film.address.text())};
                 }},
            numberColumn<FetchRow>(
                fetchTr("Size"), sizeOf,
                [](double bytes) { return bytesText(static_cast<std::int64_t>(bytes)); }),
            textColumn<FetchRow>(fetchTr("Server"),
                                 [](const FetchRow& row) {
                                     return row.film.state == FilmState::NoFilm
                                                ? QString()
                                                : qtText(row.film.address.site());
                                 }),
            {.title = fetchTr("State"), .show = stateCell}};
}

QString tickedText(const std::vector<FetchRow>& rows) {
    qsizetype ticked = 0;
    std::int64_t bytes = 0;
    bool isAll = true;
    for (const FetchRow& row : rows) {
        if (!row.isTicked)
            continue;
        ++ticked;
        bytes += row.film.size.value_or(0);
        isAll = isAll && row.film.size.has_value();
    }
    const QString count =
        ticked == 1 ? fetchTr("1 film is ticked") : fetchTr("%1 films are ticked").arg(ticked);
    return ticked > 0 && isAll ? fetchTr("%1, %2").arg(count, bytesText(bytes)) : count;
}

QString resultText(const std::vector<FetchRow>& rows) {
    QStringList parts{fetchTr("%1 fetched").arg(countOf(rows, FilmResult::Kind::Fetched))};
    if (const qsizetype count = countOf(rows, FilmResult::Kind::NotThere); count > 0)
        parts.append(fetchTr("%1 not there yet").arg(count));
    if (const qsizetype count = countOf(rows, FilmResult::Kind::Failed); count > 0)
        parts.append(fetchTr("%1 failed").arg(count));
    if (const qsizetype count = countOf(rows, FilmResult::Kind::Cancelled); count > 0)
        parts.append(fetchTr("%1 cancelled").arg(count));
    return parts.join(QStringLiteral(", "));
}

} // namespace kavela::desktop
