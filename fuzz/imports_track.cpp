#include "boatmotion/imports/fit_reader.h"
#include "boatmotion/imports/track.h"
#include "harness.h"

#include <algorithm>
#include <cmath>

namespace {

using namespace kavela;

/// Puts the sums of a FIT file right, so that its messages are read at all.
std::string withSums(std::string content) {
    constexpr std::size_t Header = 12;
    if (content.size() < Header + 2 || content.substr(8, 4) != ".FIT")
        return content;
    const auto putNumber = [&](std::size_t place, std::size_t value, std::size_t size) {
        for (std::size_t i = 0; i < size; ++i)
            content[place + i] = static_cast<char>(value >> (8 * i) & 0xFFU);
    };
    content[0] = static_cast<char>(Header);
    putNumber(4, content.size() - Header - 2, 4);
    const std::string_view summed = std::string_view(content).substr(0, content.size() - 2);
    putNumber(content.size() - 2, imports::fitCrc(summed), 2);
    return content;
}

void checkTrack(const std::string& content) {
    try {
        const ImportedTrack track = trackFromContent(content);
        fuzz::require(std::ranges::is_sorted(track.gps, {}, &gpsrawdata::date));
        for (const gpsrawdata& fix : track.gps)
            fuzz::require(std::isfinite(fix.date.seconds) && std::abs(fix.latitude) <= 90 &&
                          std::abs(fix.longitude) <= 180 && fix.speed >= -1 && fix.speed <= 50);
        for (const heartmotiondata& heart : track.heart)
            fuzz::require(heart.hr >= 1 && heart.hr <= 300);
    } catch (const DecodeError& error) {
        fuzz::require(!error.fault().text.empty());
    }
}

} // namespace

/// Tracks of watches, as they come and with the sums put right.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    const std::string content(reinterpret_cast<const char*>(bytes), size);
    checkTrack(content);
    checkTrack(withSums(content));
    return 0;
}
