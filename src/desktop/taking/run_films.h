#pragma once

#include "common/cm_time.h"

#include <QObject>
#include <QStringList>

#include <functional>
#include <optional>

namespace kavela::desktop {

class FilmFiles;
class FilmStage;
class NotesPanel;
class TakingDocument;
class Workspace;

/// The films of the run in front on the stage, and how films come to the runs.
class RunFilms : public QObject {
    Q_OBJECT

public:
    /// What the films are of and where they are shown. Before files are taken `commit` takes over
    /// what is typed in the window; false when that cannot be.
    struct Desk {
        TakingDocument& document;
        FilmStage& stage;
        NotesPanel& notes;
        const FilmFiles& files;
        Workspace& workspace;
        std::function<bool()> commit;
    };

    /// Belongs to the stage.
    explicit RunFilms(Desk desk);

    /// Another run is in front, below 0 for none: where the films of the one before stand is
    /// remembered. show() follows once everything else knows of it.
    void startRun(int run);
    /// The run in front stands elsewhere in the list now.
    void runMoved(int run) { m_run = run; }
    /// Shows the films of the run where they were left; the first time at its start, where that is
    /// wanted. One that is not there is asked for, and the marks stay on the time line meanwhile.
    void show();
    /// Shows them anew when the run has others now.
    void follow();

    void importFilms();
    void addCamera();
    void attachFixedCamera();
    /// Asks in which folder the films are now, and finds them there by their names.
    void find();

signals:
    void shown();

private:
    [[nodiscard]] QStringList films() const;
    [[nodiscard]] std::optional<CMTime> start() const;
    void addCameras(int place, const QStringList& names);
    void attachFixedFilms(int place, const QStringList& names);
    void showBeside();
    void askForMissing();
    void align();

    Desk m_desk;
    int m_run = -1;
    bool m_areAligned = false; ///< the cameras, to each other
};

} // namespace kavela::desktop
