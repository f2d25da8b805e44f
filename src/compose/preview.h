#pragma once

#include "compose/frame_mixer.h"
#include "video/picture.h"

#include <functional>
#include <memory>
#include <vector>

namespace kavela {

/// A composition on the screen, picture by picture, as it will be in the file. Used from one thread
/// at a time.
class ComposePreview {
public:
    /// As large as fits into the box, in the shape of the composition. `painter` may be null, and
    /// must outlive the preview. The films share the cache. Throws DecodeError as FrameMixer does.
    ComposePreview(const Composition& composition, const std::vector<OpenedFilm>& films,
                   VideoSize box, std::shared_ptr<FrameCache> cache, CaptionPainter* painter);

    /// How long the composed film is, in seconds.
    [[nodiscard]] double length() const { return m_mixer.length(); }
    [[nodiscard]] const FrameMixer& mixer() const { return m_mixer; }

    /// What is seen at a number of seconds of the composed film. Null when interrupted.
    [[nodiscard]] std::shared_ptr<const Picture>
    previewAt(double seconds, const std::function<bool()>& interrupt = {});

private:
    [[nodiscard]] std::shared_ptr<const Picture> shown();

    FrameMixer m_mixer;
    std::vector<std::unique_ptr<FilmPictures>> m_films; ///< null for one that is not there
    AvOwner<AVFrame> m_planes;
    AvOwner<SwsContext> m_colours;
};

} // namespace kavela
