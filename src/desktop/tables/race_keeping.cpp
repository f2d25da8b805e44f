#include "desktop/tables/race_keeping.h"

#include "desktop/shell/workspace.h"
#include "performance/race_tables.h"

#include <QFileInfo>
#include <QWidget>

#include <utility>

namespace kavela::desktop {

RaceKeeping::RaceKeeping(Workspace& workspace, QWidget& over, QObject* parent)
    : QObject(parent), m_workspace(workspace), m_over(&over) {}

void RaceKeeping::keep(std::shared_ptr<const ListTable> table, const QString& race) {
    if (!isEdited(race))
        write(table, race, KeptBefore::Stays);
}

/// The window that edits it would write over the table, or have its own changes written over.
bool RaceKeeping::isEdited(const QString& race) const {
    if (!m_workspace.openFiles().holderOf(race))
        return false;
    m_workspace.showAlert(
        {tr("“%1” is open in another window").arg(QFileInfo(race).fileName()).toStdString(),
         tr("Save and close it there, then keep the table. Nothing was written.").toStdString()},
        m_over);
    return true;
}

void RaceKeeping::write(const std::shared_ptr<const ListTable>& table, const QString& race,
                        KeptBefore before) {
    m_work.runOver(
        {m_over, tr("Keeping the table with the race…")},
        [table, file = race.toStdString(), before, now = m_workspace.clock()()] {
            return keepInSplitFile(file, *table, before, now);
        },
        [this, table, race](bool isKept) {
            if (isKept)
                emit kept(race);
            else
                askToReplace(table, race);
        },
        {.failed = [this, race](const std::exception_ptr& fault) {
            tellFailure(race, causeOf(fault));
        }});
}

void RaceKeeping::askToReplace(const std::shared_ptr<const ListTable>& table, const QString& race) {
    const bool isAgreed = m_workspace.askBeforeLoss(
        {tr("“%1” keeps a table already").arg(QFileInfo(race).fileName()).toStdString(),
         tr("This one takes its place. The official results themselves stay.").toStdString()},
        tr("Replace"), m_over);
    if (isAgreed && !isEdited(race))
        write(table, race, KeptBefore::IsReplaced);
}

void RaceKeeping::tellFailure(const QString& race, const std::string& reason) {
    m_workspace.log()("The table could not be kept with " + race.toStdString() + ": " + reason);
    m_workspace.showAlert(
        {tr("The table was not kept with “%1”").arg(QFileInfo(race).fileName()).toStdString(),
         reason},
        m_over);
}

} // namespace kavela::desktop
