#pragma once

#include "report/drawn_course.h"

#include <QImage>

#include <filesystem>

namespace kavela::desktop {

/// The drawing of its course that a split file holds.
struct CoursePicture {
    QImage image;                    ///< null where there is none
    report::SharedCourse drawn = {}; ///< where it can be painted from its parts; null otherwise
    bool isBroken = false;           ///< there are bytes, but no picture can be made of them
};

/// Reads it from a split file of any release; none where the file cannot be read. Takes as long as
/// the file is large: to be called beside the window. Nothing is written.
[[nodiscard]] CoursePicture coursePictureIn(const std::filesystem::path& file);

/// Of the bytes themselves, PNG or JPEG; those of a huge one are made smaller as they are read.
[[nodiscard]] CoursePicture coursePictureOf(const QByteArray& bytes);

} // namespace kavela::desktop
