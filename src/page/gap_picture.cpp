#include "page/gap_picture.h"

#include "analysis/cell_text.h"
#include "common/text.h"
#include "page/html_text.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>

namespace kavela::page {

namespace {

constexpr double PictureWidth = 340;
constexpr double PictureHeight = 168;
constexpr double LeftEdge = 34;
constexpr double RightEdge = PictureWidth - 10;
constexpr double UpperEdge = 16;
constexpr double LowerEdge = PictureHeight - 24;

/// A number of the picture: tenths of a point are finer than any telephone shows.
std::string point(double value) {
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), "%.1f", value);
    std::string made = text.data();
    if (made.ends_with(".0"))
        made.resize(made.size() - 2);
    return made;
}

/// Damaged files have times that no picture can hold.
bool isOfThisWorld(double value) {
    constexpr double Most = 1e6;
    return std::abs(value) < Most;
}

std::string inQuotes(const std::string& text) {
    return '"' + text + '"';
}

/// A scale of round steps from the least to the most, with nought in it.
struct RoundScale {
    double low = 0;
    double high = 0;
    double step = 1;

    RoundScale(double least, double most) {
        least = std::min(least, 0.0);
        most = std::max(most, 0.0);
        const double span = std::max(most - least, 0.2);
        const double power = std::pow(10, std::floor(std::log10(span / 4)));
        for (const double factor : {10.0, 5.0, 2.0, 1.0})
            if (factor * power * 4 >= span * 0.8)
                step = factor * power;
        low = std::floor(least / step + 1e-9) * step;
        high = std::ceil(most / step - 1e-9) * step;
        if (high - low < step)
            high = low + step;
    }

    [[nodiscard]] double placeOf(double value) const {
        return LowerEdge - (value - low) / (high - low) * (LowerEdge - UpperEdge);
    }
};

/// "+2", "0", "-0.5": as short as the step allows.
std::string scaleText(double value, double step) {
    std::array<char, 48> text{};
    const int decimals = step < 0.1 ? 2 : step < 1 ? 1 : 0;
    if (std::abs(value) < step / 2)
        return "0";
    std::snprintf(text.data(), text.size(), "%+.*f", decimals, value);
    return text.data();
}

/// The lines across the picture and their numbers; one path for all, since a page has many
/// pictures.
std::string scaleLines(const RoundScale& scale) {
    std::string lines;
    std::string texts;
    const int count = static_cast<int>(std::lround((scale.high - scale.low) / scale.step));
    for (int i = 0; i <= count; ++i) {
        const double value = scale.low + i * scale.step;
        const double y = scale.placeOf(value);
        lines += 'M' + point(LeftEdge) + ' ' + point(y) + 'H' + point(RightEdge);
        texts += "<text x=" + point(LeftEdge - 5) + " y=" + point(y + 3.5) + ">" +
                 saidNumber(scaleText(value, scale.step)) + "</text>";
    }
    return "<path class=l d=" + inQuotes(lines) + "/><path class=z d=" +
           inQuotes('M' + point(LeftEdge) + ' ' + point(scale.placeOf(0)) + 'H' +
                    point(RightEdge)) +
           "/><g class=e>" + texts + "</g>";
}

std::string pictureBegin(std::string_view label) {
    return "<svg viewBox=\"0 0 " + point(PictureWidth) + ' ' + point(PictureHeight) +
           "\" role=img aria-label=\"" + escaped(label) + "\">";
}

/// Where a line of gaps lies in its picture.
class GapDrawing {
public:
    explicit GapDrawing(const GapLine& line) : m_line(line), m_scale(least(line), most(line)) {}

    [[nodiscard]] bool isDrawn() const {
        return m_line.points.size() >= 2 && m_line.points.back().at > 0 &&
               std::ranges::all_of(m_line.points, [](const GapPoint& end) {
                   return isOfThisWorld(end.at) && isOfThisWorld(end.gap) &&
                          isOfThisWorld(end.paddling);
               });
    }

    [[nodiscard]] std::string text() const {
        std::string made = pictureBegin(m_line.label) + scaleLines(m_scale) + stretches();
        const bool differs = std::ranges::any_of(m_line.points, [](const GapPoint& end) {
            return std::abs(end.gap - end.paddling) > 0.005;
        });
        if (differs)
            made += "<path class=q d=\"" + path(&GapPoint::paddling) + "\"/>";
        made += "<path class=a d=\"" + path(&GapPoint::gap) + 'V' + point(m_scale.placeOf(0)) +
                'H' + point(LeftEdge) + "\"/><path class=s d=\"" + path(&GapPoint::gap) + "\"/>";
        return made + ends() + lastValue() + "</svg>";
    }

private:
    static double least(const GapLine& line) {
        double found = 0;
        for (const GapPoint& end : line.points)
            found = std::min({found, end.gap, end.paddling});
        return found;
    }

    static double most(const GapLine& line) {
        double found = 0;
        for (const GapPoint& end : line.points)
            found = std::max({found, end.gap, end.paddling});
        return found;
    }

    [[nodiscard]] double x(const GapPoint& end) const {
        return LeftEdge + end.at / m_line.points.back().at * (RightEdge - LeftEdge);
    }

    [[nodiscard]] std::string path(double GapPoint::*value) const {
        std::string made = 'M' + point(LeftEdge) + ' ' + point(m_scale.placeOf(0)) + 'L';
        for (const GapPoint& end : m_line.points)
            made += point(x(end)) + ' ' + point(m_scale.placeOf(end.*value)) + ' ';
        made.pop_back();
        return made;
    }

    /// The names of the stretches under the course; those that find no room are left out.
    [[nodiscard]] std::string stretches() const {
        std::string lines;
        std::string texts;
        double from = LeftEdge;
        double free = 0;
        for (const GapPoint& end : m_line.points) {
            const double middle = (from + x(end)) / 2;
            from = x(end);
            lines += 'M' + point(from) + ' ' + point(UpperEdge) + 'V' + point(LowerEdge);
            const double half = 3.5 * static_cast<double>(end.name.size());
            if (middle - half < free)
                continue;
            free = middle + half;
            texts += "<text x=" + point(middle) + " y=" + point(LowerEdge + 15) + ">" +
                     escaped(end.name) + "</text>";
        }
        return "<path class=l d=" + inQuotes(lines) + "/><g class=m>" + texts + "</g>";
    }

    /// Dots are ends of lines without a length, which are round.
    [[nodiscard]] std::string ends() const {
        std::string dots;
        std::string marks;
        for (const GapPoint& end : m_line.points) {
            const double y = m_scale.placeOf(end.gap);
            dots += 'M' + point(x(end)) + ' ' + point(y) + "h0";
            if (!end.mark.empty() && &end != &m_line.points.back())
                marks += "<text class=p x=" + point(x(end)) +
                         " y=" + point(std::max(y - 7, UpperEdge - 4)) + ">" + escaped(end.mark) +
                         "</text>";
        }
        return "<path class=i d=" + inQuotes(dots) + "/>" + marks;
    }

    [[nodiscard]] std::string lastValue() const {
        const double gap = m_line.points.back().gap;
        // On the side that the line does not come from.
        const bool isFalling = m_line.points[m_line.points.size() - 2].gap > gap;
        const double place = m_scale.placeOf(gap) + (isFalling ? 16 : -8);
        return "<text class=v x=" + point(RightEdge) +
               " y=" + point(std::clamp(place, 11.0, LowerEdge - 3)) + ">" +
               saidNumber(signedHundredths(gap)) + "</text>";
    }

    const GapLine& m_line;
    RoundScale m_scale;
};

} // namespace

std::string gapPicture(const GapLine& line) {
    const GapDrawing drawing(line);
    return drawing.isDrawn() ? drawing.text() : std::string();
}

std::string seasonPicture(const std::vector<SeasonDot>& dots) {
    if (dots.size() < 2 || !std::ranges::all_of(dots, [](const SeasonDot& dot) {
            return isOfThisWorld(dot.day) && isOfThisWorld(dot.percent);
        }))
        return {};
    const auto [first, last] = std::ranges::minmax(dots, {}, &SeasonDot::day);
    const auto [least, most] = std::ranges::minmax(dots, {}, &SeasonDot::percent);
    const RoundScale scale(least.percent, most.percent);
    const double days = std::max(last.day - first.day, 1.0);
    std::string made = pictureBegin(say("Percent behind the winner, run by run, {} to {}",
                                        first.title, last.title)) +
                       scaleLines(scale);
    for (const SeasonDot& dot : dots) {
        const double x = LeftEdge + 6 + (dot.day - first.day) / days * (RightEdge - LeftEdge - 12);
        made += "<circle class=" + std::string(dot.isLast ? "d" : "o") + " cx=" + point(x) +
                " cy=" + point(scale.placeOf(dot.percent)) + " r=4><title>" + escaped(dot.title) +
                "</title></circle>";
    }
    return made + "</svg>";
}

} // namespace kavela::page
