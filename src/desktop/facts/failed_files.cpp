#include "desktop/facts/failed_files.h"

#include "common/display_text.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/tables/column_table.h"

#include <QDialogButtonBox>
#include <QVBoxLayout>

#include <utility>

namespace kavela::desktop {

namespace {

QString shownPath(const std::filesystem::path& path) {
    return qtText(validUtf8(path.native()));
}

} // namespace

FailedFiles::FailedFiles(std::vector<ScanFault> faults, QWidget* parent)
    : QDialog(parent),
      m_rows(
          {textColumn<ScanFault>(
               tr("File"), [](const ScanFault& fault) { return shownPath(fault.path.filename()); }),
           textColumn<ScanFault>(
               tr("What is wrong"),
               [](const ScanFault& fault) { return qtText(validUtf8(fault.reason)); }),
           textColumn<ScanFault>(tr("Folder"), [](const ScanFault& fault) {
               return shownPath(fault.path.parent_path());
           })}) {
    setWindowTitle(tr("Files that could not be read"));
    setAttribute(Qt::WA_DeleteOnClose);
    auto* const table = new ColumnTable(m_rows, "failedFiles", this);
    table->stretch({1});
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* const column = new QVBoxLayout(this);
    column->addWidget(table, 1);
    column->addWidget(buttons);
    m_rows.show(std::move(faults), true);
    resize(820, 380);
}

} // namespace kavela::desktop
