#include "report/course_picture.h"

#include "common/json_encode.h"
#include "report/drawn_course.h"
#include "report/pdf_file.h"
#include "report/pdf_text.h"
#include "report/run_sheet.h"

#include <gmock/gmock.h>

#include <QBuffer>
#include <QPainter>

#include <random>

namespace kavela::test {

namespace {

using report::CoursePainting;

coursedesign001 upAndDown() {
    coursedesign001 design;
    design.gates = {{1, {0.2, 0.1}, {0.2, 0.2}}, {2, {0.6, 0.3}, {0.6, 0.4}}};
    design.banks = {{{0, 0.05}, {1, 0.05}}};
    design.lines = {{"Žofie", {{0.1, 0.15}, {0.9, 0.35}}}};
    return design;
}

QImage imageOf(const Blob& picture) {
    return QImage::fromData(picture.bytes.data(), static_cast<int>(picture.bytes.size()));
}

std::string textOf(const report::PagedReport& sheet) {
    const TempFolder folder;
    const std::filesystem::path file = folder.path() / "sheet.pdf";
    report::writePdf(sheet, file);
    std::string text;
    for (const std::string& page : pagesOf(file))
        text += page;
    return text;
}

QColor colourAt(const QImage& image, double x, double y) {
    return image.pixelColor(static_cast<int>(x * image.width()),
                            static_cast<int>(y * image.width()));
}

TEST(CoursePicture, IsAPictureToOthersThatAlsoReadTheTextWithin) {
    const Blob picture = report::coursePicture(CoursePainting(upAndDown(), 0.5, {{2}, {}}));
    const QImage image = imageOf(picture);
    EXPECT_EQ(image.size(), QSize(1600, 800));
    EXPECT_EQ(image.text(QStringLiteral("kavela-course")).toStdString(), encode(upAndDown()));
    const QColor down = colourAt(image, 0.2, 0.1);
    const QColor up = colourAt(image, 0.6, 0.3);
    EXPECT_GT(down.green(), down.red());
    EXPECT_GT(up.red(), up.green()) << "direction is what the race says";
    EXPECT_EQ(colourAt(image, 0.95, 0.45), QColor(Qt::white));
}

TEST(CoursePicture, HasLessPixelsWhereAPhotoWouldMakeItTooLarge) {
    QImage noise(800, 600, QImage::Format_RGB32);
    std::mt19937 dice(5);
    for (int y = 0; y < noise.height(); ++y)
        for (int x = 0; x < noise.width(); ++x)
            noise.setPixel(x, y, static_cast<uint>(dice() & 0xffffffU));
    QByteArray png;
    QBuffer buffer(&png);
    buffer.open(QIODevice::WriteOnly);
    noise.scaled(1600, 1200, Qt::IgnoreAspectRatio, Qt::SmoothTransformation).save(&buffer, "PNG");
    const report::CourseGround ground =
        report::courseGround({reinterpret_cast<const unsigned char*>(png.constData()),
                              static_cast<std::size_t>(png.size())});
    EXPECT_EQ(ground.heightOfWidth, 0.75);
    coursedesign001 design = upAndDown();
    design.background = ground.picture;
    const Blob picture = report::coursePicture(CoursePainting(design, ground.heightOfWidth, {}));
    EXPECT_LE(picture.bytes.size(), MostCourseBytes);
    EXPECT_LT(imageOf(picture).width(), 1600);
    EXPECT_EQ(encode(courseIn(picture).value().design), encode(design));
}

TEST(CoursePicture, APlaceOfThePictureIsFoundWhereItIsPainted) {
    const CoursePainting course({}, 0.5, {});
    const QRectF picture = course.pictureIn(QRectF(10, 20, 300, 400));
    EXPECT_EQ(picture, QRectF(10, 145, 300, 150));
    const coursepoint001 point = CoursePainting::pointAt({85, 220}, picture);
    EXPECT_EQ(CoursePainting::placeOf(point, picture), QPointF(85, 220));
    EXPECT_DOUBLE_EQ(point.x, 0.25);
    EXPECT_DOUBLE_EQ(point.y, 0.25);
}

TEST(DrawnCourse, TakesThePlaceOfTheRiverAndListsPenaltiesThatItCannotShow) {
    splittakerdata031 race;
    race.info.gates = 3;
    race.info.totalsplits = 1;
    race.info.definedsections = {{1, 2, 3}};
    race.info.splitTitles = {"Finish"};
    athletedata031 run;
    run.names = {"Nova"};
    run.sectioninfo.times = {80};
    run.sectioninfo.pens = {2, 0, 50};
    run.sectioninfo.totalpen = 52;
    race.athletes = {run};
    const auto sheet = [&] { return textOf(*report::runSheet(race, 0)); };
    EXPECT_THAT(sheet(), testing::HasSubstr("upstream gate")) << "the key of the river";
    race.info.coursedesign = report::coursePicture(CoursePainting(upAndDown(), 0.5, {}));
    EXPECT_THAT(sheet(), testing::AllOf(testing::HasSubstr("Not drawn: gate 3: +50"),
                                        testing::Not(testing::HasSubstr("upstream gate"))));
}

} // namespace

} // namespace kavela::test
