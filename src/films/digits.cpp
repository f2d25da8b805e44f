#include "films/digits.h"

namespace kavela::films {

namespace {

constexpr int Segments = 7;

void drawDigit(YuvPicture& picture, const DigitRow& row, int digit, unsigned lit, Shade shade) {
    for (int segment = 0; segment < Segments; ++segment)
        if ((lit >> segment & 1U) != 0)
            picture.fill(segmentBox(row, digit, segment), shade);
}

} // namespace

Box segmentBox(const DigitRow& row, int digit, int segment) {
    const int left = row.left(digit);
    const int thick = row.thickness;
    const int middle = row.y + (row.height - thick) / 2;
    const int right = left + row.width - thick;
    const int upper = middle + thick - row.y;
    const int lower = row.y + row.height - middle;
    switch (segment) {
    case 0:
        return {left, row.y, row.width, thick};
    case 1:
        return {left, row.y, thick, upper};
    case 2:
        return {right, row.y, thick, upper};
    case 3:
        return {left, middle, row.width, thick};
    case 4:
        return {left, middle, thick, lower};
    case 5:
        return {right, middle, thick, lower};
    default:
        return {left, row.y + row.height - thick, row.width, thick};
    }
}

void drawNumber(YuvPicture& picture, const DigitRow& row, std::int64_t number, Shade shade) {
    for (int digit = row.digits - 1; digit >= 0; --digit) {
        const bool isLeadingBlank = number == 0 && digit < row.digits - 1 - row.decimals;
        if (!isLeadingBlank)
            drawDigit(picture, row, digit, LitSegments[static_cast<std::size_t>(number % 10)],
                      shade);
        number /= 10;
    }
    if (row.decimals > 0) {
        const int left = row.left(row.digits - row.decimals) - row.pointWidth;
        picture.fill({left, row.y + row.height - row.thickness, row.thickness, row.thickness},
                     shade);
    }
}

} // namespace kavela::films
