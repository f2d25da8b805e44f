#pragma once

#include <QObject>

#include <memory>

namespace kavela {
class FrameCache;
}

namespace kavela::desktop {

class Workspace;

/// The decoded frames of the films of all windows, under one limit.
class FilmMemory : public QObject {
    Q_OBJECT

public:
    /// The one of the workspace, which keeps it.
    [[nodiscard]] static const std::shared_ptr<FrameCache>& of(Workspace& workspace);

private:
    explicit FilmMemory(Workspace& workspace);

    std::shared_ptr<FrameCache> m_frames;
};

} // namespace kavela::desktop
