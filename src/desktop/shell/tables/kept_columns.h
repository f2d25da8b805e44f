#pragma once

#include <QObject>
#include <QPointer>
#include <QStringList>

class QMenu;
class QTableView;

namespace kavela::desktop {

class Workspace;

/// Which columns of a table are shown and in which order: chosen from a menu or dragged, and
/// remembered from then on where the table has a place for it.
class KeptColumns : public QObject {
    Q_OBJECT

public:
    /// `table` owns it and has its model already.
    explicit KeptColumns(QTableView& table);

    /// Shows the columns as they were left, and remembers them from now on.
    void remember(Workspace& workspace, const QString& key);
    /// There are other columns: those that came stand where they were left.
    void follow();
    /// The choice of what is shown.
    void fill(QMenu& menu);
    /// Null before remember().
    [[nodiscard]] Workspace* workspace() const;

public slots:
    /// The coach has moved or hidden one.
    void keep();

private:
    QTableView& m_table;
    QPointer<Workspace> m_workspace;
    QString m_key; ///< where they are remembered
    QStringList m_firstLayout;
};

} // namespace kavela::desktop
