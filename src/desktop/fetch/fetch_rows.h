#pragma once

#include "desktop/shell/tables/column_model.h"
#include "fetch/fetch_plan.h"
#include "fetch/running_film.h"

#include <functional>
#include <optional>

namespace kavela::desktop {

/// A film that would be fetched, is being fetched or was.
struct FetchRow {
    fetch::PlannedFilm film;
    bool isTicked = false;
    bool isWaiting = false; ///< in a job that runs, and not begun
    bool isRunning = false;
    qint64 done = 0; ///< bytes, or pieces of a film in pieces
    qint64 all = 0;  ///< 0 where it is not known
    std::optional<fetch::FilmResult> result = std::nullopt;

    /// Whether the coach decides about it.
    [[nodiscard]] bool canBeTicked() const;
};

/// Hears that the coach ticked a row, or took its tick away.
using TickRow = std::function<void(std::size_t place, bool isTicked)>;

[[nodiscard]] ColumnModel<FetchRow>::Columns fetchColumns(const TickRow& tick);

/// What there is to say of a row: how far it is, what became of it, or why it is not fetched.
[[nodiscard]] QString stateText(const FetchRow& row);

/// "12 of 40 films, 1.2 GB" of what is ticked.
[[nodiscard]] QString tickedText(const std::vector<FetchRow>& rows);
/// "11 fetched, 1 not there yet, 2 failed" of what a job did.
[[nodiscard]] QString resultText(const std::vector<FetchRow>& rows);

} // namespace kavela::desktop
