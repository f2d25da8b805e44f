#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <span>

namespace kavela::desktop {

/// Where sound goes: 16-bit stereo at SoundRate. Used from the thread of the interface.
class SoundOutput {
public:
    /// Fills all that it is given, on the thread of the interface.
    using Take = std::function<void(std::span<std::int16_t> samples)>;

    SoundOutput() = default;
    SoundOutput(const SoundOutput&) = delete;
    SoundOutput& operator=(const SoundOutput&) = delete;
    virtual ~SoundOutput() = default;

    /// Takes and plays samples until stop(). False where nothing can be played.
    [[nodiscard]] virtual bool start(Take take) = 0;
    /// Is silent at once: what was taken and not heard yet is thrown away.
    virtual void stop() = 0;
    /// Seconds of sound that were taken and not heard yet.
    [[nodiscard]] virtual double waiting() const = 0;
};

/// The computer's loudspeaker, the default one at each start. Looks for it at the first start only.
[[nodiscard]] std::unique_ptr<SoundOutput> loudspeaker();

} // namespace kavela::desktop
