#include "language/tool/tables.h"

#include "language/tool/source_texts.h"

#include <fmt/format.h>

#include <algorithm>
#include <map>
#include <set>

namespace kavela::catalogue {

namespace {

/// A text as a literal in which nothing is left to the compiler's reading.
std::string literalOf(const std::string& text) {
    std::string literal = "\"";
    for (const char sign : text) {
        const auto byte = static_cast<unsigned char>(sign);
        if (sign == '"' || sign == '\\' || sign == '?' || byte < 0x20 || byte >= 0x7F)
            literal += fmt::format("\\{:03o}", byte);
        else
            literal += sign;
    }
    return literal + "\\0\"";
}

bool isSaid(const Message& message) {
    return message.context == PlainContext && message.isFinished && !message.isGone &&
           !message.source.empty() && !message.forms.empty() &&
           std::ranges::none_of(message.forms, &std::string::empty);
}

std::string tableOf(const BuiltIn& builtIn) {
    std::map<std::string, const Message*> texts; // sorted by bytes, as they are looked up
    for (const Message& message : builtIn.catalogue.messages)
        if (isSaid(message))
            texts.emplace(message.source, &message);
    std::string words;
    std::string starts;
    std::string forms;
    std::size_t at = 0;
    for (const auto& [source, message] : texts) {
        words += "    " + literalOf(source);
        starts += fmt::format("{},", at);
        forms += fmt::format("{},", message->forms.size());
        at += source.size() + 1;
        for (const std::string& form : message->forms) {
            words += ' ' + literalOf(form);
            at += form.size() + 1;
        }
        words += '\n';
    }
    // An array of nothing is none; what no text points at does no harm.
    return fmt::format("constexpr char words_{0}[] =\n{1}    \"\";\n"
                       "constexpr std::uint32_t starts_{0}[] = {{{2}0}};\n"
                       "constexpr std::uint8_t forms_{0}[] = {{{3}0}};\n\n",
                       builtIn.code, words, starts, forms);
}

} // namespace

std::string tablesSource(const std::vector<BuiltIn>& catalogues) {
    std::string source = "#include \"language/catalogue_data.h\"\n\n"
                         "namespace kavela {\n\nnamespace {\n\n";
    std::string list;
    for (const BuiltIn& builtIn : catalogues) {
        source += tableOf(builtIn);
        list += fmt::format("    {{\"{0}\", {1}, words_{0}, std::span(starts_{0}).first("
                            "std::size(starts_{0}) - 1), forms_{0}}},\n",
                            builtIn.code, builtIn.isComplete);
    }
    return source + "constexpr CatalogueData Data[] = {\n" + list +
           "};\n\n} // namespace\n\nstd::span<const CatalogueData> builtInData() {\n"
           "    return Data;\n}\n\n} // namespace kavela\n";
}

Catalogue withAnyContext(const Catalogue& catalogue) {
    Catalogue whole = catalogue;
    std::set<std::string> known;
    for (Message message : catalogue.messages) {
        if (message.isGone || !message.isFinished || !known.insert(message.source).second)
            continue;
        message.context = AnyContext;
        message.comment.clear();
        whole.messages.push_back(std::move(message));
    }
    return whole;
}

} // namespace kavela::catalogue
