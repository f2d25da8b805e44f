#pragma once

#include "splitdata/document.h"

namespace kavela {

/// Gives each run of a document of the one-video releases, whose video name is empty, the name that
/// its film was given: "NAME PHASE.MOV" in a session labelled "Race", "NAME n.MOV" in any other,
/// n counting that athlete's runs in the file from 1.
void nameMissingVideos(splittakerdata031& document);

} // namespace kavela
