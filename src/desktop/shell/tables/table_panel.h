#pragma once

#include <QWidget>

class QHBoxLayout;
class QPushButton;

namespace kavela::desktop {

class ColumnTable;

/// A table under the buttons that act on it.
class TablePanel : public QWidget {
    Q_OBJECT

public:
    explicit TablePanel(ColumnTable* table, QWidget* parent = nullptr);

    /// Another button, to the right of those before.
    void addButton(QPushButton* button);
    [[nodiscard]] ColumnTable& table() const { return *m_table; }

private:
    ColumnTable* m_table;
    QHBoxLayout* m_buttons;
};

} // namespace kavela::desktop
