#pragma once

#include "desktop/shell/tables/column_model.h"
#include "desktop/watertests/tests_document.h"
#include "splitdata/document.h"

#include <QDialog>

#include <filesystem>

class QComboBox;
class QLabel;
class QPushButton;

namespace kavela::desktop {

class ColumnTable;

/// Which runs of a split file are tests, and of what kind.
class TakeRunDialog : public QDialog {
    Q_OBJECT

public:
    /// `folder` is where the split file and its films stand.
    TakeRunDialog(splittakerdata031 file, std::filesystem::path folder, QWidget* parent = nullptr);

    /// The runs that are selected, as tests.
    [[nodiscard]] std::vector<TestsDocument::Content> tests() const;

private:
    void showChoice();
    [[nodiscard]] TestKind kind() const;

    splittakerdata031 m_file;
    std::filesystem::path m_folder;
    QComboBox* m_kind;
    ColumnModel<const athletedata031*> m_model;
    ColumnTable* m_runs;
    QLabel* m_hint;
    QPushButton* m_take;
};

} // namespace kavela::desktop
