#include "painting/page_clip_files.h"

#include "cli/console.h"
#include "cli/progress_bar.h"
#include "page/clips/page_clips.h"

#include <vector>

namespace kavela::painting {

bool arePageClipsCut(std::span<const page::ClipOrder> clips) {
    std::vector<page::ClipFault> faults;
    {
        cli::ProgressBar bar(clips.size());
        faults = page::cutClips(clips, {}, [&bar](std::size_t) { bar.step(); });
    }
    for (const page::ClipFault& fault : faults)
        cli::logLine("No clip of " + cli::pathText(fault.film) + ": " + fault.reason);
    return faults.empty();
}

} // namespace kavela::painting
