#include "subjects.h"

#include "boatmotion/sessions.h"
#include "common/json_decode.h"
#include "measure.h"
#include "sample_files.h"
#include "splitdata/document.h"

#include <nlohmann/json.hpp>
#include <rapidjson/document.h>
#include <simdjson.h>

/// Reading of 40 MB: Kavela's records beside the bare parse that they stand on, and beside what two
/// well-known libraries need to get no further than their own tree.
namespace kavela::bench {

namespace {

using Text = const std::string& (*)();

template <class Document>
void kavela(benchmark::State& state, Text text) {
    measureMaking(state, text().size(), [&] { return decodeText<Document>(text()); });
}

/// The parse of a program that reads one file: its parser is new.
void bareParse(benchmark::State& state, Text text) {
    const simdjson::padded_string padded(text());
    measureMaking(state, padded.size(), [&] {
        simdjson::dom::parser parser;
        benchmark::DoNotOptimize(parser.parse(padded).error());
        return parser;
    });
}

/// The best that the parser can do: its memory is there already, from the same file.
void bareParseAgain(benchmark::State& state, Text text) {
    const simdjson::padded_string padded(text());
    simdjson::dom::parser parser;
    benchmark::DoNotOptimize(parser.parse(padded).error());
    measureMaking(state, padded.size(), [&] { return parser.parse(padded).error(); });
}

void nlohmannTree(benchmark::State& state, Text text) {
    measureMaking(state, text().size(), [&] { return nlohmann::json::parse(text()); });
}

/// With exact numbers: by default this library reads some of them a digit off.
void rapidjsonTree(benchmark::State& state, Text text) {
    measureMaking(state, text().size(), [&] {
        rapidjson::Document document;
        document.Parse<rapidjson::kParseFullPrecisionFlag>(text().data(), text().size());
        return document;
    });
}

void addPeers(const std::string& file, Text text) {
    const auto add = [&](const char* peer, auto* subject) {
        benchmark::RegisterBenchmark(("decode/" + file + '/' + peer).c_str(), subject, text);
    };
    add("bare_parse", bareParse);
    add("bare_parse_again", bareParseAgain);
    add("nlohmann", nlohmannTree);
    add("rapidjson", rapidjsonTree);
}

} // namespace

void addSessionDecode() {
    benchmark::RegisterBenchmark("decode/race/kavela", kavela<splittakerdata031>, recordedRaceText);
    addPeers("race", recordedRaceText);
    benchmark::RegisterBenchmark("decode/recording/kavela", kavela<bmrawdata_v5>, recordingText);
    addPeers("recording", recordingText);
}

} // namespace kavela::bench
