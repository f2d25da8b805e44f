#pragma once

#include "desktop/shell/autosave.h"
#include "desktop/taking/taking_state.h"
#include "splittaking/marking.h"
#include "splittaking/results_import.h"
#include "splittaking/results_match.h"

#include <QObject>
#include <QTimer>
#include <QUndoStack>

#include <filesystem>
#include <functional>
#include <optional>

class QWidget;

namespace kavela {
struct RecognisedSplitFile;
}

namespace kavela::desktop {

class Workspace;

/// The split file that is being taken: its course, its runs, their marks and penalties. Every
/// change can be undone, is kept apart from the file within a second, and reaches the file only
/// when it is saved.
class TakingDocument : public QObject {
    Q_OBJECT

public:
    TakingDocument(Workspace& workspace, Autosave autosave, QObject* parent = nullptr);
    ~TakingDocument() override;

    /// Opens a folder of films: its split file where it has one, otherwise a new document with a
    /// run for each film. Unsaved work of an earlier session is offered. False, after a message,
    /// when its split file is of an older release or none at all; the document is then as it was.
    [[nodiscard]] bool openFolder(const QString& folder, QWidget* over);
    [[nodiscard]] bool openFile(const QString& file, QWidget* over);
    /// Where a copy of an older file is written to, proposed a path, empty for nowhere; in place of
    /// the platform's dialog, as in tests.
    using ChooseCopy = std::function<QString(const QString& proposed)>;
    void setChooseCopy(ChooseCopy choose) { m_chooseCopy = std::move(choose); }

    [[nodiscard]] const TakingState& state() const { return m_state; }
    [[nodiscard]] const infodata031& info() const { return *m_state.info; }
    [[nodiscard]] const crossdata030& cross() const { return *m_state.cross; }
    [[nodiscard]] int runCount() const { return static_cast<int>(m_state.runs.size()); }
    [[nodiscard]] const athletedata031& run(int index) const;
    [[nodiscard]] RunIdentity identityOf(int index) const;
    /// Where that run stands now; -1 when it is gone.
    [[nodiscard]] int placeOf(const RunIdentity& identity) const;
    [[nodiscard]] RunMarks marks(int index) const;
    /// Seconds; 0 as long as there is none. Always of the runs as they are now.
    [[nodiscard]] double perfectTime() const { return m_perfect; }
    [[nodiscard]] double expectedTime(int index) const;
    /// The film of a run's camera; empty when its name leads out of the folder.
    [[nodiscard]] QString film(int index, std::size_t camera) const;
    [[nodiscard]] QString fixedFilm(int index, std::size_t camera) const;
    /// The same for a film of any name. Films that were moved are found where the coach said.
    [[nodiscard]] QString pathOf(const std::string& film) const;
    /// The names of all films of the runs and of the cross race.
    [[nodiscard]] QStringList filmNames() const;
    /// Looks for them in another folder, and remembers where they are; returns those that were not
    /// found.
    [[nodiscard]] QStringList findFilms(const QString& folder);

    [[nodiscard]] const QString& folder() const { return m_folder; }
    [[nodiscard]] const QString& path() const { return m_path; }
    [[nodiscard]] QString title() const;
    /// Whether there is work that the file does not hold: also start marks without a split, for
    /// which it has no place.
    [[nodiscard]] bool isDirty() const;
    /// The document as it would be saved now.
    [[nodiscard]] splittakerdata031 content() const { return finished(false); }
    [[nodiscard]] QUndoStack& undoStack() { return m_undo; }

    // Every edit is one step of the undo stack; `what` names it there.
    void editRun(int index, const QString& what,
                 const std::function<void(athletedata031&)>& change);
    /// Changes every run in one step.
    void editRuns(const QString& what, const std::function<void(athletedata031&)>& change);
    void editInfo(const QString& what, const std::function<void(infodata031&)>& change);
    void editCross(const QString& what, const std::function<void(crossdata030&)>& change);
    void setMarks(int index, const QString& what, const RunMarks& marks);
    void addRun(const QString& what, athletedata031 run);
    void removeRun(int index);
    void moveRun(int index, int to);
    /// Adds a run for each film of the folder that no run has; returns how many were added.
    int addFilms(const QStringList& names);

    /// How the films are named; remembered for later films. Reading them again keeps everything but
    /// crew, category and phase.
    [[nodiscard]] QString filmPattern() const;
    void readFilmNames(const QString& pattern);

    /// Takes over the runs of another split file of the current version.
    void importSplitFile(const QString& file, QWidget* over);
    /// Adds the lines of an official list to the race, and real time and penalty to the runs that
    /// have one of them, in one step.
    void takeResults(const ResultsList& list, const std::vector<ResultOfRun>& runs);
    /// Deletes all data once the coach has confirmed it.
    void reset(QWidget* over);
    /// Recomputes the perfect time with its line in the log, as when a real time was entered.
    void logPerfectTime() const;

    [[nodiscard]] bool save(QWidget* over);
    /// Writes the split file, and table and report where they are wanted, somewhere else.
    [[nodiscard]] bool exportTo(const QString& file, bool alsoCsv, bool alsoPdf, QWidget* over);

    /// Gives up what was not saved; it stays aside for a change of mind.
    void discard();
    /// Asks what becomes of unsaved work, and does it; false when the document is to stay open.
    [[nodiscard]] bool mayClose(QWidget* over);

signals:
    /// Other runs, another course, or anything about them.
    void changed();
    void saved();

private:
    friend class TakingStep;

    [[nodiscard]] std::optional<splittakerdata031> readCurrent(const QString& file, QWidget* over);
    [[nodiscard]] bool openCopy(const RecognisedSplitFile& older, const QString& file,
                                QWidget* over);
    void begin(TakingState state, const QString& path);
    void offerAutosave(QWidget* over);
    [[nodiscard]] splittakerdata031 newDocument() const;
    [[nodiscard]] std::vector<athletedata031> runsOf(const QStringList& films) const;
    void push(const QString& what, TakingState after);
    void show(const TakingState& state);
    void keepWork();
    [[nodiscard]] bool holdsNothing() const;
    void noteWritten();
    [[nodiscard]] bool mayLeaveStarts(QWidget* over);
    [[nodiscard]] splittakerdata031 finished(bool isLogged) const;
    [[nodiscard]] bool writeSplitFile(const splittakerdata031& document,
                                      const std::filesystem::path& file, QWidget* over) const;
    [[nodiscard]] bool writeBeside(splittakerdata031 document, const std::filesystem::path& file,
                                   bool csv, bool pdf, QWidget* over) const;
    [[nodiscard]] bool written(const std::function<void()>& write, QWidget* over) const;
    [[nodiscard]] bool mayOverwrite(QWidget* over) const;
    void tellNotWritten(const std::string& reason, QWidget* over) const;

    Workspace& m_workspace;
    Autosave m_autosave;
    QUndoStack m_undo;
    QTimer m_keep;
    TakingState m_state;
    std::vector<double> m_expected;
    double m_perfect = 0;
    QString m_folder;
    QString m_path;
    std::optional<std::filesystem::file_time_type> m_readTime; ///< of the file; none before it is
    ChooseCopy m_chooseCopy;
};

} // namespace kavela::desktop
