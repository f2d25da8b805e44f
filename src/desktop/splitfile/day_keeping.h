#pragma once

#include "splittaking/race_day/race_day.h"

#include <QObject>
#include <QString>

#include <memory>

class QWidget;

namespace kavela::desktop {

class Workspace;

/// The file of a race day beside the split file. It is written at every change, beside the window,
/// and whatever becomes of the split file: nobody is asked on a riverbank.
class DayKeeping : public QObject {
    Q_OBJECT

public:
    explicit DayKeeping(Workspace& workspace, QObject* parent = nullptr)
        : QObject(parent), m_workspace(workspace) {}

    using Day = std::shared_ptr<const RaceDay>;

    /// A day as it was found, or why what stands there cannot be read.
    struct Found {
        Day day; ///< never null
        QString fault;
    };
    /// The day that belongs to a split file, one without starts where there is none. For any
    /// thread.
    [[nodiscard]] static Found find(const QString& splitFile);
    /// The day to go on with. What cannot be read is told; it stays, and is put aside under another
    /// name before a day is written there.
    [[nodiscard]] Day take(const Found& found, QWidget* over);
    /// Writes a day that is another one than that read or kept last.
    void keep(const Day& day, const QString& splitFile);

signals:
    /// It could not be written, and is tried again with the next change.
    void notKept(const QString& why);

private:
    Workspace& m_workspace;
    Day m_kept;
    bool m_isUnreadable = false; ///< what stands under the name was not made by this window
};

} // namespace kavela::desktop
