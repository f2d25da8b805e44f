#include "video/writing/jpeg.h"

#include "video/writing/plane_scaler.h"

#include <cstdint>
#include <new>

namespace kavela {

namespace {

/// Planes from the four bytes a pixel that a picture has; a converter of its own, since those bytes
/// are upright and square already.
AvOwner<AVFrame> planesOf(const Picture& picture) {
    const AvOwner<AVFrame> colours(av_frame_alloc());
    if (!colours)
        throw std::bad_alloc();
    colours->format = AV_PIX_FMT_BGRA;
    colours->width = picture.width;
    colours->height = picture.height;
    colours->data[0] = const_cast<std::uint8_t*>(picture.pixels.get());
    colours->linesize[0] = static_cast<int>(picture.bytesPerLine);
    AvOwner<AVFrame> planes = newPlanes({picture.width, picture.height});
    const AvOwner<SwsContext> scaler(sws_getContext(
        picture.width, picture.height, AV_PIX_FMT_BGRA, picture.width, picture.height,
        AV_PIX_FMT_YUV420P, SWS_BILINEAR, nullptr, nullptr, nullptr));
    if (!scaler)
        throw std::bad_alloc();
    constexpr int Neutral = 1 << 16;
    const int* const usual = sws_getCoefficients(SWS_CS_DEFAULT);
    sws_setColorspaceDetails(scaler.get(), usual, 1, usual, 1, 0, Neutral, Neutral);
    sws_scale(scaler.get(), colours->data, colours->linesize, 0, picture.height, planes->data,
              planes->linesize);
    return planes;
}

} // namespace

std::string jpegOf(const Picture& picture) {
    constexpr int Coarseness = 4; // of 2 to 31
    const AVCodec* const coding = avcodec_find_encoder(AV_CODEC_ID_MJPEG);
    const AvOwner<AVCodecContext> codec(coding == nullptr ? nullptr
                                                          : avcodec_alloc_context3(coding));
    const AvOwner<AVPacket> packet(av_packet_alloc());
    if (!codec || !packet)
        return {};
    codec->width = picture.width;
    codec->height = picture.height;
    codec->pix_fmt = AV_PIX_FMT_YUVJ420P;
    codec->color_range = AVCOL_RANGE_JPEG;
    codec->time_base = {1, 1};
    codec->thread_count = 1;
    codec->flags |= AV_CODEC_FLAG_QSCALE;
    codec->global_quality = FF_QP2LAMBDA * Coarseness;
    const AvOwner<AVFrame> planes = planesOf(picture);
    planes->format = AV_PIX_FMT_YUVJ420P;
    planes->quality = codec->global_quality;
    planes->pts = 0;
    if (avcodec_open2(codec.get(), coding, nullptr) < 0 ||
        avcodec_send_frame(codec.get(), planes.get()) < 0 ||
        avcodec_receive_packet(codec.get(), packet.get()) < 0)
        return {};
    return {reinterpret_cast<const char*>(packet->data), static_cast<std::size_t>(packet->size)};
}

} // namespace kavela
