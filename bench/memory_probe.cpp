#include "boatmotion/sessions.h"
#include "common/json_decode.h"
#include "splitdata/document.h"

#include <nlohmann/json.hpp>
#include <rapidjson/document.h>

#include <fstream>
#include <iostream>
#include <sstream>

/// Reads one file in one way and prints the most memory that this took, in kilobytes.
namespace {

using namespace kavela;

std::string contentOf(const std::string& path) {
    std::ifstream file(path, std::ios::binary | std::ios::ate);
    std::string content(static_cast<std::size_t>(file.tellg()), '\0');
    file.seekg(0).read(content.data(), static_cast<std::streamsize>(content.size()));
    return content;
}

bool readAs(std::string_view way, const std::string& path) {
    if (way == "race")
        return !decode<splittakerdata031>(JsonDocument::fromFile(path)).athletes.empty();
    if (way == "recording")
        return !decode<bmrawdata_v5>(JsonDocument::fromFile(path)).boatmotion.empty();
    if (way == "bare_parse") {
        simdjson::dom::parser parser;
        return !parser.load(path).error();
    }
    if (way == "nlohmann")
        return nlohmann::json::parse(contentOf(path)).is_object();
    if (way == "rapidjson") {
        rapidjson::Document document;
        const std::string text = contentOf(path);
        return document.Parse<rapidjson::kParseFullPrecisionFlag>(text.data(), text.size())
            .IsObject();
    }
    return way == "nothing";
}

/// Unlike the figure of getrusage, this one starts anew with the program.
std::string highWaterMark() {
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);)
        if (std::string name, value; std::istringstream(line) >> name >> value && name == "VmHWM:")
            return value;
    return {};
}

} // namespace

int main(int count, char** words) {
    if (count != 3 || !readAs(words[1], words[2]))
        return 1;
    std::cout << highWaterMark() << '\n';
    return 0;
}
