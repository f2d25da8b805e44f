#pragma once

#include "desktop/folder/film_cutter.h"
#include "desktop/shell/background_work.h"

#include <QObject>
#include <QPointer>
#include <QString>

#include <memory>

class QWidget;

namespace kavela::desktop {

class TagMode;
class Workspace;

/// Makes a film of what lies between the ends that the coach set.
class FilmCutting : public QObject {
    Q_OBJECT

public:
    enum class Way { Copy, Exact };

    /// Belongs to the window that it locks while it works.
    FilmCutting(Workspace& workspace, TagMode& ends, QWidget& window);

    /// Cuts anew, frame by frame; without one that way is not offered.
    void setExact(std::shared_ptr<const FilmCutter> cutter);

    /// Whether both ends are set, and there is a way to cut like this.
    [[nodiscard]] bool canCut(Way way) const;
    /// A name beside the film that is free: "Ann Heats cut.mp4".
    [[nodiscard]] QString proposedTarget(Way way) const;
    /// Asks for a name and cuts.
    void askAndCut(Way way);
    /// Cuts into a file that is not there yet; anything else is told.
    void cut(Way way, const QString& target);

signals:
    void done(const QString& target);

private:
    [[nodiscard]] std::shared_ptr<const FilmCutter> cutterFor(Way way) const;

    Workspace& m_workspace;
    TagMode& m_ends;
    QWidget& m_window;
    std::shared_ptr<const FilmCutter> m_copy = std::make_shared<CopyCutter>();
    std::shared_ptr<const FilmCutter> m_exact;
    BackgroundWork m_work;
};

} // namespace kavela::desktop
