#pragma once

#include "fetch/address.h"
#include "fetch/fetch_run.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kavela::fetch {

/// An address in which {bib}, {category}, {phase} and {run} stand for what they are of each run;
/// {bib:3} pads a number with zeros to three digits (1 to 9).
class UrlPattern {
public:
    explicit UrlPattern(std::string_view text);

    /// Whether a text asks for something of a run: else it is the address of a list of films.
    [[nodiscard]] static bool isPattern(std::string_view text);

    /// What is wrong with the pattern, in a sentence; nothing when it can be used.
    [[nodiscard]] const std::optional<std::string>& fault() const { return m_fault; }

    /// What of a run the pattern asks for and nobody told, such as "category"; empty for nothing.
    [[nodiscard]] std::string lackOf(const FetchRun& run) const;

    /// The address of a run's film, on the server that the pattern names whatever the run holds;
    /// nothing where the run lacks something or the pattern has a fault.
    [[nodiscard]] std::optional<Address> address(const FetchRun& run) const;

private:
    enum class Kind { Literal, Bib, Category, Phase, Run };

    struct Part {
        Kind kind = Kind::Literal;
        std::string text;      ///< of a literal
        std::size_t width = 0; ///< digits that a number has at least
    };

    void addPlaceholder(std::string_view placeholder);
    void checkPlaces(std::string_view text);
    [[nodiscard]] static std::string valueOf(const Part& part, const FetchRun& run);

    std::vector<Part> m_parts;
    std::optional<std::string> m_fault;
};

} // namespace kavela::fetch
