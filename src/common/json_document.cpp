#include "common/json_document.h"

#include "common/file_reader.h"
#include "common/json_fault.h"
#include "common/large_pages.h"
#include "common/text.h"

#include <simdjson.h>

#include <algorithm>
#include <charconv>
#include <map>
#include <mutex>
#include <new>
#include <optional>
#include <string>

namespace kavela {

namespace {

/// Finding the place of a fault reads the text once more, slowly; beyond this it is left out.
constexpr std::size_t LargestTextToSearch = 64U << 20;
/// Digits of the smallest whole number that 64 signed bits cannot hold.
constexpr std::size_t ShortestWideInteger = 19;

std::string plainText(simdjson::error_code code) {
    switch (code) {
    case simdjson::UTF8_ERROR:
        return say("the text is not valid UTF-8");
    case simdjson::DEPTH_ERROR:
        return say("the document is nested too deeply");
    case simdjson::NUMBER_ERROR:
        return say("not JSON: a number is malformed or out of range");
    case simdjson::UNCLOSED_STRING:
        return say("not JSON: a text is not closed (the file may be cut off)");
    case simdjson::UNESCAPED_CHARS:
        return say("not JSON: a text holds a control character");
    case simdjson::STRING_ERROR:
        return say("not JSON: a text holds a malformed escape");
    case simdjson::MEMALLOC:
        return say("the document is too large for the memory");
    default:
        return say("not JSON, or cut off");
    }
}

Fault describe(simdjson::error_code code, std::string_view text) {
    if (code == simdjson::DEPTH_ERROR || code == simdjson::MEMALLOC ||
        text.size() > LargestTextToSearch)
        return {{}, plainText(code)};
    const auto fault = findJsonFault(text);
    if (!fault)
        return {{}, plainText(code)};
    return {{}, say("not JSON, byte {}: {}", fault->byte, translated(fault->what))};
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

/// What tells a file from what it was before.
struct FileState {
    std::filesystem::file_time_type written;
    std::uintmax_t bytes = 0;

    bool operator==(const FileState&) const = default;
};

std::optional<FileState> stateOf(const std::filesystem::path& path) {
    std::error_code error;
    const FileState state{std::filesystem::last_write_time(path, error),
                          std::filesystem::file_size(path, error)};
    return error ? std::nullopt : std::optional(state);
}

/// The parsed files that somebody still holds, as they were before they were read.
template <class Tree>
class HeldFiles {
public:
    std::shared_ptr<Tree> find(const std::filesystem::path& path,
                               const std::optional<FileState>& state) {
        const std::lock_guard lock(m_guard);
        const auto file = m_files.find(path);
        return state && file != m_files.end() && file->second.state == *state
                   ? file->second.tree.lock()
                   : nullptr;
    }

    void add(const std::filesystem::path& path, const std::optional<FileState>& state,
             const std::shared_ptr<Tree>& tree) {
        const std::lock_guard lock(m_guard);
        std::erase_if(m_files, [](const auto& file) { return file.second.tree.expired(); });
        if (state)
            m_files.insert_or_assign(path, File{*state, tree});
    }

private:
    struct File {
        FileState state;
        std::weak_ptr<Tree> tree;
    };
    std::mutex m_guard;
    std::map<std::filesystem::path, File> m_files;
};

} // namespace

struct JsonDocument::Tree {
    explicit Tree(const simdjson::padded_string& text) {
        simdjson::error_code code = parse(parser, text, root);
        if (code == simdjson::NUMBER_ERROR)
            code = parse(parser, simdjson::padded_string(withWideIntegersAsDoubles(text)), root);
        if (code != simdjson::SUCCESS)
            throw DecodeError(describe(code, text));
    }

    simdjson::dom::parser parser;
    simdjson::dom::element root;
};

JsonDocument::JsonDocument(std::shared_ptr<const Tree> tree) : m_tree(std::move(tree)) {}

JsonDocument::JsonDocument(JsonDocument&&) noexcept = default;
JsonDocument& JsonDocument::operator=(JsonDocument&&) noexcept = default;
JsonDocument::~JsonDocument() = default;

simdjson::dom::element JsonDocument::root() const {
    return m_tree->root;
}

JsonDocument JsonDocument::fromFile(const std::filesystem::path& path) {
    static HeldFiles<const Tree> held;
    const std::optional<FileState> state = stateOf(path);
    if (auto tree = held.find(path, state))
        return JsonDocument(std::move(tree));
    auto tree = std::make_shared<const Tree>(readObjectText(path));
    held.add(path, state, tree);
    return JsonDocument(std::move(tree));
}

JsonDocument JsonDocument::fromText(std::string_view text) {
    simdjson::padded_string padded(text.size());
    if (padded.data() == nullptr)
        throw std::bad_alloc();
    preferLargePages(padded.data(), padded.size());
    std::copy(text.begin(), text.end(), padded.data());
    return JsonDocument(std::make_shared<const Tree>(padded));
}

} // namespace kavela
