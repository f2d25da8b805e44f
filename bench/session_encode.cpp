#include "subjects.h"

#include "boatmotion/sessions.h"
#include "common/json_decode.h"
#include "common/json_encode.h"
#include "measure.h"
#include "sample_files.h"
#include "splitdata/document.h"

#include <nlohmann/json.hpp>
#include <rapidjson/document.h>
#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

/// Writing of 40 MB: Kavela's records beside the trees of two well-known libraries.
namespace kavela::bench {

namespace {

using Text = const std::string& (*)();

template <class Document>
void kavela(benchmark::State& state, Text text) {
    const auto document = decodeText<Document>(text());
    measureMaking(state, text().size(), [&] { return encode(document); });
}

void nlohmannTree(benchmark::State& state, Text text) {
    const auto tree = nlohmann::json::parse(text());
    measureMaking(state, text().size(), [&] { return tree.dump(); });
}

void rapidjsonTree(benchmark::State& state, Text text) {
    rapidjson::Document tree;
    tree.Parse<rapidjson::kParseFullPrecisionFlag>(text().data(), text().size());
    measureMaking(state, text().size(), [&] {
        rapidjson::StringBuffer buffer;
        rapidjson::Writer<rapidjson::StringBuffer> writer(buffer);
        tree.Accept(writer);
        return buffer;
    });
}

void addPeers(const std::string& file, Text text) {
    benchmark::RegisterBenchmark(("encode/" + file + "/nlohmann").c_str(), nlohmannTree, text);
    benchmark::RegisterBenchmark(("encode/" + file + "/rapidjson").c_str(), rapidjsonTree, text);
}

} // namespace

void addSessionEncode() {
    benchmark::RegisterBenchmark("encode/race/kavela", kavela<splittakerdata031>, recordedRaceText);
    addPeers("race", recordedRaceText);
    benchmark::RegisterBenchmark("encode/recording/kavela", kavela<bmrawdata_v5>, recordingText);
    addPeers("recording", recordingText);
}

} // namespace kavela::bench
