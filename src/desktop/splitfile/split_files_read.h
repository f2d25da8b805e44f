#pragma once

#include "splitdata/loader.h"

#include <QStringList>

#include <functional>
#include <vector>

class QWidget;

/// Split files out of which something is taken over, which edits none of them.
namespace kavela::desktop {

class BackgroundWork;
class Workspace;

/// Gets the files that were read, in the order in which they were asked for: also those that are no
/// split files.
using TakeSplitFiles = std::function<void(std::vector<RecognisedSplitFile> files)>;

/// Reads split files beside a window, which is locked meanwhile where that takes long. One of an
/// older release is read as it is and stays so.
void readSplitFiles(BackgroundWork& work, const Workspace& workspace, const QStringList& paths,
                    QWidget* over, const TakeSplitFiles& take);

/// Whether it is a split file of any release; told where it is none.
[[nodiscard]] bool isSplitFile(const RecognisedSplitFile& file, const Workspace& workspace,
                               QWidget* over);

} // namespace kavela::desktop
