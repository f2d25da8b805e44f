#include "sample_files.h"

#include "common/error.h"
#include "common/json_encode.h"
#include "sample_content.h"

#include <cerrno>
#include <cstdlib>
#include <fstream>

namespace kavela::bench {

namespace fs = std::filesystem;

ScratchFolder::ScratchFolder() {
    std::string name = (fs::temp_directory_path() / "kavela-bench-XXXXXX").string();
    if (::mkdtemp(name.data()) == nullptr)
        throw FileError(name, std::system_category().message(errno));
    m_path = name;
}

ScratchFolder::~ScratchFolder() {
    std::error_code ignored;
    fs::remove_all(m_path, ignored);
}

fs::path ScratchFolder::write(const std::string& name, const std::string& content) const {
    const fs::path path = m_path / name;
    if (!(std::ofstream(path, std::ios::binary) << content).flush())
        throw FileError(path, "the benchmark could not write its file");
    return path;
}

const std::string& recordedRaceText() {
    static const std::string text = encode(recordedRace(11));
    return text;
}

const std::string& recordingText() {
    static const std::string text = encode(recording(1000));
    return text;
}

} // namespace kavela::bench
