#include "planning/water_test_file.h"

#include "common/json_decode.h"
#include "common/json_encode.h"
#include "common/safe_file.h"

namespace kavela {

RecognisedTests recogniseTests(const JsonDocument& json) {
    onWaterTests tests;
    Fault fault;
    if (tryDecode(json.root(), tests, fault))
        return {std::move(tests), {}};
    return {{}, FailedAttempt{TestsRecord, std::move(fault)}};
}

onWaterTests readTestsFile(const std::filesystem::path& path) {
    return decode<onWaterTests>(JsonDocument::fromFile(path));
}

void saveTestsFile(const onWaterTests& tests, const std::filesystem::path& path) {
    writeFileSafely(path, encode(tests));
}

} // namespace kavela
