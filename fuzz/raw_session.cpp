#include "boatmotion/session_files.h"
#include "harness.h"

/// Raw recordings, and the conversion of the older kind.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    using namespace kavela;
    const auto json = fuzz::parsed(bytes, size);
    if (!json)
        return 0;
    (void)recogniseSession(*json);
    (void)fuzz::checkReading<bmrawdata_v5>(*json);
    if (auto older = fuzz::checkReading<bmrawdata_v4>(*json))
        fuzz::checkWriting(upgradedRawSession(std::move(*older)));
    return 0;
}
