#pragma once

#include "common/why.h"
#include "desktop/shell/background_work.h"
#include "desktop/shell/document.h"
#include "desktop/splitfile/day_keeping.h"
#include "desktop/splitfile/taking_lists.h"
#include "desktop/splitfile/taking_state.h"
#include "splittaking/marking.h"
#include "splittaking/results_import.h"
#include "splittaking/results_match.h"

#include <functional>
#include <optional>

namespace kavela {
struct OfficialDifference;
struct RecognisedSplitFile;
} // namespace kavela

namespace kavela::desktop {

struct TakingRead;

/// The split file that is being taken: its course, its runs, their marks and penalties.
class TakingDocument : public Document<TakingState> {
    Q_OBJECT

public:
    TakingDocument(Workspace& workspace, Autosave autosave, QObject* parent = nullptr);
    ~TakingDocument() override { keepPending(); }

    /// How a split file is read, or a folder of films: its split file where it has one, otherwise a
    /// new document with a run for each film. Unsaved work of an earlier session is offered. One of
    /// an older release, or none at all, is told; the document stays as it is then, or is a copy.
    [[nodiscard]] FileReading reading(const QString& path, QWidget* over);
    /// Where a copy of an older file is written to, proposed a path, empty for nowhere; in place of
    /// the platform's dialog, as in tests.
    using ChooseCopy = std::function<QString(const QString& proposed)>;
    void setChooseCopy(ChooseCopy choose) { m_chooseCopy = std::move(choose); }

    [[nodiscard]] const infodata031& info() const { return *value().info; }
    [[nodiscard]] const crossdata030& cross() const { return *value().cross; }
    [[nodiscard]] const TrialStarts& trialStarts() const { return value().trialStarts; }
    /// Kept at every change in a file of its own, whether the split file is saved or not.
    [[nodiscard]] const RaceDay& day() const { return *value().day; }
    [[nodiscard]] int runCount() const { return static_cast<int>(value().runs.size()); }
    [[nodiscard]] const athletedata031& run(int index) const;
    /// The first run that recovered work changed; none where nothing was recovered.
    [[nodiscard]] std::optional<int> workedOn() const { return m_workedOn; }
    [[nodiscard]] RunIdentity identityOf(int index) const;
    /// Where that run stands now; -1 when it is gone.
    [[nodiscard]] int placeOf(const RunIdentity& identity) const;
    [[nodiscard]] RunMarks marks(int index) const;
    /// Seconds; 0 as long as there is none. Always of the runs as they are now.
    [[nodiscard]] double perfectTime() const { return m_perfect; }
    [[nodiscard]] double expectedTime(int index) const;
    /// Why they are what they are; nothing for a run that is not there.
    [[nodiscard]] std::optional<Reason> whyPerfect() const;
    [[nodiscard]] std::optional<Reason> whyExpected(int index) const;
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

    /// Where the film files are.
    [[nodiscard]] QString folder() const;
    [[nodiscard]] QString title() const override;
    /// The document as it would be saved now, with the perfect time and the expected times.
    [[nodiscard]] splittakerdata031 finished() const;

    // Every edit is one step of the undo stack; `what` names it there.
    void editRun(int index, const QString& what,
                 const std::function<void(athletedata031&)>& change);
    /// Changes every run in one step.
    void editRuns(const QString& what, const std::function<void(athletedata031&)>& change);
    void editInfo(const QString& what, const std::function<void(infodata031&)>& change);
    void editCross(const QString& what, const std::function<void(crossdata030&)>& change);
    /// The same, with other start marks of the time trials.
    void editCross(const QString& what, TrialStarts starts,
                   const std::function<void(crossdata030&)>& change);
    void setMarks(int index, const QString& what, const RunMarks& marks);
    /// The same, with a change of what the marks made of the run.
    void setMarks(int index, const QString& what, const RunMarks& marks,
                  const std::function<void(athletedata031&)>& change);
    void addRun(const QString& what, athletedata031 run);
    void removeRun(int index);
    void moveRun(int index, int to);
    /// Adds a run for each film of the folder that no run has; returns how many were added.
    int addFilms(const QStringList& names);

    /// How the films are named; remembered for later films. Reading them again keeps everything but
    /// crew, category and phase.
    [[nodiscard]] QString filmPattern() const;
    void readFilmNames(const QString& pattern);

    /// Takes over the runs of other split files of the current version, which are read beside the
    /// window.
    void importSplitFiles(const QStringList& files, QWidget* over);
    /// Adds the lines of an official list to the race, and real time and penalty to the runs that
    /// have one of them, in one step.
    void takeResults(const ResultsList& list, const std::vector<ResultOfRun>& runs);
    /// Deletes all data once the coach has confirmed it.
    void reset(QWidget* over);
    /// Takes one difference to official results over, in one step; false, and no step, where it is
    /// none of this race any more.
    bool takeOfficial(const OfficialDifference& difference);
    /// Recomputes the perfect time with its line in the log, as when a real time was entered.
    void logPerfectTime() const;

    /// Writes the split file, and table and report where they are wanted, somewhere else, while the
    /// window goes on; what is edited after the call is not in it.
    void exportTo(const QString& file, const BesideFile& lists, QWidget* over, Saved saved = {});

signals:
    /// The race day could not be written; the next change tries again.
    void dayNotKept(const QString& why);

protected:
    [[nodiscard]] QString summary() const override;
    [[nodiscard]] Content contentNow() const override;
    /// With the start marks of runs without a split.
    [[nodiscard]] Content keptContentNow() const override;
    [[nodiscard]] Beside besideNow() const override;
    [[nodiscard]] bool recover(const std::string& content) override;
    [[nodiscard]] bool holdsMore() const override;
    [[nodiscard]] bool mayLeaveMore(QWidget* over) override;
    [[nodiscard]] bool mayWrite(QWidget* over) override;
    void follow() override;

private:
    [[nodiscard]] bool take(TakingRead found, QWidget* over);
    [[nodiscard]] bool openCopy(const RecognisedSplitFile& older, const QString& file,
                                QWidget* over);
    void startCopy(splittakerdata031 document, const QString& copy, QWidget* over);
    [[nodiscard]] splittakerdata031 countedTimes() const;
    void put(const QString& what, TakingState after);
    [[nodiscard]] bool holdsNothing() const;
    [[nodiscard]] Beside besideWith(const BesideFile& lists) const;
    void saveWith(const BesideFile& lists, QWidget* over, Saved saved);
    void writeCopy(const QString& file, const BesideFile& lists, QWidget* over, Saved saved);

    DayKeeping m_days;
    std::vector<double> m_expected;
    double m_perfect = 0;
    ChooseCopy m_chooseCopy;
    std::optional<int> m_workedOn;
    std::optional<BesideFile> m_lists; ///< to be written now, in place of what the settings want
    BackgroundWork m_imports;
};

} // namespace kavela::desktop
