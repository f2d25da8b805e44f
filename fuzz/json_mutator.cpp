#include <nlohmann/json.hpp>

#include <cstdint>
#include <cstring>
#include <random>
#include <string>

/// Changes a document as a document: a value becomes one of another kind, a key goes or comes twice
/// or moves, an array grows. Bytes changed blindly nearly always end in text that is no JSON, and
/// then nothing behind the parser is reached.
extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* bytes, std::size_t size, std::size_t room);

namespace {

using Json = nlohmann::ordered_json;
using Random = std::minstd_rand;

std::size_t below(Random& random, std::size_t count) {
    return random() % count;
}

/// A value from anywhere in the document; deep ones as likely as shallow ones.
Json& anyValue(Json& from, Random& random) {
    Json* value = &from;
    while (value->is_structured() && !value->empty() && below(random, 5) > 0)
        value =
            &*std::next(value->begin(), static_cast<std::ptrdiff_t>(below(random, value->size())));
    return *value;
}

Json unusualValue(Random& random) {
    static const Json values = Json::parse(
        R"([null, true, false, 0, -0.0, 3.0, -1, 1e308, 5e-324, 2147483648, 4294967296,
            9223372036854775807, 9223372036854775808, -9223372036854775808, 18446744073709551615,
            0.1, "", "A", "AA==", "QUJD", "\u0000", "é\n\"", [], {}, [[]], [0, 2, 50]])");
    return values[below(random, values.size())];
}

void dropEntry(Json& value, Random& random) {
    if (value.is_structured() && !value.empty())
        value.erase(
            std::next(value.begin(), static_cast<std::ptrdiff_t>(below(random, value.size()))));
}

void moveEntry(Json& value, Random& random) {
    if (!value.is_object() || value.empty())
        return;
    const auto at =
        std::next(value.begin(), static_cast<std::ptrdiff_t>(below(random, value.size())));
    const std::string key = at.key();
    Json entry = *at;
    value.erase(at);
    value[key] = std::move(entry);
}

void repeatEntry(Json& value, Random& random) {
    if (value.is_array() && !value.empty())
        value.push_back(Json(value[below(random, value.size())]));
}

void mutate(Json& document, Random& random) {
    Json& value = anyValue(document, random);
    switch (below(random, 6)) {
    case 0:
        value = unusualValue(random);
        break;
    case 1:
        value = Json(anyValue(document, random));
        break;
    case 2:
        dropEntry(value, random);
        break;
    case 3:
        moveEntry(value, random);
        break;
    case 4:
        repeatEntry(value, random);
        break;
    default:
        value = Json::array({Json(value)});
    }
}

} // namespace

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* bytes, std::size_t size,
                                               std::size_t room, unsigned seed) {
    Random random(seed);
    Json document = Json::parse(bytes, bytes + size, nullptr, false);
    if (document.is_discarded() || below(random, 3) == 0)
        return LLVMFuzzerMutate(bytes, size, room);
    for (std::size_t changes = 1 + below(random, 3); changes > 0; --changes)
        mutate(document, random);
    const std::string text = document.dump(-1, ' ', false, Json::error_handler_t::replace);
    if (text.size() > room)
        return LLVMFuzzerMutate(bytes, size, room);
    std::memcpy(bytes, text.data(), text.size());
    return text.size();
}
