#include "boatmotion/sessions.h"
#include "harness.h"

/// On-water test sessions.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    using namespace kavela;
    if (const auto json = fuzz::parsed(bytes, size))
        (void)fuzz::checkReading<varoTestAlldata>(*json);
    return 0;
}
