#pragma once

#include <QFileDialog>

class QCheckBox;

namespace kavela::desktop {

class Workspace;

/// Where the split file is to be written, and what beside it. The ticks are preferences.
class ExportDialog : public QFileDialog {
    Q_OBJECT

public:
    ExportDialog(Workspace& workspace, const QString& present, QWidget* parent);

    [[nodiscard]] QString path() const;
    [[nodiscard]] bool alsoCsv() const;
    [[nodiscard]] bool alsoPdf() const;

private:
    QCheckBox* addOption(Workspace& workspace, const char* text, const char* key);

    QCheckBox* m_csv;
    QCheckBox* m_pdf;
};

} // namespace kavela::desktop
