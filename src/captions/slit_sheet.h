#pragma once

#include "vision/slit_picture.h"

#include <QImage>
#include <QString>

#include <filesystem>
#include <vector>

namespace kavela {

/// A mark that is painted over a slit picture.
struct SlitSheetMark {
    double seconds = 0; ///< of the film
    QString label;
};

/// A part of a slit picture on a sheet: rows of it one below the other, each over its time scale.
struct SlitSheet {
    FrameNumber first = 0; ///< frame of the first column
    FrameNumber last = 0;
    std::vector<SlitSheetMark> marks;
};

/// The sheet in rows of at most 3,000 frames. A column of pixels is a frame; the height is that of
/// the picture, and less where the sheet would get too large.
[[nodiscard]] QImage paintSlitSheet(const SlitPicture& picture, const VideoIndex& index,
                                    const SlitSheet& sheet);

/// Writes a picture as PNG. Throws FileError; what stood there then stays.
void writePng(const QImage& image, const std::filesystem::path& path);

} // namespace kavela
