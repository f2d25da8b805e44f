#pragma once

#include "desktop/shell/background_work.h"
#include "video/writing/film_cut.h"

#include <QObject>
#include <QPointer>
#include <QString>

class QWidget;

namespace kavela::desktop {

class TagMode;
class Workspace;

/// Makes a film of what lies between the ends that the coach set.
class FilmCutting : public QObject {
    Q_OBJECT

public:
    using Way = CutKind;

    /// Belongs to the window that it locks while it works.
    FilmCutting(Workspace& workspace, TagMode& ends, QWidget& window);

    /// Whether both ends are set.
    [[nodiscard]] bool canCut() const;
    /// A name beside the film that is free: "Ann Heats cut.mp4".
    [[nodiscard]] QString proposedTarget() const;
    /// Asks for a name and cuts; what is missing for that is told by refused().
    void askAndCut(Way way);
    /// Cuts into a file; where its name is taken into "NAME 2". Faults are told.
    void cut(Way way, const QString& target);

signals:
    /// The name that the piece got.
    void done(const QString& target);
    void refused(const QString& why);

private:
    [[nodiscard]] QString missingEnds() const;

    Workspace& m_workspace;
    TagMode& m_ends;
    QWidget& m_window;
    BackgroundWork m_work;
};

} // namespace kavela::desktop
