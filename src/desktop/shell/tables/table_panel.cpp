#include "desktop/shell/tables/table_panel.h"

#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/theme.h"

#include <QPushButton>
#include <QVBoxLayout>

namespace kavela::desktop {

TablePanel::TablePanel(ColumnTable* table, QWidget* parent)
    : QWidget(parent), m_table(table), m_buttons(new QHBoxLayout) {
    m_buttons->setSpacing(theme::Spacing);
    m_buttons->addStretch();
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(theme::Spacing);
    column->addLayout(m_buttons);
    column->addWidget(table, 1);
}

void TablePanel::addButton(QPushButton* button) {
    m_buttons->insertWidget(m_buttons->count() - 1, button);
}

} // namespace kavela::desktop
