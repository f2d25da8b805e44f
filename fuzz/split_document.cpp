#include "harness.h"
#include "splitdata/document.h"

/// The current split file.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    using namespace kavela;
    if (const auto json = fuzz::parsed(bytes, size))
        (void)fuzz::checkReading<splittakerdata031>(*json);
    return 0;
}
