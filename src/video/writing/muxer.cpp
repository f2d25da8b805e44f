#include "video/writing/muxer.h"

#include "common/text.h"

#include <algorithm>
#include <new>
#include <utility>

namespace kavela {

namespace {
constexpr int SinkBufferBytes = 1 << 18;
constexpr std::string_view NotEnded = KAVELA_TEXT("The film could not be ended: {}");
} // namespace

Muxer::Muxer(const std::string& container, FilmSink& sink) : m_sink(sink) {
    av_log_set_level(AV_LOG_QUIET); // what goes wrong comes as an exception
    check(avformat_alloc_output_context2(&m_context, nullptr, container.c_str(), nullptr),
          KAVELA_TEXT("Films cannot be written on this computer: {}"));
    auto* const buffer = static_cast<std::uint8_t*>(av_malloc(SinkBufferBytes));
    m_context->pb = buffer == nullptr ? nullptr
                                      : avio_alloc_context(buffer, SinkBufferBytes, 1, this,
                                                           nullptr, &takeBytes, &takePlace);
    if (m_context->pb == nullptr) {
        av_free(buffer);
        avformat_free_context(m_context);
        throw std::bad_alloc();
    }
    m_context->flags |= AVFMT_FLAG_CUSTOM_IO;
    // Where the library reads back what it wrote, to bring its list to the front.
    if (const std::string path = sink.readablePath(); !path.empty())
        m_context->url = av_strdup(("file:" + path).c_str());
}

Muxer::~Muxer() {
    av_dict_free(&m_options);
    if (m_context == nullptr)
        return;
    av_freep(&m_context->pb->buffer);
    avio_context_free(&m_context->pb);
    avformat_free_context(m_context);
}

int Muxer::takeBytes(void* self, std::uint8_t* bytes, int size) {
    auto& muxer = *static_cast<Muxer*>(self);
    if (muxer.m_failure)
        return AVERROR(EIO);
    try {
        muxer.m_sink.write({bytes, static_cast<std::size_t>(size)});
    } catch (...) {
        muxer.m_failure = std::current_exception();
        return AVERROR(EIO);
    }
    muxer.m_place += size;
    muxer.m_end = std::max(muxer.m_end, muxer.m_place);
    return size;
}

std::int64_t Muxer::takePlace(void* self, std::int64_t offset, int whence) {
    auto& muxer = *static_cast<Muxer*>(self);
    if (whence == AVSEEK_SIZE)
        return muxer.m_end;
    const std::int64_t from = whence == SEEK_CUR   ? muxer.m_place
                              : whence == SEEK_END ? muxer.m_end
                                                   : 0;
    try {
        muxer.m_sink.seek(from + offset);
    } catch (...) {
        muxer.m_failure = std::current_exception();
        return AVERROR(EIO);
    }
    return muxer.m_place = from + offset;
}

void Muxer::check(int code, std::string_view fault) {
    if (m_failure)
        std::rethrow_exception(std::exchange(m_failure, nullptr));
    if (code < 0)
        throw FilmError(sayMarked(fault, avErrorText(code)));
}

AVStream& Muxer::addStream() {
    AVStream* const stream = avformat_new_stream(m_context, nullptr);
    if (stream == nullptr)
        throw std::bad_alloc();
    return *stream;
}

void Muxer::setOption(const char* name, const std::string& value) {
    av_dict_set(&m_options, name, value.c_str(), 0);
}

void Muxer::begin() {
    check(avformat_write_header(m_context, &m_options), FilmNotBegun);
}

void Muxer::write(AVPacket& packet) {
    check(av_interleaved_write_frame(m_context, &packet),
          KAVELA_TEXT("The film could not be put together: {}"));
}

void Muxer::finish() {
    const int code = av_write_trailer(m_context);
    avio_flush(m_context->pb);
    check(code, NotEnded);
    check(m_context->pb->error, NotEnded);
}

} // namespace kavela
