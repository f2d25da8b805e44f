#include "video/picture.h"

#include "clips.h"
#include "video/frame_source.h"

#include <gtest/gtest.h>

#include <array>

extern "C" {
#include <libavutil/frame.h>
}

namespace kavela {
namespace {

using Colour = std::array<int, 3>;

struct Sample {
    const char* name;
    AVPixelFormat format;
    AVColorSpace matrix;
    AVColorRange range;
    VideoSize size;
    Colour luma;
    Colour redGreenBlue;
};

std::shared_ptr<AVFrame> plainFrame(const Sample& sample) {
    std::shared_ptr<AVFrame> frame(av_frame_alloc(), [](AVFrame* old) { av_frame_free(&old); });
    frame->format = sample.format;
    frame->width = sample.size.width;
    frame->height = sample.size.height;
    frame->colorspace = sample.matrix;
    frame->color_range = sample.range;
    EXPECT_EQ(av_frame_get_buffer(frame.get(), 0), 0);
    const bool isDeep = sample.format == AV_PIX_FMT_YUV420P10LE;
    for (std::size_t plane = 0; plane < 3; ++plane) {
        const int lines = plane == 0 ? frame->height : (frame->height + 1) / 2;
        const int value = sample.luma[plane];
        for (int i = 0; i < lines * frame->linesize[plane]; ++i)
            frame->data[plane][i] = static_cast<std::uint8_t>(!isDeep      ? value
                                                              : i % 2 == 0 ? value & 255
                                                                           : value >> 8);
    }
    return frame;
}

int channel(const Picture& picture, int x, int y, int byte) {
    return picture.pixels[static_cast<std::size_t>(y * picture.bytesPerLine + x * 4 + byte)];
}

constexpr VideoSize Small{64, 48};
constexpr VideoSize Large{1280, 720};
constexpr auto Usual = AV_PIX_FMT_YUV420P;
constexpr auto Deep = AV_PIX_FMT_YUV420P10LE;
constexpr auto Unsaid = AVCOL_SPC_UNSPECIFIED;
constexpr auto Limited = AVCOL_RANGE_MPEG;
constexpr auto Full = AVCOL_RANGE_JPEG;
constexpr auto UnsaidRange = AVCOL_RANGE_UNSPECIFIED;

TEST(Pictures, FollowTheMatrixAndRangeOfTheFilm) {
    // Full red, and white, by the formulas of the matrices.
    const std::vector<Sample> samples = {
        {"601", Usual, AVCOL_SPC_SMPTE170M, Limited, Large, {81, 90, 240}, {255, 0, 0}},
        {"709", Usual, AVCOL_SPC_BT709, Limited, Small, {63, 102, 240}, {255, 0, 0}},
        {"2020", Usual, AVCOL_SPC_BT2020_NCL, Limited, Small, {74, 97, 240}, {255, 0, 0}},
        {"709 full", Usual, AVCOL_SPC_BT709, Full, Small, {54, 99, 255}, {255, 0, 0}},
        {"small", Usual, Unsaid, UnsaidRange, Small, {81, 90, 240}, {255, 0, 0}},
        {"large", Usual, Unsaid, UnsaidRange, Large, {63, 102, 240}, {255, 0, 0}},
        {"yuvj", AV_PIX_FMT_YUVJ420P, Unsaid, UnsaidRange, Small, {76, 85, 255}, {255, 0, 0}},
        {"10 bit", Deep, AVCOL_SPC_BT709, Limited, Small, {250, 409, 960}, {255, 0, 0}},
        {"white", Usual, AVCOL_SPC_BT709, Limited, Small, {235, 128, 128}, {255, 255, 255}},
        {"full white", Usual, AVCOL_SPC_BT709, Full, Small, {235, 128, 128}, {235, 235, 235}}};
    for (const Sample& sample : samples) {
        PictureMaker maker({});
        const auto picture = maker.make(*plainFrame(sample));
        ASSERT_NE(picture, nullptr) << sample.name;
        for (int i = 0; i < 3; ++i)
            EXPECT_NEAR(channel(*picture, 20, 20, 2 - i), sample.redGreenBlue.at(std::size_t(i)), 3)
                << sample.name << " channel " << i;
        EXPECT_EQ(channel(*picture, 20, 20, 3), 255) << sample.name;
    }
}

TEST(Pictures, FitIntoTheBoxInShape) {
    EXPECT_EQ(fitInto({1920, 1080}, {960, 960}), (VideoSize{960, 540}));
    EXPECT_EQ(fitInto({1080, 1920}, {960, 960}), (VideoSize{540, 960}));
    EXPECT_EQ(fitInto({1920, 1080}, {}), (VideoSize{1920, 1080}));
    EXPECT_EQ(fitInto({4000, 10}, {40, 40}), (VideoSize{40, 1}));
}

/// The number in the blocks of a picture of 320 × 180 turned clockwise.
int numberIn(const Picture& picture, int rotation) {
    int number = 0;
    for (int block = 0; block < 16; ++block) {
        int x = block % 8 * 40 + 20;
        int y = block / 8 * 40 + 20;
        if (rotation == 90)
            std::tie(x, y) = std::pair(179 - y, x);
        else if (rotation == 180)
            std::tie(x, y) = std::pair(319 - x, 179 - y);
        else if (rotation == 270)
            std::tie(x, y) = std::pair(y, 319 - x);
        number |= (channel(picture, x, y, 1) > 128 ? 1 : 0) << block;
    }
    return number;
}

FrameSource sourceOf(const char* name) {
    return {readVideoIndex(clip(name)), std::make_shared<FrameCache>(std::size_t{4} << 20)};
}

TEST(Pictures, AreTurnedClockwise) {
    FrameSource source = sourceOf("h264_30.mp4");
    const auto result = source.frame(77);
    for (const int rotation : {0, 90, 180, 270}) {
        VideoFacts facts;
        facts.rotation = rotation;
        PictureMaker maker(facts);
        const auto picture = maker.make(*result.frame.samples);
        ASSERT_EQ(picture->width, rotation % 180 == 0 ? 320 : 180);
        EXPECT_EQ(numberIn(*picture, rotation), 77) << rotation;
    }
}

TEST(Pictures, AreSetUprightAsTheFileSays) {
    FrameSource lying = sourceOf("rotated.mp4");
    FrameSource upright = sourceOf("upright.mp4");
    const VideoFacts& facts = lying.index().facts();
    EXPECT_EQ(facts.shownSize, upright.index().facts().storedSize);
    PictureMaker maker(facts);
    PictureMaker reference(upright.index().facts());
    const auto picture = maker.make(*lying.frame(77).frame.samples);
    const auto expected = reference.make(*upright.frame(77).frame.samples);
    ASSERT_EQ(picture->height, expected->height);
    EXPECT_EQ(numberIn(*picture, facts.rotation), 77);
    EXPECT_EQ(numberIn(*expected, facts.rotation), 77);
}

TEST(Pictures, HaveSquarePixels) {
    FrameSource source = sourceOf("anamorphic.mp4");
    EXPECT_EQ(source.index().facts().shownSize, (VideoSize{640, 180}));
    PictureMaker maker(source.index().facts());
    const auto samples = source.frame(5).frame.samples;
    const auto fitted = maker.make(*samples, {320, 320});
    EXPECT_EQ((VideoSize{fitted->width, fitted->height}), (VideoSize{320, 90}));
    EXPECT_EQ(maker.make(*samples)->width, 640);
}

} // namespace
} // namespace kavela
