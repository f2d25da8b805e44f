#include "common/why.h"

#include <utility>

namespace kavela {

namespace {

bool saysNothing(const Reason& reason) {
    return reason.rule == nullptr && reason.inputs.empty() && reason.notes.empty() &&
           reason.parts.empty() && !reason.uncertainty;
}

} // namespace

void Why::result(const Rule& rule, double value, std::string shown) {
    m_reason.rule = &rule;
    m_reason.value = value;
    m_reason.shown = std::move(shown);
}

void Why::input(std::string name, double value, std::optional<Place> place) {
    m_reason.inputs.push_back({std::move(name), value, std::move(place)});
}

void Why::input(std::string name, double value, std::optional<Place> place, double plusMinus,
                std::string_view source) {
    m_reason.inputs.push_back(
        {std::move(name), value, std::move(place), plusMinus, std::string(source)});
}

void Why::uncertain(Interval range, std::string source) {
    m_reason.uncertainty = range;
    m_reason.uncertaintySource = std::move(source);
}

void Why::note(std::string text) {
    m_reason.notes.push_back(std::move(text));
}

Why* Why::part() {
    return &m_parts.emplace_back();
}

Reason Why::reason() const {
    Reason whole = m_reason;
    // A function that was passed a part and had nothing to say of a number leaves no gap behind.
    for (const Why& part : m_parts)
        if (Reason reason = part.reason(); !saysNothing(reason))
            whole.parts.push_back(std::move(reason));
    return whole;
}

} // namespace kavela
