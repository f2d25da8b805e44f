#include "cli/why_text.h"

#include "cli/console.h"
#include "common/display_text.h"
#include "common/number_text.h"

#include <fmt/format.h>

#include <algorithm>

namespace kavela::cli {

namespace {

constexpr std::string_view Dot = " · ";

/// Where an input stands: "race.kvx · run 50 · split 5 · 48.82 s".
std::string placeText(const Place& place) {
    std::string text = printable(pathText(place.file.filename()));
    text += fmt::format("{}run {}", Dot, place.run);
    if (place.split)
        text += fmt::format("{}split {}", Dot, *place.split);
    if (place.gate)
        text += fmt::format("{}gate {}", Dot, *place.gate);
    if (place.entry)
        text += fmt::format("{}entry {}", Dot, *place.entry);
    if (place.moment)
        text += fmt::format("{}{} s", Dot, hundredthsText(place.moment->seconds()));
    return text;
}

/// The lines of a reason, each behind a margin.
class WhyLines {
public:
    explicit WhyLines(std::string margin) : m_margin(std::move(margin)) {}

    void add(const Reason& reason) {
        line(printable(reason.shown) +
             (reason.rule ? "  " + std::string(reason.rule->sentence) : std::string()));
        const int width = nameWidth(reason);
        for (const Input& input : reason.inputs)
            line("  " + fitted(printable(input.name), width) + "  " +
                 rightAligned(hundredthsText(input.value), valueWidth(reason)) +
                 (input.place ? "  " + placeText(*input.place) : std::string()));
        if (reason.rule)
            field("rule", width,
                  fmt::format("{};  shown {} of {}", reason.rule->formula, printable(reason.shown),
                              shortestText(reason.value)));
        if (reason.rule && !reason.rule->source.empty())
            field("source", width, std::string(reason.rule->source));
        if (reason.uncertainty)
            field("within", width,
                  fmt::format("{} to {}  ({})", shortestText(reason.uncertainty->low),
                              shortestText(reason.uncertainty->high),
                              printable(reason.uncertaintySource)));
        for (const std::string& note : reason.notes)
            field("note", width, printable(note));
        addParts(reason);
    }

    [[nodiscard]] std::string take() { return std::move(m_text); }

private:
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
        int width = displayWidth("source");
        for (const Input& input : reason.inputs)
            width = std::max(width, displayWidth(printable(input.name)));
        return std::min(width, Widest);
    }

    static int valueWidth(const Reason& reason) {
        std::size_t width = 0;
        for (const Input& input : reason.inputs)
            width = std::max(width, hundredthsText(input.value).size());
        return static_cast<int>(width);
    }

    std::string m_margin;
    std::string m_text;
};

} // namespace

std::string whyText(const Reason& reason) {
    WhyLines lines("");
    lines.add(reason);
    return lines.take();
}

} // namespace kavela::cli
