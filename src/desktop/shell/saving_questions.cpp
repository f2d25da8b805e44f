#include "desktop/shell/saving_questions.h"

#include "desktop/shell/background_work.h"
#include "desktop/shell/disk_worker.h"
#include "desktop/shell/edited_file.h"
#include "desktop/shell/file_writing.h"
#include "desktop/shell/workspace.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <exception>
#include <memory>
#include <string>

namespace kavela::desktop {

OtherAnswer askAboutOther(const QString& name, const Workspace& workspace, QWidget* over) {
    enum Way { Replace, Look, SaveAs };
    const int way = workspace.chooseWay(
        {name.toStdString(),
         EditedFile::tr("The file was changed by another program since it was opened. Saving "
                        "replaces what that program wrote.")
             .toStdString()},
        {.texts = {EditedFile::tr("Replace it"), EditedFile::tr("Look at the other"),
                   EditedFile::tr("Save as…")},
         .onEnter = Look,
         .onEscape = Look},
        over);
    return way == Replace  ? OtherAnswer::Replace
           : way == SaveAs ? OtherAnswer::SaveAs
                           : OtherAnswer::Look;
}

void showOther(const QString& path, Workspace& workspace, QObject& context) {
    QTemporaryDir folder;
    const QFileInfo file(path);
    const QString copy = folder.filePath(
        EditedFile::tr("%1 (the other).%2").arg(file.completeBaseName(), file.suffix()));
    if (!folder.isValid())
        return;
    folder.setAutoRemove(false); // its window reads it when it likes
    const auto isCopied = std::make_shared<bool>(false);
    disk::runAwaited(
        context, [path, copy, isCopied] { *isCopied = QFile::copy(path, copy); },
        [&workspace, copy, isCopied](const std::exception_ptr&) {
            if (*isCopied)
                emit workspace.openRequested(copy);
            else
                QDir(QFileInfo(copy).path()).removeRecursively();
        });
}

FailureAnswer askAboutFailure(const FileWriting& writing, bool isKept, const Workspace& workspace) {
    const std::string reason = causeOf(writing.fault);
    workspace.log()(writing.failure);
    workspace.log()(reason);
    const QString comfort =
        isKept
            ? EditedFile::tr("Your work is kept apart, and offered when the file is opened again.")
            : EditedFile::tr("Your work is in this window alone: it could not be kept apart "
                             "either.");
    // The folder tells which of several disks it is.
    const QFileInfo file(writing.path);
    const QString text = QStringLiteral("%1: %2.\n%3\n\n%4")
                             .arg(file.fileName(), QString::fromStdString(reason),
                                  QDir::toNativeSeparators(file.absolutePath()), comfort);
    enum Way { TryAgain, SaveAs, Later };
    const int way =
        workspace.chooseWay({writing.failure, text.toStdString()},
                            {.texts = {EditedFile::tr("Try again"), EditedFile::tr("Save as…"),
                                       EditedFile::tr("Later")},
                             .onEnter = TryAgain,
                             .onEscape = Later,
                             .isNews = true},
                            writing.over);
    return way == TryAgain ? FailureAnswer::TryAgain
           : way == SaveAs ? FailureAnswer::SaveAs
                           : FailureAnswer::Later;
}

void tellOlderLost(const FileWriting& writing, const Workspace& workspace) {
    workspace.showAlert(
        {writing.failure, EditedFile::tr("The file of the older version could not be kept beside "
                                         "the new one, so that nothing was written.")
                              .toStdString()},
        writing.over);
}

} // namespace kavela::desktop
