#pragma once

#include "splittaking/video_names.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kavela {

/// A pattern for the names of films, taken apart. What it means is told at filmFacts().
class VideoPattern {
public:
    explicit VideoPattern(std::string_view pattern);

    /// What is wrong with the pattern, or nothing.
    [[nodiscard]] const std::optional<std::string>& fault() const { return m_fault; }

    /// What a plain film name tells by this pattern; nothing when it does not match, and always
    /// when the pattern has a fault.
    [[nodiscard]] std::optional<FilmFacts> match(std::string_view film) const;

private:
    enum class Kind { Literal, Name, Category, Phase, Bib, Number, Any };

    struct Part {
        Kind kind = Kind::Literal;
        std::string text;        ///< of a literal, folded to small ASCII letters
        bool isSetApart = false; ///< by the pattern's ends and more than blanks
    };

    class Attempt;

    static std::optional<Kind> kindOf(std::string_view placeholder);
    void addPlaceholder(std::string_view placeholder);
    void addLiteral(std::string_view text);
    void findFaults();
    void findSetApart();

    std::vector<Part> m_parts;
    std::optional<std::string> m_fault;
};

} // namespace kavela
