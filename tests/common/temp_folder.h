#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <vector>

namespace kavela::test {

/// A folder of one test's own, gone with it.
class TempFolder {
public:
    TempFolder() {
        std::string name = (std::filesystem::temp_directory_path() / "kavela-XXXXXX").string();
        if (!::mkdtemp(name.data()))
            throw std::runtime_error("no folder for the test");
        m_path = name;
    }
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;
    ~TempFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }

    [[nodiscard]] const std::filesystem::path& path() const { return m_path; }

    /// Writes a file into the folder and gives its path.
    [[nodiscard]] std::filesystem::path add(const std::string& name,
                                            const std::string& content) const {
        std::ofstream(m_path / name, std::ios::binary) << content;
        return m_path / name;
    }

    /// The names of everything in the folder.
    [[nodiscard]] std::vector<std::string> names() const {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(m_path))
            names.push_back(entry.path().filename().string());
        return names;
    }

private:
    std::filesystem::path m_path;
};

/// The bytes of a file. Throws when there is none.
inline std::string contentOf(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    if (!file)
        throw std::runtime_error("no file " + path.string());
    return {std::istreambuf_iterator<char>(file), {}};
}

} // namespace kavela::test
