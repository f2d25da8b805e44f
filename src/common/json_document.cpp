#include "common/json_document.h"

#include "common/file_reader.h"
#include "common/large_pages.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <charconv>
#include <new>
#include <string>

namespace kavela {

namespace {

/// Finding the place of a fault reads the text once more, slowly; beyond this it is left out.
constexpr std::size_t LargestTextToSearch = 64U << 20;
/// Digits of the smallest whole number that 64 signed bits cannot hold.
constexpr std::size_t ShortestWideInteger = 19;

/// Accepts everything and remembers where the text stopped being JSON.
struct FaultFinder : nlohmann::json_sax<nlohmann::json> {
    std::string fault;
    bool isExplained = false;

    bool null() override { return true; }
    bool boolean(bool) override { return true; }
    bool number_integer(number_integer_t) override { return true; }
    bool number_unsigned(number_unsigned_t) override { return true; }
    bool number_float(number_float_t, const string_t&) override { return true; }
    bool string(string_t&) override { return true; }
    bool binary(binary_t&) override { return true; }
    bool start_object(std::size_t) override { return true; }
    bool key(string_t&) override { return true; }
    bool end_object() override { return true; }
    bool start_array(std::size_t) override { return true; }
    bool end_array() override { return true; }
    bool parse_error(std::size_t position, const std::string&,
                     const nlohmann::detail::exception& error) override {
        // The library's text reads "[json.exception…] parse error at line 1, column 5: what".
        const std::string_view what = error.what();
        const auto colon = what.find(": ");
        fault = "not JSON, byte " + std::to_string(position);
        if (colon != std::string_view::npos)
            fault += ": " + std::string(what.substr(colon + 2));
        isExplained = colon != std::string_view::npos;
        return false;
    }
};

std::string plainText(simdjson::error_code code) {
    switch (code) {
    case simdjson::UTF8_ERROR:
        return "the text is not valid UTF-8";
    case simdjson::DEPTH_ERROR:
        return "the document is nested too deeply";
    case simdjson::NUMBER_ERROR:
        return "not JSON: a number is malformed or out of range";
    case simdjson::UNCLOSED_STRING:
        return "not JSON: a text is not closed (the file may be cut off)";
    case simdjson::UNESCAPED_CHARS:
        return "not JSON: a text holds a control character";
    case simdjson::STRING_ERROR:
        return "not JSON: a text holds a malformed escape";
    case simdjson::MEMALLOC:
        return "the document is too large for the memory";
    default:
        return "not JSON, or cut off";
    }
}

Fault describe(simdjson::error_code code, std::string_view text) {
    if (code == simdjson::DEPTH_ERROR || code == simdjson::MEMALLOC ||
        text.size() > LargestTextToSearch)
        return {{}, plainText(code)};
    FaultFinder finder;
    if (nlohmann::json::sax_parse(text, &finder) || finder.fault.empty())
        return {{}, plainText(code)};
    return {{}, finder.isExplained ? finder.fault : finder.fault + ": " + plainText(code)};
}

/// Whether a whole number fits the 64 bits, signed or not, that the parser reads.
bool fitsInteger(std::string_view number) {
    const char* const end = number.data() + number.size();
    std::int64_t negative = 0;
    std::uint64_t positive = 0;
    return number.starts_with('-')
               ? std::from_chars(number.data(), end, negative).ec == std::errc{}
               : std::from_chars(number.data(), end, positive).ec == std::errc{};
}

/// The parser knows no whole number beyond 64 bits, but JSON does: such a number gets an exponent
/// of zero, which makes it a number of the other kind and leaves its value alone.
std::string withWideIntegersAsDoubles(std::string_view text) {
    std::string widened;
    bool inText = false;
    for (std::size_t i = 0; i < text.size();) {
        const char c = text[i];
        if (inText && c == '\\') {
            widened.append(text.substr(i, 2));
            i += 2;
            continue;
        }
        if (c == '"')
            inText = !inText;
        const std::size_t end =
            inText ? i : std::min(text.find_first_not_of("0123456789+-.eE", i), text.size());
        if (end == i) {
            widened += c;
            ++i;
            continue;
        }
        const std::string_view number = text.substr(i, end - i);
        widened.append(number);
        const bool whole = number.find_first_of(".eE+") == std::string_view::npos;
        if (whole && number.size() >= ShortestWideInteger && !fitsInteger(number))
            widened += "e0";
        i = end;
    }
    return widened;
}

/// The parser's memory is many times the text, most of it never touched.
void preferLargePagesIn(simdjson::dom::parser& parser, std::size_t textSize) {
    preferLargePages(parser.doc.tape.get(), textSize * sizeof(std::uint64_t));
    preferLargePages(parser.doc.string_buf.get(), textSize);
    preferLargePages(parser.implementation->structural_indexes.get(),
                     textSize * sizeof(std::uint32_t));
}

simdjson::error_code parse(simdjson::dom::parser& parser, const simdjson::padded_string& text,
                           simdjson::dom::element& root) {
    if (text.size() > 0 && parser.allocate(text.size()) == simdjson::SUCCESS)
        preferLargePagesIn(parser, text.size());
    return parser.parse(text.data(), text.size(), false).get(root);
}

} // namespace

JsonDocument::JsonDocument(simdjson::padded_string text)
    : m_parser(std::make_unique<simdjson::dom::parser>()) {
    simdjson::error_code code = parse(*m_parser, text, m_root);
    if (code == simdjson::NUMBER_ERROR)
        code = parse(*m_parser, simdjson::padded_string(withWideIntegersAsDoubles(text)), m_root);
    if (code != simdjson::SUCCESS)
        throw DecodeError(describe(code, text));
}

JsonDocument JsonDocument::fromFile(const std::filesystem::path& path) {
    return JsonDocument(readObjectText(path));
}

JsonDocument JsonDocument::fromText(std::string_view text) {
    simdjson::padded_string padded(text.size());
    if (padded.data() == nullptr)
        throw std::bad_alloc();
    preferLargePages(padded.data(), padded.size());
    std::copy(text.begin(), text.end(), padded.data());
    return JsonDocument(std::move(padded));
}

} // namespace kavela
