#pragma once

#include "desktop/shell/background_work.h"
#include "desktop/taking/recording/recording_dialog.h"

#include <functional>

namespace kavela::desktop {

class FilmDeck;
class FilmFiles;
class TakingDocument;
class Workspace;

/// The recording beside the film of the run that is in front in split taking: attached to it and
/// taken off as steps that can be undone, and chosen among the files of the coach.
class RecordingOfRun : public RecordingDialog {
    Q_OBJECT

public:
    struct Desk {
        TakingDocument& document;
        FilmDeck& deck;
        const FilmFiles& files;
        Workspace& workspace;
        std::function<int()> run; ///< in front, below 0 for none
    };

    RecordingOfRun(const Desk& desk, QWidget* window);

private:
    [[nodiscard]] static Film filmOf(const Desk& desk, RecordingOfRun* dialog);
    void chooseFile();
    void tellFailure(const QString& title, const QString& reason);
    void convertOlder(const QString& path);

    Desk m_desk;
    BackgroundWork m_converting;
};

} // namespace kavela::desktop
