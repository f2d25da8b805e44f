#include "desktop/tool_choice.h"

#include "desktop/desktop.h"
#include "desktop/shell/document_choice.h"
#include "desktop/shell/workspace.h"
#include "desktop/tools.h"

#include <QFileDialog>
#include <QFileInfo>

namespace kavela::desktop {

void ToolChoice::choose(const ToolKind& tool) const {
    if (tool.choice == ToolKind::Choice::Document) {
        chooseDocument(tool);
        return;
    }
    if (tool.choice == ToolKind::Choice::None) {
        if (tool.opens == OpensAs::ResultsList)
            m_program.openTables({});
        else if (tool.opens == OpensAs::Season)
            m_program.openSeason({});
        else if (tool.opens == OpensAs::Fetch)
            m_program.openFetch();
        else if (tool.opens == OpensAs::Share)
            m_program.openShare({});
        else
            m_program.openFind({});
        return;
    }
    if (tool.choice == ToolKind::Choice::FilesOrFolder) {
        chooseFilesOrFolder(tool);
        return;
    }
    const DocumentKind& kind = tool.documents;
    QStringList chosen;
    if (tool.choice == ToolKind::Choice::Folder)
        chosen = {QFileDialog::getExistingDirectory(m_program.front(), kind.title)};
    else
        chosen = QFileDialog::getOpenFileNames(m_program.front(), kind.title, QString(),
                                               kind.openFilter());
    chosen.removeAll(QString());
    if (tool.opens == OpensAs::Race || tool.opens == OpensAs::Recording)
        m_program.openAll(chosen);
    else
        for (const QString& path : chosen)
            (void)m_program.openIn(tool, path);
}

/// No dialog of files lets folders be chosen beside them.
void ToolChoice::chooseFilesOrFolder(const ToolKind& tool) const {
    const DocumentKind& kind = tool.documents;
    const int choice = m_workspace.choose(
        {tool.title.toStdString(),
         Desktop::tr("Of single split files, or of all in a folder and below it?").toStdString()},
        {Desktop::tr("Split files…"), Desktop::tr("A folder…")}, m_program.front());
    QStringList chosen;
    if (choice == 0)
        chosen = QFileDialog::getOpenFileNames(m_program.front(), kind.title, QString(),
                                               kind.openFilter());
    else if (choice == 1)
        chosen = {QFileDialog::getExistingDirectory(m_program.front(), kind.title)};
    chosen.removeAll(QString());
    if (tool.opens == OpensAs::Penalties)
        m_program.openPenalties(chosen);
    if (tool.opens == OpensAs::Losses)
        m_program.openLosses(chosen);
}

/// A document to open, or the name of a new one.
void ToolChoice::chooseDocument(const ToolKind& tool) const {
    QStringList recent;
    for (const QString& path : m_workspace.recentFiles())
        if (QFileInfo(path).suffix().compare(tool.documents.suffix, Qt::CaseInsensitive) == 0 &&
            QFileInfo::exists(path))
            recent.append(path);
    DocumentChoiceDialog dialog(tool.documents, recent, m_program.front());
    if (dialog.exec() != QDialog::Accepted || dialog.choice().path.isEmpty())
        return;
    if (!dialog.choice().isNew) {
        m_program.open(dialog.choice().path);
        return;
    }
    m_program.openNew(tool, dialog.choice().path, true);
}

} // namespace kavela::desktop
