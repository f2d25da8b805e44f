#include "desktop/shell/file_writing.h"

#include "common/kept_file.h"
#include "common/safe_file.h"
#include "desktop/shell/background_work.h"

#include <string_view>

namespace kavela::desktop {

void FileWriting::write(const Content& content, const Beside& beside) {
    if (!keepsOlder())
        return;
    const std::filesystem::path file = path.toStdString();
    fault = faultOf([&] { writeFileSafely(file, content()); });
    written = FileStamp(path);
    if (!fault && beside)
        besideFault = faultOf([&] { beside(file); });
}

bool FileWriting::keepsOlder() {
    if (olderLayout.empty() || !FileStamp(path).isThere())
        return true;
    const auto note = [this](std::string_view remark) { remarks.emplace_back(remark); };
    isOlderLost = keepPreviousFile(path.toStdString(), olderLayout, failure, note).empty();
    return !isOlderLost;
}

} // namespace kavela::desktop
