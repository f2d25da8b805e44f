#include "desktop/shell/tables/kept_columns.h"

#include "desktop/shell/tables/column_layout.h"
#include "desktop/shell/workspace.h"

#include <QAction>
#include <QMenu>
#include <QScopedValueRollback>
#include <QTableView>

namespace kavela::desktop {

namespace {

/// All columns as the model has them.
QStringList firstLayout(const QAbstractItemModel& model) {
    QStringList names;
    for (int column = 0; column < model.columnCount(); ++column)
        names.append(model.headerData(column, Qt::Horizontal, ColumnNameRole).toString());
    return names;
}

} // namespace

KeptColumns::KeptColumns(QTableView& table) : QObject(&table), m_table(table) {}

Workspace* KeptColumns::workspace() const {
    return m_workspace;
}

void KeptColumns::remember(Workspace& workspace, const QString& key) {
    m_workspace = &workspace;
    m_firstLayout = columnLayout(m_table);
    if (const QStringList layout = workspace.remembered(key); !layout.isEmpty())
        applyColumnLayout(m_table, layout);
    m_key = key;
}

void KeptColumns::follow() {
    if (!m_workspace || m_key.isEmpty())
        return;
    m_firstLayout = firstLayout(*m_table.model());
    const QStringList layout = m_workspace->remembered(m_key);
    const QScopedValueRollback moved(m_key, QString()); // not by the coach: nothing to remember
    applyColumnLayout(m_table, layout.isEmpty() ? m_firstLayout : layout);
}

void KeptColumns::keep() {
    if (m_workspace && !m_key.isEmpty())
        m_workspace->remember(m_key, columnLayout(m_table));
}

/// The last column that is shown cannot be hidden.
void KeptColumns::fill(QMenu& menu) {
    const QList<int> shown = shownColumns(m_table);
    const QAbstractItemModel& model = *m_table.model();
    for (int column = 0; column < model.columnCount(); ++column) {
        const QString title = model.headerData(column, Qt::Horizontal).toString();
        QAction* const action = menu.addAction(QString(title).replace('\n', ' '));
        action->setCheckable(true);
        action->setChecked(shown.contains(column));
        action->setEnabled(shown != QList{column});
        connect(action, &QAction::toggled, this, [this, column](bool isShown) {
            m_table.setColumnHidden(column, !isShown);
            keep();
        });
    }
    menu.addSeparator();
    menu.addAction(tr("&All columns in their order"), this, [this] {
        applyColumnLayout(m_table, m_firstLayout);
        keep();
    });
}

} // namespace kavela::desktop
