#include "boatmotion/sessions.h"
#include "harness.h"

/// Processed sessions of every version.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    using namespace kavela;
    if (const auto json = fuzz::parsed(bytes, size)) {
        (void)fuzz::checkReading<smartAlldata_v4>(*json);
        (void)fuzz::checkReading<smartAlldata_v5>(*json);
        (void)fuzz::checkReading<smartAlldata_v3>(*json);
        (void)fuzz::checkReading<smartAlldata>(*json);
    }
    return 0;
}
