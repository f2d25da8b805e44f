#pragma once

#include "desktop/shell/file_stamp.h"

#include <QPointer>
#include <QWidget>

#include <exception>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace kavela::desktop {

/// A document that is being written to its file, and how that ended.
struct FileWriting {
    /// Makes what the file is to hold; may throw.
    using Content = std::function<std::string()>;
    /// Writes what belongs beside the file; empty for nothing.
    using Beside = std::function<void(const std::filesystem::path& file)>;
    using Ended = std::function<void(bool isSaved)>;

    QString path;
    unsigned edits = 0; ///< of the document as it is written
    QPointer<QWidget> over;
    Ended saved;
    std::string failure;     ///< what to tell where it cannot be written
    std::string olderLayout; ///< keeps what stands there under such a name first; empty for nothing

    FileStamp written;
    std::exception_ptr fault;
    std::exception_ptr besideFault;
    bool isOlderLost = false;         ///< what stands there could not be kept: nothing was written
    std::vector<std::string> remarks; ///< for the log

    bool isLeft = false;     ///< the document is another one by now
    std::vector<Ended> next; ///< asked for meanwhile

    /// On the thread that writes: what stands there is kept, where it is to be, before it is
    /// replaced.
    void write(const Content& content, const Beside& beside);

private:
    [[nodiscard]] bool keepsOlder();
};

} // namespace kavela::desktop
