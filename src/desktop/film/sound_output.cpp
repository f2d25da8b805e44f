#include "desktop/film/sound_output.h"

#include "video/sound_source.h"

#include <QAudioDevice>
#include <QAudioSink>
#include <QIODevice>
#include <QMediaDevices>

namespace kavela::desktop {

namespace {

constexpr qsizetype FrameBytes = SoundChannels * qsizetype{sizeof(std::int16_t)};

/// The interface fills the buffer between its other work, which may take as long.
constexpr qsizetype BufferBytes = FrameBytes * SoundRate / 5;

QAudioFormat filmFormat() {
    QAudioFormat format;
    format.setSampleRate(SoundRate);
    format.setChannelCount(SoundChannels);
    format.setSampleFormat(QAudioFormat::Int16);
    return format;
}

/// Sound without an end, for the sink to read from.
class SampleStream : public QIODevice {
public:
    explicit SampleStream(SoundOutput::Take take) : m_take(std::move(take)) {
        open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    }

    [[nodiscard]] bool isSequential() const override { return true; }
    [[nodiscard]] qint64 bytesAvailable() const override { return BufferBytes; }

protected:
    qint64 readData(char* data, qint64 size) override {
        const qint64 frames = size / FrameBytes;
        m_take({reinterpret_cast<std::int16_t*>(data),
                static_cast<std::size_t>(frames * SoundChannels)});
        return frames * FrameBytes;
    }
    qint64 writeData(const char*, qint64) override { return -1; }

private:
    SoundOutput::Take m_take;
};

class Loudspeaker final : public SoundOutput {
public:
    ~Loudspeaker() override { stop(); }

    bool start(Take take) override {
        stop();
        const QAudioDevice device = QMediaDevices::defaultAudioOutput();
        if (device.isNull() || !device.isFormatSupported(filmFormat()))
            return false;
        m_stream = std::make_unique<SampleStream>(std::move(take));
        m_sink = std::make_unique<QAudioSink>(device, filmFormat());
        m_sink->setBufferSize(BufferBytes);
        m_sink->start(m_stream.get());
        return m_sink->error() == QAudio::NoError;
    }

    void stop() override {
        if (m_sink)
            m_sink->reset();
        m_sink.reset();
        m_stream.reset();
    }

    double waiting() const override {
        if (!m_sink)
            return 0;
        const qsizetype bytes = m_sink->bufferSize() - m_sink->bytesFree();
        return static_cast<double>(bytes) / (FrameBytes * SoundRate);
    }

private:
    std::unique_ptr<SampleStream> m_stream;
    std::unique_ptr<QAudioSink> m_sink;
};

} // namespace

std::unique_ptr<SoundOutput> loudspeaker() {
    return std::make_unique<Loudspeaker>();
}

} // namespace kavela::desktop
