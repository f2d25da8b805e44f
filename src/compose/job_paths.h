#pragma once

#include "compose/compose_job.h"

#include <filesystem>

/// Where the files of a job are. While a job is being edited they are named in full; its file names
/// them from where it stands, so that a folder can be copied with the films that belong to it.
namespace kavela {

/// The job with the names of its files in full; `folder` is that of its file.
[[nodiscard]] composejob002 withFullNames(composejob002 job, const std::filesystem::path& folder);

/// The job with the names of its files as its file in `folder` holds them. A file that shares
/// nothing with the folder but the root, such as one of another disk, keeps its full name.
[[nodiscard]] composejob002 withNamesFrom(composejob002 job, const std::filesystem::path& folder);

} // namespace kavela
