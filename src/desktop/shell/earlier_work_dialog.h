#pragma once

#include "desktop/shell/autosave.h"
#include "desktop/shell/tables/column_model.h"

#include <QDialog>

namespace kavela::desktop {

class ColumnTable;

/// The work that was kept of documents and not taken up again, to be brought back.
class EarlierWorkDialog : public QDialog {
    Q_OBJECT

public:
    EarlierWorkDialog(std::vector<Autosave::Found> works, QWidget* parent);

    /// What was chosen; null for none.
    [[nodiscard]] const Autosave::Found* chosen() const;

private:
    ColumnModel<Autosave::Found> m_works;
    ColumnTable* m_table;
};

} // namespace kavela::desktop
