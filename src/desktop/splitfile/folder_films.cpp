#include "desktop/splitfile/folder_films.h"

#include "desktop/shell/file_copy.h"
#include "desktop/shell/workspace.h"

#include <QFileInfo>
#include <QObject>

#include <utility>

namespace kavela::desktop {

QString videoFilter() {
    return QObject::tr("Videos (*.mov *.mp4 *.m4v *.avi *.mkv *.mts *.m2ts *.ts *.3gp *.webm "
                       "*.mpg);;All files (*)");
}

/// What is left to be copied, and what is there.
struct FolderFilms::Copying {
    QString folder;
    QStringList files;
    QStringList names;
    Copied copied;
};

void FolderFilms::copy(const QString& folder, const QStringList& files, const Copied& copied) {
    copyNext({folder, files, {}, copied});
}

void FolderFilms::copyNext(Copying copying) {
    while (!copying.files.isEmpty()) {
        const QFileInfo source(copying.files.takeFirst());
        const QFileInfo target(copying.folder + '/' + source.fileName());
        if (!target.exists())
            return copyOne(source.filePath(), target.filePath(), std::move(copying));
        if (target.size() == source.size())
            copying.names.append(source.fileName());
        else
            tellFailure(QObject::tr("The folder has another film named %1 already. Give one of "
                                    "them another name first."),
                        source.fileName());
    }
    copying.copied(copying.names);
}

void FolderFilms::copyOne(const QString& from, const QString& to, Copying copying) {
    const QString name = QFileInfo(from).fileName();
    m_work.runOver(
        {&m_over, QObject::tr("Copying %1").arg(name), true},
        [from, to](const WorkSteps& steps) { return copyFile(from, to, steps); },
        [this, name, copying](CopyEnd end) mutable {
            if (end == CopyEnd::Done)
                copying.names.append(name);
            else
                tellFailure(QObject::tr("%1 could not be copied into the folder."), name);
            copyNext(std::move(copying));
        },
        {.cancelled = [copying] { copying.copied(copying.names); }});
}

void FolderFilms::tellFailure(const QString& text, const QString& name) const {
    m_workspace.showAlert({"", text.arg(name).toStdString()}, &m_over);
}

} // namespace kavela::desktop
