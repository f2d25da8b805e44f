#include "desktop/shell/dropped_files.h"

#include <QDragEnterEvent>
#include <QMimeData>
#include <QUrl>

namespace kavela::desktop {

void acceptFiles(QDragEnterEvent& event) {
    if (event.mimeData()->hasUrls())
        event.acceptProposedAction();
}

QStringList droppedFiles(QDropEvent& event) {
    QStringList files;
    for (const QUrl& url : event.mimeData()->urls())
        if (url.isLocalFile())
            files.append(url.toLocalFile());
    event.acceptProposedAction();
    return files;
}

} // namespace kavela::desktop
