#include "desktop/film/sound_input.h"

#include <QAudioDevice>
#include <QAudioSource>
#include <QIODevice>
#include <QMediaDevices>

#include <cstring>
#include <vector>

namespace kavela::desktop {

namespace {

QAudioFormat speechFormat() {
    QAudioFormat format;
    format.setSampleRate(SpeechRate);
    format.setChannelCount(1);
    format.setSampleFormat(QAudioFormat::Int16);
    return format;
}

/// Takes what the source writes; half a sample waits for its other byte.
class SampleSink : public QIODevice {
public:
    explicit SampleSink(SoundInput::Give give) : m_give(std::move(give)) {
        open(QIODevice::WriteOnly | QIODevice::Unbuffered);
    }

protected:
    qint64 readData(char*, qint64) override { return -1; }
    qint64 writeData(const char* data, qint64 size) override {
        m_bytes.insert(m_bytes.end(), data, data + size);
        std::vector<std::int16_t> samples(m_bytes.size() / sizeof(std::int16_t));
        const std::size_t taken = samples.size() * sizeof(std::int16_t);
        std::memcpy(samples.data(), m_bytes.data(), taken);
        m_bytes.erase(m_bytes.begin(), m_bytes.begin() + static_cast<std::ptrdiff_t>(taken));
        m_give(samples);
        return size;
    }

private:
    SoundInput::Give m_give;
    std::vector<char> m_bytes;
};

class Microphone final : public SoundInput {
public:
    ~Microphone() override { stop(); }

    bool start(Give give) override {
        stop();
        const QAudioDevice device = QMediaDevices::defaultAudioInput();
        if (device.isNull() || !device.isFormatSupported(speechFormat()))
            return false;
        m_sink = std::make_unique<SampleSink>(std::move(give));
        m_source = std::make_unique<QAudioSource>(device, speechFormat());
        m_source->start(m_sink.get());
        return m_source->error() == QAudio::NoError;
    }

    void stop() override {
        if (m_source)
            m_source->stop();
        m_source.reset();
        m_sink.reset();
    }

private:
    std::unique_ptr<SampleSink> m_sink;
    std::unique_ptr<QAudioSource> m_source;
};

} // namespace

std::unique_ptr<SoundInput> microphone() {
    return std::make_unique<Microphone>();
}

} // namespace kavela::desktop
