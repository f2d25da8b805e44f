#include "common/kept_file.h"

#include "common/error.h"
#include "common/safe_file.h"

#include <string>

namespace kavela {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view KeptMark = "_old";

fs::path keptName(const fs::path& path, std::string_view extension, int number) {
    std::string name = path.stem().string() + std::string(KeptMark);
    if (number > 1)
        name += std::to_string(number);
    return path.parent_path() / (name + std::string(extension));
}

/// Whether a name is a second one of the same file, and no link that would follow the first.
bool isSecondName(const fs::path& name, const fs::path& path) {
    std::error_code ignored;
    return fs::equivalent(name, path, ignored) &&
           fs::weakly_canonical(name, ignored) != fs::weakly_canonical(path, ignored);
}

} // namespace

fs::path keepPreviousFile(const fs::path& path, std::string_view extension,
                          std::string_view failure, const DiagnosticLog& log) {
    try {
        for (int number = 1;; ++number) {
            fs::path name = keptName(path, extension, number);
            // An earlier attempt that could not write may have left its own: it will do.
            if (isSecondName(name, path) || keepUnderSecondName(path, name))
                return name;
        }
    } catch (const FileError& error) {
        log(failure);
        log("The file " + path.string() +
            " could not be kept under a second name: " + error.reason());
        return {};
    }
}

bool isKeptName(const fs::path& path) {
    std::string stem = path.stem().string();
    stem.erase(stem.find_last_not_of("0123456789") + 1);
    return stem.ends_with(KeptMark);
}

} // namespace kavela
