#include "page/race_files.h"

#include "common/parallel.h"
#include "splitdata/loader.h"

#include <string_view>
#include <utility>

namespace kavela::page {

ReadRaces readRaces(std::span<const std::filesystem::path> paths) {
    std::vector<RecognisedSplitFile> files(paths.size());
    parallelFor(paths.size(), [&](std::size_t i) {
        files[i] = recogniseSplitFile(
            paths[i], [](std::string_view) {}, systemNow);
    });
    ReadRaces read;
    for (std::size_t i = 0; i < paths.size(); ++i) {
        if (files[i].version)
            read.races.push_back({std::move(files[i].document), paths[i]});
        else
            read.failed.push_back({paths[i], incompatibleText(paths[i], files[i].failures)});
    }
    return read;
}

} // namespace kavela::page
