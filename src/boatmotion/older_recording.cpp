#include "boatmotion/older_recording.h"

#include "boatmotion/session_files.h"
#include "common/json_decode.h"
#include "common/json_encode.h"
#include "common/safe_file.h"

namespace kavela {

namespace fs = std::filesystem;

namespace {

bool holds(const fs::path& path, const std::string& content) {
    std::error_code error;
    if (fs::file_size(path, error) != content.size() || error)
        return false;
    try {
        return encode(readRawSession(path)) == content;
    } catch (const std::runtime_error&) {
        return false;
    }
}

} // namespace

fs::path upgradeRecording(const fs::path& recording) {
    const std::string content =
        encode(upgradedRawSession(decode<bmrawdata_v4>(JsonDocument::fromFile(recording))));
    const fs::path first = upgradedSessionPath(recording);
    fs::path target = first;
    for (int number = 2; isTaken(target); ++number) {
        if (holds(target, content))
            return target;
        target = first.parent_path() / (first.stem().string() + '_' + std::to_string(number));
        target += first.extension();
    }
    writeFileSafely(target, content);
    return target;
}

} // namespace kavela
