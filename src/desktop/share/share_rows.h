#pragma once

#include "desktop/shell/tables/column_model.h"
#include "share/folder_exchange.h"

#include <functional>
#include <optional>
#include <vector>

namespace kavela::desktop {

/// A file that is not the same on both sides, what would become of it, and what did.
struct SharedRow {
    share::ShareRow row;
    bool isLeftOut = false; ///< told only: the note says why
    bool isTicked = false;
    bool isWaiting = false; ///< among those that are being shared, and not begun
    bool isRunning = false;
    qint64 done = 0; ///< bytes
    qint64 all = 0;  ///< 0 where it is not known
    std::optional<share::ShareResult> result = std::nullopt;

    /// Whether the coach decides about it.
    [[nodiscard]] bool canBeTicked() const;
};

/// Hears that the coach ticked a row, or took its tick away.
using TickShared = std::function<void(std::size_t place, bool isTicked)>;

[[nodiscard]] ColumnModel<SharedRow>::Columns sharedColumns(const TickShared& tick);

/// The rows of a comparison. What moves a file is ticked, what deletes one is not.
[[nodiscard]] std::vector<SharedRow> sharedRows(const share::ShareSurvey& survey);

/// "3 new here, 12 new there, 1 changed on both sides" of all that differs.
[[nodiscard]] QString differenceText(const std::vector<SharedRow>& rows);
/// "12 shared, 1 kept twice, 2 failed" of what was done.
[[nodiscard]] QString sharedText(const std::vector<SharedRow>& rows);

} // namespace kavela::desktop
