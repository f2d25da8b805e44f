#pragma once

#include <string>
#include <string_view>

/// Comparison of names as people write them: without regard to case and accents, numbers by value.
namespace kavela {

/// The text in small letters without accents, whether they are part of the letter or stand behind
/// it: "Šárka ØSTBY" is "sarka ostby". Ligatures become two letters (ß is "ss").
[[nodiscard]] std::string folded(std::string_view text);

/// Whether one name stands before another in a list for people: "run 9" before "Run 10". Names that
/// differ in case, accents or leading zeros alone are ordered too, so that a list has one order.
[[nodiscard]] bool isNaturallyBefore(std::string_view a, std::string_view b);

/// The same of many names, each of which is folded once.
class NaturalName {
public:
    /// The text must outlive it.
    explicit NaturalName(std::string_view text) : m_text(text), m_folded(folded(text)) {}

    [[nodiscard]] bool isBefore(const NaturalName& other) const;

private:
    std::string_view m_text;
    std::string m_folded;
};

} // namespace kavela
