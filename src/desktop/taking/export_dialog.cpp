#include "desktop/taking/export_dialog.h"

#include "desktop/shell/workspace.h"
#include "splittaking/messages.h"

#include <QCheckBox>
#include <QFileInfo>
#include <QGridLayout>

namespace kavela::desktop {

ExportDialog::ExportDialog(Workspace& workspace, const QString& present, QWidget* parent)
    : QFileDialog(parent, tr("Export data"), QFileInfo(present).path(), tr("Split files (*.kvx)")) {
    setOption(QFileDialog::DontUseNativeDialog);  // which has no room for the ticks
    setOption(QFileDialog::DontConfirmOverwrite); // the tool asks in its own words
    setAcceptMode(QFileDialog::AcceptSave);
    setDefaultSuffix("kvx");
    selectFile(QFileInfo(present).fileName());
    m_csv = addOption(workspace, messages::AlsoAsCsv, "savetoCSV");
    m_pdf = addOption(workspace, messages::AlsoAsPdf, "savetoPDF");
}

QCheckBox* ExportDialog::addOption(Workspace& workspace, const char* text, const char* key) {
    auto* box = new QCheckBox(tr(text));
    box->setObjectName(key);
    box->setChecked(workspace.preferences().boolean(key));
    connect(box, &QCheckBox::toggled, &workspace,
            [&workspace, key](bool isOn) { workspace.setPreference(key, isOn); });
    if (auto* grid = qobject_cast<QGridLayout*>(layout()))
        grid->addWidget(box, grid->rowCount(), 0, 1, grid->columnCount());
    return box;
}

QString ExportDialog::path() const {
    return selectedFiles().value(0);
}

bool ExportDialog::alsoCsv() const {
    return m_csv->isChecked();
}

bool ExportDialog::alsoPdf() const {
    return m_pdf->isChecked();
}

} // namespace kavela::desktop
