#include "splittaking/course_setup.h"

#include "common/text.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace kavela {

namespace {

constexpr std::string_view Blanks = " \t\r\n";
constexpr std::string_view Separators = " \t\r\n,;";

std::string_view trimmed(std::string_view text) {
    const std::size_t begin = std::min(text.find_first_not_of(Blanks), text.size());
    text.remove_prefix(begin);
    return text.substr(0, text.find_last_not_of(Blanks) + 1);
}

template <class Number>
std::optional<Number> parsed(std::string_view text) {
    Number number{};
    const char* const end = text.data() + text.size();
    const auto [rest, fault] = std::from_chars(text.data(), end, number);
    if (fault != std::errc() || rest != end)
        return std::nullopt;
    return number;
}

std::string notOnCourse(std::int64_t gate, std::int64_t gates) {
    return say("Gate {} is not on a course of {}.", gate, sayCount(gates, "{} gate", "{} gates"));
}

/// What is wrong with a gate that follows another one through the sections.
std::string orderFault(std::int64_t gate, std::int64_t expected, std::size_t section) {
    if (gate < expected)
        return say("Gate {} stands a second time or out of order in section {}.", gate, section);
    return say("Gate {} is missing before gate {} in section {}.", expected, gate, section);
}

} // namespace

CourseSections defaultSections(std::int64_t gates, std::int64_t splits) {
    gates = std::clamp<std::int64_t>(gates, 0, MostGates);
    splits = std::clamp<std::int64_t>(splits, 0, MostSplits);
    CourseSections sections(static_cast<std::size_t>(splits));
    std::int64_t gate = 0;
    for (std::int64_t k = 0; k < splits; ++k) {
        const std::int64_t last = gate + gates / splits + (k < gates % splits ? 1 : 0);
        while (gate < last)
            sections[static_cast<std::size_t>(k)].push_back(++gate);
    }
    return sections;
}

std::vector<std::string> sectionTitles(const CourseSections& sections) {
    std::vector<std::string> titles;
    for (const auto& gates : sections) {
        if (gates.empty())
            titles.push_back("S" + std::to_string(titles.size() + 1));
        else if (gates.size() == 1)
            titles.push_back(std::to_string(gates.front()));
        else
            titles.push_back(std::to_string(gates.front()) + '-' + std::to_string(gates.back()));
    }
    return titles;
}

std::optional<std::int64_t> parseGates(std::string_view text) {
    const auto gates = parsed<std::int64_t>(trimmed(text));
    return gates && *gates >= 0 && *gates <= MostGates ? gates : std::nullopt;
}

GateList parseGateList(std::string_view text, std::int64_t gates) {
    GateList list;
    while (text.find_first_not_of(Separators) != std::string_view::npos) {
        text.remove_prefix(text.find_first_not_of(Separators));
        const std::string_view word = text.substr(0, text.find_first_of(Separators));
        text.remove_prefix(word.size());
        const auto gate = parsed<std::int64_t>(word);
        if (!gate)
            return {{}, say("\"{}\" is no gate number.", word)};
        if (*gate < 1 || *gate > gates)
            return {{}, notOnCourse(*gate, gates)};
        list.gates.push_back(*gate);
    }
    std::sort(list.gates.begin(), list.gates.end());
    list.gates.erase(std::unique(list.gates.begin(), list.gates.end()), list.gates.end());
    return list;
}

std::optional<std::string> faultOfSections(const infodata031& course) {
    const CourseSections& sections = course.definedsections;
    if (sections.empty())
        return std::nullopt;
    std::int64_t expected = 1;
    for (std::size_t k = 0; k < sections.size(); ++k) {
        for (const std::int64_t gate : sections[k]) {
            if (gate < 1 || gate > course.gates)
                return notOnCourse(gate, course.gates);
            if (gate != expected)
                return orderFault(gate, expected, k + 1);
            ++expected;
        }
    }
    if (expected <= course.gates)
        return say("Gate {} stands in no section.", expected);
    if (!std::cmp_equal(sections.size(), course.totalsplits))
        return say("The number of sections is {}, but that of splits is {}.", sections.size(),
                   course.totalsplits);
    return std::nullopt;
}

} // namespace kavela
