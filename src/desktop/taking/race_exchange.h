#pragma once

#include "desktop/shell/background_work.h"
#include "splittaking/results_import.h"

#include <QCoreApplication>
#include <QString>

#include <functional>
#include <string>

class QWidget;

namespace kavela::desktop {

class FilmFiles;
class TakingDocument;
class Workspace;

/// What is taken into the race of a split file as a whole, and given on from it: the course, names
/// of films, other split files, official lists, exports and collected trainings. Each asks the
/// coach for what it needs; what is typed in the window is taken over first.
class RaceExchange {
    Q_DECLARE_TR_FUNCTIONS(RaceExchange)

public:
    /// `commit` takes over what is typed; false when that cannot be.
    RaceExchange(TakingDocument& document, const FilmFiles& files, Workspace& workspace,
                 QWidget& window, std::function<bool()> commit);

    /// A list that was read to be imported.
    struct OfficialList {
        QString name;
        ResultsList list;
        std::string fault; ///< why it could not be read; empty where it was
    };

    void setUpCourse();
    /// Shows the drawing of the course, to be drawn on.
    void drawCourse();
    /// Asks how the films are named, and reads the runs from their names again.
    void readFilmNames();
    void importSplitFile();
    void importResults();
    void exportData();
    /// The films of the folder that carry the name become a file of their own.
    void collectTraining(const QString& athlete);

private:
    void importResults(const OfficialList& read);
    void tell(const std::string& message);

    TakingDocument& m_document;
    const FilmFiles& m_files;
    Workspace& m_workspace;
    QWidget& m_window;
    std::function<bool()> m_commit;
    BackgroundWork m_reading;
};

} // namespace kavela::desktop
