#pragma once

#include "analysis/race_set.h"
#include "common/reference_date.h"
#include "desktop/shell/file_reading.h"
#include "desktop/shell/file_stamp.h"

#include <QString>

#include <memory>

namespace kavela::desktop {

/// A split file of any release as it was read for the analyzer.
struct ReadRace {
    QString path; ///< the absolute one
    bool isRead = false;
    ReadingNotes notes;  ///< what there is to tell of it, also why it could not be read
    QString upgradeNote; ///< what the file was before it was opened, when of an older release
    FileStamp stamp;     ///< of the file, once it was upgraded
    infodata031 info;
    RaceSet set;
};

/// Reads a split file, upgraded in place with its previous content kept. On any thread.
[[nodiscard]] std::shared_ptr<ReadRace> readRace(const QString& path, const Clock& clock);

} // namespace kavela::desktop
