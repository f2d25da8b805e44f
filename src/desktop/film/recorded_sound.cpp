#include "desktop/film/recorded_sound.h"

#include "common/error.h"
#include "common/safe_file.h"
#include "splittaking/annotations/run_notes.h"
#include "splittaking/annotations/wav_recording.h"
#include "video/sound_source.h"

#include <QTimer>

#include <algorithm>
#include <utility>

namespace kavela::desktop {

namespace {

constexpr int MillisecondsPerSecond = 1000;

} // namespace

RecordedSoundPlayer::RecordedSoundPlayer(QObject* parent, MakeOutput makeOutput)
    : QObject(parent), m_makeOutput(std::move(makeOutput)) {}

RecordedSoundPlayer::~RecordedSoundPlayer() {
    m_output.reset(); // takes from the source
}

/// Decoders read files: the sound lies in one of its own for as long as the player lives.
QString RecordedSoundPlayer::play(const Blob& sound) {
    stop();
    try {
        const std::string extension(soundExtension(sound));
        const std::string file = m_folder.filePath("sound").toStdString() + extension;
        writeFileSafely(file, std::string(sound.bytes.begin(), sound.bytes.end()));
        m_source = std::make_unique<SoundSource>(file);
    } catch (const std::exception& error) {
        return QString::fromStdString(error.what());
    }
    if (!m_output)
        m_output = m_makeOutput();
    if (!m_output->start([this](std::span<std::int16_t> samples) { take(samples); })) {
        m_source.reset();
        return tr("This computer has no loudspeaker.");
    }
    emit changed();
    return {};
}

void RecordedSoundPlayer::stop() {
    ++m_played;
    if (!m_source)
        return;
    m_output->stop();
    m_source.reset();
    emit changed();
}

void RecordedSoundPlayer::take(std::span<std::int16_t> samples) {
    std::size_t filled = 0;
    try {
        filled = m_source ? m_source->read(samples) : 0;
    } catch (const std::exception&) {
        filled = 0; // what cannot be decoded any further ends here
    }
    std::ranges::fill(samples.subspan(filled), std::int16_t{0});
    if (filled < samples.size())
        QMetaObject::invokeMethod(
            this, [this, played = m_played] { end(played); }, Qt::QueuedConnection);
}

/// What the loudspeaker has taken is still to be heard.
void RecordedSoundPlayer::end(int played) {
    if (played != m_played)
        return;
    const auto wait = static_cast<int>(m_output->waiting() * MillisecondsPerSecond);
    QTimer::singleShot(wait, this, [this, played] {
        if (played == m_played)
            stop();
    });
}

SpeechRecorder::SpeechRecorder(QObject* parent, MakeInput makeInput)
    : QObject(parent), m_makeInput(std::move(makeInput)) {}

SpeechRecorder::~SpeechRecorder() {
    m_isRecording = false;
    m_input.reset(); // may give what it still has
}

bool SpeechRecorder::start() {
    m_samples.clear();
    if (!m_input)
        m_input = m_makeInput();
    m_isRecording = true; // samples may come at once
    m_isRecording =
        m_input->start([this](std::span<const std::int16_t> samples) { give(samples); });
    return m_isRecording;
}

Blob SpeechRecorder::stop() {
    if (m_input)
        m_input->stop();
    m_isRecording = false;
    const std::vector<std::int16_t> samples = std::exchange(m_samples, {});
    return samples.empty() ? Blob() : wavRecording(samples, SpeechRate);
}

double SpeechRecorder::seconds() const {
    return static_cast<double>(m_samples.size()) / SpeechRate;
}

void SpeechRecorder::give(std::span<const std::int16_t> samples) {
    if (!m_isRecording)
        return;
    const auto most = static_cast<std::size_t>(MostSeconds * SpeechRate);
    const std::size_t room = most - std::min(most, m_samples.size());
    m_samples.insert(m_samples.end(), samples.begin(),
                     samples.begin() + static_cast<std::ptrdiff_t>(std::min(room, samples.size())));
    emit heard();
    if (room <= samples.size() && room > 0)
        QMetaObject::invokeMethod(this, &SpeechRecorder::isFull, Qt::QueuedConnection);
}

} // namespace kavela::desktop
