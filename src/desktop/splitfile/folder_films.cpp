#include "desktop/splitfile/folder_films.h"

#include "desktop/shell/file_copy.h"
#include "desktop/shell/workspace.h"

#include <QFileInfo>
#include <QObject>

namespace kavela::desktop {

QString videoFilter() {
    return QObject::tr("Videos (*.mov *.mp4 *.m4v *.avi *.mkv *.mts *.m2ts *.ts *.3gp *.webm "
                       "*.mpg);;All files (*)");
}

QStringList copiedIntoFolder(const QString& folder, const QStringList& files, Workspace& workspace,
                             QWidget* over) {
    QStringList names;
    for (const QString& file : files) {
        const QFileInfo source(file);
        const QFileInfo target(folder + '/' + source.fileName());
        const bool isOther = target.exists() && target.size() != source.size();
        const CopyEnd end = isOther           ? CopyEnd::Failed
                            : target.exists() ? CopyEnd::Done
                                              : copyFile(file, target.filePath(), over);
        if (end == CopyEnd::Cancelled)
            return names;
        if (end == CopyEnd::Done)
            names.append(source.fileName());
        else
            workspace.showAlert(
                {"", (isOther ? QObject::tr("The folder has another film named %1 already. Give "
                                            "one of them another name first.")
                              : QObject::tr("%1 could not be copied into the folder."))
                         .arg(source.fileName())
                         .toStdString()},
                over);
    }
    return names;
}

} // namespace kavela::desktop
