#pragma once

#include <filesystem>
#include <string>
#include <vector>

/// Catalogues of translations as Qt Linguist keeps them.
namespace kavela::catalogue {

/// One text and what it is in the language of the catalogue.
struct Message {
    std::string context;
    std::string source;
    std::string comment;            ///< what tells it apart from the same text elsewhere
    bool isCounted = false;         ///< it has a form for each kind of number
    bool isFinished = false;        ///< a translator has said so
    bool isGone = false;            ///< no source has it any more
    std::vector<std::string> forms; ///< one, or as many as the language has
};

struct Catalogue {
    std::string language; ///< "de" or "de_DE"
    std::vector<Message> messages;
};

/// Reads a file. Throws std::runtime_error with the path and what is wrong with it.
[[nodiscard]] Catalogue readCatalogue(const std::filesystem::path& file);

/// Writes one. Throws std::runtime_error when it cannot be written.
void writeCatalogue(const Catalogue& catalogue, const std::filesystem::path& file);

} // namespace kavela::catalogue
