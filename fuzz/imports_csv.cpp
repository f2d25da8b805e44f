#include "boatmotion/imports/sensor_csv.h"
#include "harness.h"

#include <unistd.h>

#include <cmath>
#include <filesystem>
#include <fstream>

namespace {

using namespace kavela;

/// The list of the present input, in a file of this process's own.
std::filesystem::path writeList(const std::uint8_t* bytes, std::size_t size) {
    const auto path = std::filesystem::temp_directory_path() /
                      ("kavela-fuzz-" + std::to_string(::getpid()) + ".csv");
    std::ofstream(path, std::ios::binary)
        .write(reinterpret_cast<const char*>(bytes), static_cast<std::streamsize>(size));
    return path;
}

void checkImport(const SensorCsv& csv, const CsvMapping& mapping) {
    (void)csv.preview(mapping);
    if (faultOf(mapping))
        return;
    const CsvImport import = csv.read(mapping);
    fuzz::require(import.unread.size() <= CsvImport::MostListed &&
                  import.unread.size() <= import.unreadCount);
    for (const boatmotionrawdata_v5& sample : import.session.boatmotion)
        fuzz::require(std::isfinite(sample.timestamp));
    fuzz::checkWriting(import.session);
}

} // namespace

/// Lists of sensor loggers, read as they are guessed and with columns one further.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    try {
        const SensorCsv csv(writeList(bytes, size));
        for (const char separator : {',', ';', '\t'}) {
            CsvMapping mapping = csv.guess(separator);
            checkImport(csv, mapping);
            for (std::size_t c = 0; c < mapping.columns.size(); ++c)
                mapping.columns[c] = static_cast<CsvQuantity>((c + 1) % CsvQuantities);
            mapping.readsUpAtRest = false;
            checkImport(csv, mapping);
        }
    } catch (const DecodeError& error) {
        fuzz::require(!error.fault().text.empty());
    }
    return 0;
}
