#include "desktop/film/film_memory.h"

#include "desktop/shell/workspace.h"
#include "video/frame_cache.h"
#include "video/machine_memory.h"

namespace kavela::desktop {

FilmMemory::FilmMemory(Workspace& workspace)
    : QObject(&workspace), m_frames(std::make_shared<FrameCache>(frameMemory(machineMemory()))) {}

const std::shared_ptr<FrameCache>& FilmMemory::of(Workspace& workspace) {
    auto* memory = workspace.findChild<FilmMemory*>(QString(), Qt::FindDirectChildrenOnly);
    if (!memory)
        memory = new FilmMemory(workspace); // the workspace owns it
    return memory->m_frames;
}

} // namespace kavela::desktop
