#pragma once

#include "desktop/shell/tables/column_model.h"
#include "facts/folder_scan.h"

#include <QDialog>

namespace kavela::desktop {

/// The files that could not be read, each with the reason.
class FailedFiles : public QDialog {
    Q_OBJECT

public:
    FailedFiles(std::vector<ScanFault> faults, QWidget* parent);

private:
    ColumnModel<ScanFault> m_rows;
};

} // namespace kavela::desktop
