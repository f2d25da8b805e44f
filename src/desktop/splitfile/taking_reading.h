#pragma once

#include "desktop/splitfile/taking_state.h"

#include <optional>
#include <string>

class QString;
class QWidget;

namespace kavela {
struct RecognisedSplitFile;
}

/// How split files come to split taking, which edits those of the present release.
namespace kavela::desktop {

class Workspace;

/// Tells that a file is of an older release, or none of ours.
void tellNotCurrent(const RecognisedSplitFile& read, const Workspace& workspace, QWidget* over);

/// A split file of the present release; none, after a message, when it is no such file.
[[nodiscard]] std::optional<splittakerdata031>
readCurrent(const QString& file, const Workspace& workspace, QWidget* over);

/// Which release wrote a file, and why it cannot be converted where it stands. `older` is of a
/// known release.
[[nodiscard]] QString whyOlder(const RecognisedSplitFile& older, const QString& file);

/// Work that the automatic save kept of the file at a path; none, with a line in the log, when it
/// cannot be read.
[[nodiscard]] std::optional<TakingState>
recoveredState(const std::string& kept, const QString& path, const Workspace& workspace);

} // namespace kavela::desktop
