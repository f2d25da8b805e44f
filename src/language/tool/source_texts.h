#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

/// The texts of the plain libraries as they stand in their sources. They have no classes to
/// translate for, and are known by the functions that say them.
namespace kavela::catalogue {

/// The context of all of them in the catalogues.
inline constexpr std::string_view PlainContext = "kavela";

/// One text.
struct SourceText {
    std::string spelling;   ///< as between quotes in the source, its pieces put together
    bool isCounted = false; ///< it has forms for numbers
};

/// The texts in one source, in their order. `isCommandLine` for sources that describe options,
/// whose helps are texts too.
[[nodiscard]] std::vector<SourceText> textsIn(std::string_view source, bool isCommandLine);

/// The texts of all sources below a folder, each once, in the order of the paths. Throws
/// std::runtime_error for a file that cannot be read.
[[nodiscard]] std::vector<SourceText> textsBelow(const std::filesystem::path& folder);

/// A source that marks the texts for the program that keeps the catalogues.
[[nodiscard]] std::string markedTexts(const std::vector<SourceText>& texts);

} // namespace kavela::catalogue
