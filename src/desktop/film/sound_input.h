#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <span>

namespace kavela::desktop {

/// Samples a second of what is recorded: enough for speech.
inline constexpr int SpeechRate = 16000;

/// Where sound comes from: 16-bit samples of one channel at SpeechRate. Used from the thread of the
/// interface.
class SoundInput {
public:
    using Give = std::function<void(std::span<const std::int16_t> samples)>;

    SoundInput() = default;
    SoundInput(const SoundInput&) = delete;
    SoundInput& operator=(const SoundInput&) = delete;
    virtual ~SoundInput() = default;

    /// Gives samples until stop(). False where nothing can be recorded.
    [[nodiscard]] virtual bool start(Give give) = 0;
    virtual void stop() = 0;
};

/// The computer's microphone, the default one at each start. Looks for it at the first start only.
[[nodiscard]] std::unique_ptr<SoundInput> microphone();

} // namespace kavela::desktop
