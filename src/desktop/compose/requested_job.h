#pragma once

#include "compose/compose_job.h"
#include "desktop/compose/compare_candidates.h"
#include "desktop/compose/compare_request.h"

#include <QStringList>

#include <vector>

namespace kavela::desktop {

/// A comparison as another window asked for it.
struct RequestedJob {
    composejob002 job;
    std::vector<CompareCandidate> films; ///< by themselves, as they can be chosen
    QStringList files;                   ///< split files to be read, each once
    QString folder;                      ///< where it would be written
    bool isCutToFour = false;            ///< more films were asked for
};

/// The runs are taken to be marked.
[[nodiscard]] RequestedJob jobOfRequest(const CompareRequest& request);

/// A place in a job in the words of the window, such as "Film 2" for "films[1].run"; empty where it
/// is of no film.
[[nodiscard]] QString placeInJob(const QString& where);

} // namespace kavela::desktop
