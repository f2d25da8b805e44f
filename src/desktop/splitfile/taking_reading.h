#pragma once

#include "desktop/shell/file_reading.h"
#include "desktop/splitfile/day_keeping.h"
#include "desktop/splitfile/taking_state.h"
#include "splitdata/loader.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <string>

class QWidget;

/// How split files come to split taking, which edits those of the present release.
namespace kavela::desktop {

class Workspace;

/// A race as it was found on the disk.
struct TakingRead {
    QString file;                            ///< the split file, or the one that will be made
    std::optional<RecognisedSplitFile> read; ///< none in a folder without a split file
    QStringList films;                       ///< of such a folder
    DayKeeping::Found day;
    ReadingNotes notes;
};

/// Reads a split file, or that of a folder of films with what else stands there. For any thread.
[[nodiscard]] TakingRead readTaking(const QString& path, const Clock& clock);

/// Tells that a file is of an older release, or none of ours.
void tellNotCurrent(const RecognisedSplitFile& read, const Workspace& workspace, QWidget* over);

/// What another split file has for a race; nothing, after a message, where it is of an older
/// release, or has no runs for a race that has some.
[[nodiscard]] std::optional<TakingState> importedRace(RecognisedSplitFile read,
                                                      const TakingState& into,
                                                      const Workspace& workspace, QWidget* over);

/// Which release wrote a file, and why it cannot be converted where it stands. `older` is of a
/// known release.
[[nodiscard]] QString whyOlder(const RecognisedSplitFile& older, const QString& file);

/// Work that the automatic save kept of the file at a path; none, with a line in the log, when it
/// cannot be read.
[[nodiscard]] std::optional<TakingState>
recoveredState(const std::string& kept, const QString& path, const Workspace& workspace);

} // namespace kavela::desktop
