#pragma once

#include "desktop/shell/background_work.h"
#include "tables/table.h"

#include <QObject>
#include <QPointer>
#include <QString>

#include <memory>
#include <string>

namespace kavela {
enum class KeptBefore;
}

namespace kavela::desktop {

class Workspace;

/// Keeps tables with races: in their split files, which nobody may be editing meanwhile.
class RaceKeeping : public QObject {
    Q_OBJECT

public:
    /// `over` is the window that asks.
    RaceKeeping(Workspace& workspace, QWidget& over, QObject* parent);

    /// Writes beside the window, which waits; asks before it replaces a table that the race keeps
    /// already. What cannot be is told.
    void keep(std::shared_ptr<const ListTable> table, const QString& race);

signals:
    void kept(const QString& race);

private:
    [[nodiscard]] bool isEdited(const QString& race) const;
    void write(const std::shared_ptr<const ListTable>& table, const QString& race,
               KeptBefore before);
    void askToReplace(const std::shared_ptr<const ListTable>& table, const QString& race);
    void tellFailure(const QString& race, const std::string& reason);

    Workspace& m_workspace;
    QPointer<QWidget> m_over;
    BackgroundWork m_work;
};

} // namespace kavela::desktop
