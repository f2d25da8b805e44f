#include "common/why_text.h"

#include "common/display_text.h"
#include "common/number_text.h"
#include "common/text.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>

namespace kavela {

namespace {

constexpr std::string_view Dot = " · ";

/// The lines of a reason, each behind a margin.
class WhyLines {
public:
    explicit WhyLines(std::string margin) : m_margin(std::move(margin)) {}

    void add(const Reason& reason) {
        line(printable(reason.shown) +
             (reason.rule ? "  " + std::string(translated(reason.rule->sentence)) : std::string()));
        const int width = nameWidth(reason);
        for (const Input& input : reason.inputs)
            line("  " + fitted(printable(translated(input.name)), width) + "  " +
                 rightAligned(inputText(input), valueWidth(reason)) +
                 (input.place ? "  " + placeText(*input.place) : std::string()) +
                 (input.plusMinus > 0 ? "  " + plusMinusText(input) : std::string()));
        if (reason.rule)
            field(say("rule"), width, ruleText(reason));
        if (reason.rule && !reason.rule->source.empty())
            field(say("source"), width, std::string(translated(reason.rule->source)));
        if (reason.uncertainty)
            field(say("within"), width, uncertaintyText(reason));
        for (const std::string& note : reason.notes)
            field(say("note"), width, printable(translated(note)));
        addParts(reason);
    }

    [[nodiscard]] std::string take() { return std::move(m_text); }

private:
    static std::string ruleText(const Reason& reason) {
        const std::string rounding = roundingText(reason);
        const std::string formula(translated(reason.rule->formula));
        return rounding.empty() ? formula : formula + ";  " + rounding;
    }

    void addParts(const Reason& reason) {
        for (const Reason& part : reason.parts) {
            WhyLines lines(m_margin + "    ");
            lines.add(part);
            m_text += lines.take();
        }
    }

    void field(std::string_view name, int width, const std::string& text) {
        line("  " + fitted(name, width) + "  " + text);
    }

    void line(std::string text) {
        while (text.ends_with(' '))
            text.pop_back();
        m_text += m_margin + text + '\n';
    }

    static int nameWidth(const Reason& reason) {
        constexpr int Widest = 28;
        int width = displayWidth(translated("source"));
        for (const Input& input : reason.inputs)
            width = std::max(width, displayWidth(printable(translated(input.name))));
        return std::min(width, Widest);
    }

    static int valueWidth(const Reason& reason) {
        std::size_t width = 0;
        for (const Input& input : reason.inputs)
            width = std::max(width, inputText(input).size());
        return static_cast<int>(width);
    }

    std::string m_margin;
    std::string m_text;
};

} // namespace

std::string placeText(const Place& place) {
    // What was copied has no file.
    std::string text = printable(validUtf8(place.file.filename().string()));
    text += text.empty() ? std::string() : std::string(Dot);
    text += place.line ? say("line {}", *place.line) : say("run {}", place.run);
    if (place.column)
        text += std::string(Dot) + say("column {}", *place.column);
    if (place.split)
        text += std::string(Dot) + say("split {}", *place.split);
    if (place.gate)
        text += std::string(Dot) + say("gate {}", *place.gate);
    if (place.entry)
        text += std::string(Dot) + say("entry {}", *place.entry);
    if (place.moment)
        text += fmt::format("{}{} s", Dot, hundredthsText(place.moment->seconds()));
    return text;
}

std::string roundingText(const Reason& reason) {
    if (reason.shown.find_first_of("0123456789") == std::string::npos)
        return {};
    return say("shown {} of {}", printable(reason.shown), shortestText(reason.value));
}

std::string uncertaintyText(const Reason& reason) {
    if (!reason.uncertainty)
        return {};
    return say("{} to {}  ({})", shortestText(reason.uncertainty->low),
               shortestText(reason.uncertainty->high),
               printable(translated(reason.uncertaintySource)));
}

std::string inputText(const Input& input) {
    constexpr double Largest = 1e15; // beyond it every number is whole
    const bool isCount = (!input.place || input.place->line) && std::abs(input.value) < Largest &&
                         input.value == std::floor(input.value);
    return isCount ? plainText(input.value) : hundredthsText(input.value);
}

std::string plusMinusText(const Input& input) {
    if (!(input.plusMinus > 0))
        return {};
    // Below half a hundredth it is not nothing.
    const std::string amount = input.plusMinus < 0.005 ? fmt::format("{:.3f}", input.plusMinus)
                                                       : hundredthsText(input.plusMinus);
    return fmt::format("± {} ({})", amount, printable(translated(input.plusMinusSource)));
}

std::string whyText(const Reason& reason) {
    WhyLines lines("");
    lines.add(reason);
    return lines.take();
}

} // namespace kavela
