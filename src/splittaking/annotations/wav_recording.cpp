#include "splittaking/annotations/wav_recording.h"

#include <concepts>
#include <string_view>
#include <utility>
#include <vector>

namespace kavela {

namespace {

constexpr std::uint32_t HeaderBytes = 44;
constexpr std::uint32_t BytesBeforeSize = 8; // "RIFF" and the size itself
constexpr std::uint32_t FormatBytes = 16;
constexpr std::uint16_t LinearPcm = 1;
constexpr std::uint16_t OneChannel = 1;
constexpr std::uint16_t SampleBytes = 2;
constexpr std::uint16_t SampleBits = 16;

void append(std::vector<unsigned char>& file, std::string_view name) {
    for (const char letter : name)
        file.push_back(static_cast<unsigned char>(letter));
}

template <std::unsigned_integral Number>
void append(std::vector<unsigned char>& file, Number number) {
    for (std::size_t byte = 0; byte < sizeof number; ++byte)
        file.push_back(static_cast<unsigned char>(number >> (8 * byte)));
}

} // namespace

Blob wavRecording(std::span<const std::int16_t> samples, std::uint32_t rate) {
    const auto dataBytes = static_cast<std::uint32_t>(samples.size_bytes());
    std::vector<unsigned char> file;
    file.reserve(HeaderBytes + dataBytes);
    append(file, "RIFF");
    append(file, HeaderBytes - BytesBeforeSize + dataBytes);
    append(file, "WAVEfmt ");
    append(file, FormatBytes);
    append(file, LinearPcm);
    append(file, OneChannel);
    append(file, rate);
    append(file, rate * SampleBytes); // bytes a second
    append(file, SampleBytes);
    append(file, SampleBits);
    append(file, "data");
    append(file, dataBytes);
    for (const std::int16_t sample : samples)
        append(file, static_cast<std::uint16_t>(sample));
    return Blob{std::move(file)};
}

} // namespace kavela
