#include "desktop/penalties/course_picture.h"

#include "splitdata/loader.h"

#include <QBuffer>
#include <QImageReader>

#include <algorithm>

namespace kavela::desktop {

namespace {
constexpr int LargestSide = 2400; ///< pixels: more than a screen shows of it
} // namespace

CoursePicture coursePictureOf(const QByteArray& bytes) {
    CoursePicture picture;
    if (bytes.isEmpty())
        return picture;
    QBuffer buffer;
    buffer.setData(bytes);
    QImageReader reader(&buffer);
    reader.setAutoTransform(true); // a phone's photograph of the plan
    if (const QSize size = reader.size(); std::max(size.width(), size.height()) > LargestSide)
        reader.setScaledSize(size.scaled(LargestSide, LargestSide, Qt::KeepAspectRatio));
    picture.image = reader.read();
    picture.isBroken = picture.image.isNull();
    return picture;
}

CoursePicture coursePictureIn(const std::filesystem::path& file) {
    const RecognisedSplitFile read = recogniseSplitFile(
        file, [](std::string_view) {}, [] { return ReferenceDate(); });
    if (!read.version)
        return {};
    const auto& bytes = read.document.info.coursedesign.bytes;
    CoursePicture picture = coursePictureOf(QByteArray(reinterpret_cast<const char*>(bytes.data()),
                                                       static_cast<qsizetype>(bytes.size())));
    picture.drawn = report::sharedCourse(read.document.info);
    return picture;
}

} // namespace kavela::desktop
