#pragma once

#include "films/yuv_picture.h"

#include <array>
#include <cstdint>

/// Numbers as seven-segment displays show them: readable for people on a small picture, and for
/// programs without any knowledge of fonts.
namespace kavela::films {

/// A number's place. Digits are `height` tall, `width` wide and `pitch` apart; before the last
/// `decimals` of them stands a point, and `pointWidth` more room.
struct DigitRow {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
    int thickness = 0; ///< of a segment
    int pitch = 0;
    int digits = 0;
    int decimals = 0;
    int pointWidth = 0;

    /// The left edge of a digit, counted from the left.
    [[nodiscard]] constexpr int left(int digit) const {
        return x + digit * pitch + (digit >= digits - decimals ? pointWidth : 0);
    }
    /// From the first digit to the last.
    [[nodiscard]] constexpr Box box() const { return {x, y, left(digits - 1) + width - x, height}; }
};

/// Which segments are lit for the digits 0 to 9, a bit each: top, upper left, upper right, middle,
/// lower left, lower right, bottom.
inline constexpr std::array<unsigned, 10> LitSegments{0x77, 0x24, 0x5d, 0x6d, 0x2e,
                                                      0x6b, 0x7b, 0x25, 0x7f, 0x6f};

/// Where a segment of a digit lies, counted as the bits.
[[nodiscard]] Box segmentBox(const DigitRow& row, int digit, int segment);

/// The run's clock, in hundredths, and the number of the frame.
inline constexpr DigitRow ClockRow{.x = 16,
                                   .y = 12,
                                   .width = 16,
                                   .height = 28,
                                   .thickness = 4,
                                   .pitch = 22,
                                   .digits = 5,
                                   .decimals = 2,
                                   .pointWidth = 8};
inline constexpr DigitRow FrameRow{
    .x = 420, .y = 10, .width = 7, .height = 12, .thickness = 2, .pitch = 10, .digits = 5};

/// Draws a number from 0 on; before its first digit the places stay blank. What has no room is cut
/// off on the left.
void drawNumber(YuvPicture& picture, const DigitRow& row, std::int64_t number, Shade shade);

} // namespace kavela::films
