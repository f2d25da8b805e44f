#include "preferences/start_up.h"

#include "common/json_decode.h"

#include <QStandardPaths>

#include <array>

namespace kavela {

namespace fs = std::filesystem;

namespace {

constexpr std::array ObsoleteFiles{"Kavela/settings2020.kvs", "Kavela/settings.kvs"};

/// The list stands under its key as a JSON array; reading goes through a record of one member.
struct PointsOfInterest {
    std::vector<std::string> list;
};
BOOST_DESCRIBE_STRUCT(PointsOfInterest, (), (list))

void createMissing(Preferences& preferences, const DiagnosticLog& log) {
    for (const PreferenceEntry& entry : preferenceTable()) {
        if (preferences.contains(entry.key))
            continue;
        log("Creating " + std::string(entry.key));
        preferences.set(entry.key, entry.defaultValue);
    }
}

std::vector<std::string> readPointsOfInterest(const Preferences& preferences,
                                              const DiagnosticLog& log) {
    const auto text = preferences.rawText("mtPoI");
    if (!text)
        return {};
    try {
        return decodeText<PointsOfInterest>("{\"list\":" + *text + "}").list;
    } catch (const DecodeError& error) {
        log("The preference mtPoI could not be read: " + std::string(error.what()));
        return {};
    }
}

void deleteObsoleteFiles(const fs::path& libraryFolder, const DiagnosticLog& log) {
    for (const char* name : ObsoleteFiles) {
        const fs::path file = libraryFolder / name;
        std::error_code error;
        fs::remove(file, error); // absent files are no error
        if (error)
            log("The file " + file.string() + " could not be deleted: " + error.message());
    }
}

} // namespace

StartUp startUp(Preferences& preferences, const fs::path& libraryFolder, const DiagnosticLog& log) {
    createMissing(preferences, log);
    StartUp result{readPointsOfInterest(preferences, log)};
    deleteObsoleteFiles(libraryFolder, log);
    return result;
}

fs::path userLibraryFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation).toStdString();
}

} // namespace kavela
