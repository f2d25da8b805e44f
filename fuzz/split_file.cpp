#include "harness.h"
#include "splitdata/loader.h"

/// Split files of every release, through recognition and upgrade.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    using namespace kavela;
    const auto json = fuzz::parsed(bytes, size);
    if (!json)
        return 0;
    std::size_t lines = 0;
    const RecognisedSplitFile file = recogniseSplitDocument(
        *json, "fuzz.kvx", [&](std::string_view) { ++lines; }, [] { return ReferenceDate{1}; });
    const std::size_t hopelessLines = file.version ? 0 : 1;
    fuzz::require(lines == file.failures.size() + hopelessLines);
    for (const FailedAttempt& attempt : file.failures)
        fuzz::require(!attempt.fault.text.empty());
    if (file.version)
        fuzz::checkWriting(file.document);
    return 0;
}
