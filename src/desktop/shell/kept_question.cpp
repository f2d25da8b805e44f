#include "desktop/shell/kept_question.h"

#include "desktop/shell/edited_file.h"
#include "desktop/shell/workspace.h"
#include "splittaking/messages.h"

#include <QDateTime>
#include <QFileInfo>

namespace kavela::desktop {

namespace {

QString keptMoment(const QDateTime& moment) {
    const QDate today = QDate::currentDate();
    const QString time = moment.toString("HH:mm");
    if (moment.date() == today)
        return EditedFile::tr("today %1").arg(time);
    if (moment.date() == today.addDays(-1))
        return EditedFile::tr("yesterday %1").arg(time);
    return moment.toString("yyyy-MM-dd HH:mm");
}

} // namespace

KeptAnswer askForKept(const Autosave::Found& work, const QString& path, const Workspace& workspace,
                      QWidget* over) {
    workspace.log()(messages::AutosaveFound);
    QStringList facts{QFileInfo(path).fileName(), work.label.note, keptMoment(work.when)};
    facts.removeAll(QString());
    enum Way { Load, Later, Discard };
    const int way = workspace.chooseWay(
        {facts.join(", ").toStdString(), messages::AskToLoadAutosave},
        {.texts = {EditedFile::tr("Load"), EditedFile::tr("Later"), EditedFile::tr("Discard")},
         .onEnter = Load,
         .onEscape = Later},
        over);
    return way == Load ? KeptAnswer::Load : way == Later ? KeptAnswer::Later : KeptAnswer::Discard;
}

} // namespace kavela::desktop
