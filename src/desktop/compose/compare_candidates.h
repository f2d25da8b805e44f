#pragma once

#include "compose/compose_job.h"

#include <QString>

#include <cstdint>
#include <filesystem>
#include <optional>
#include <stop_token>
#include <tuple>
#include <vector>

namespace kavela::desktop {

class Workspace;

/// A film that can be chosen for a comparison: of a camera of a run, or one by itself.
struct CompareCandidate {
    QString splitFile;       ///< path; empty for a film by itself
    std::int64_t run = 0;    ///< in its file, counted from 1
    std::int64_t camera = 1; ///< counted from 1
    QString film;            ///< path
    QString names;
    QString category;
    QString phase;
    std::optional<double> time = {}; ///< total of the run with penalties, in seconds
    bool isMarked = false;           ///< from its start to a split behind it, on this film
    double startsAt = 0;             ///< seconds of the film, where no start is marked

    /// By what it is told from others.
    using Key = std::tuple<QString, std::int64_t, std::int64_t, QString>;
    [[nodiscard]] Key key() const {
        return {splitFile, run, camera, splitFile.isEmpty() ? film : QString()};
    }
};

/// What was found in files that are to be compared.
struct FoundCandidates {
    std::vector<CompareCandidate> candidates;
    std::vector<QString> faults; ///< a sentence for each file that could not be read
};

/// The films of the runs of split files, and films by themselves. Any thread; a film stands in the
/// folder of its split file until placeCandidates() has looked for it. Ends early, with what was
/// found, once `stop` is requested.
[[nodiscard]] FoundCandidates readCandidates(const QStringList& paths, const std::stop_token& stop);

/// Looks for the films where the coach found them once. Interface thread.
void placeCandidates(const Workspace& workspace, std::vector<CompareCandidate>& candidates);

/// The film of a job that a candidate stands for.
[[nodiscard]] composefilm002 filmOfCandidate(const CompareCandidate& candidate);

/// Whether a film of a job is the candidate.
[[nodiscard]] bool isCandidate(const composefilm002& film, const CompareCandidate& candidate);

/// Brings a job's range to what its films can show: those without marks, which have no splits, are
/// shown whole, from their start to the end of the longest. A range in seconds stays. `known` are
/// those candidates that were read.
void settleRange(composejob002& job, const std::vector<CompareCandidate>& known);

} // namespace kavela::desktop
