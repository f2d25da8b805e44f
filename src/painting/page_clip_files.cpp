#include "painting/page_clip_files.h"

#include "cli/console.h"
#include "cli/progress_bar.h"
#include "common/error.h"
#include "page/clips/page_clips.h"

namespace kavela::painting {

bool arePageClipsCut(std::span<const page::ClipOrder> clips) {
    try {
        cli::ProgressBar bar(clips.size());
        const auto faults = page::cutClips(clips, {}, [&bar](std::size_t) { bar.step(); });
        for (const page::ClipFault& fault : faults)
            cli::logLine("No clip of " + cli::pathText(fault.film) + ": " + fault.reason);
        return faults.empty();
    } catch (const FileError& error) {
        cli::logLine("The folder of the films could not be made: " + std::string(error.what()));
        return false;
    }
}

} // namespace kavela::painting
