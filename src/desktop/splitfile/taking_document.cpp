#include "desktop/splitfile/taking_document.h"

#include "common/json_encode.h"
#include "common/safe_file.h"
#include "desktop/shell/disk_worker.h"
#include "desktop/shell/file_names.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/workspace.h"
#include "desktop/splitfile/film_places.h"
#include "desktop/splitfile/film_runs.h"
#include "desktop/splitfile/kept_work.h"
#include "desktop/splitfile/split_files_read.h"
#include "desktop/splitfile/taking_edits.h"
#include "desktop/splitfile/taking_files.h"
#include "desktop/splitfile/taking_reading.h"
#include "splitdata/run_timing.h"
#include "splittaking/messages.h"
#include "splittaking/perfect_time.h"
#include "splittaking/training_collection.h"
#include "splittaking/video_names.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QPointer>
#include <QStandardPaths>

#include <algorithm>

namespace kavela::desktop {

namespace fs = std::filesystem;

namespace {

constexpr const char* FilmPatternKey = "filmNames";

} // namespace

TakingDocument::TakingDocument(Workspace& workspace, Autosave autosave, QObject* parent)
    : Document(workspace, std::move(autosave), parent),
      m_days(workspace),
      m_chooseCopy([this](const QString& proposed) {
          return QFileDialog::getSaveFileName(nullptr, tr("Save a copy as"), proposed,
                                              tr("Split files (*.kvx)"));
      }) {
    connect(&m_days, &DayKeeping::notKept, this, &TakingDocument::dayNotKept);
}

FileReading TakingDocument::reading(const QString& path, QWidget* over) {
    return [this, path, over, clock = workspace().clock()]() -> TakeIn {
        const auto found = std::make_shared<TakingRead>(readTaking(path, clock));
        return [this, over, found] { return take(std::move(*found), over); };
    };
}

bool TakingDocument::take(TakingRead found, QWidget* over) {
    found.notes.tell(workspace(), over);
    if (found.read && !found.read->isCurrent())
        return openCopy(*found.read, found.file, over);
    splittakerdata031 document;
    if (found.read) {
        document = std::move(found.read->document);
        setOlderLayout({});
    } else {
        document = newRaceIn(QFileInfo(found.file).absolutePath(), workspace());
        document.athletes =
            runsOfFilms(found.films, filmPattern().toStdString(), document.info.gates);
    }
    TakingState state = stateOf(std::move(document));
    state.day = m_days.take(found.day, over);
    start(std::move(state), found.file, over);
    if (!found.read)
        setNamed(); // after its folder
    return true;
}

/// An older file stays as it is: the analyzer is where it is converted, with a backup. Where that
/// cannot be, as in a folder that cannot be written, a copy elsewhere is.
bool TakingDocument::openCopy(const RecognisedSplitFile& older, const QString& file,
                              QWidget* over) {
    if (!older.version) {
        tellNotCurrent(older, workspace(), over);
        return false;
    }
    const QString told =
        QString(messages::OlderVersion) + "\n\n" + whyOlder(older, file) +
        tr(" \"Save as…\" writes a copy in the present release and opens it here; its films stay "
           "where they are.");
    if (!workspace().ask({"", told.toStdString()}, tr("Save as…"), over))
        return false;
    const QString copy =
        m_chooseCopy(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation) + '/' +
                     QFileInfo(file).completeBaseName() + ".kvx");
    if (copy.isEmpty() || otherPathToWrite(copy, over).isEmpty())
        return false;
    setOlderLayout(isSameFile(copy, file) ? ".kvb" : std::string()); // chosen over itself
    startCopy(older.document, copy, over);
    (void)findFilms(QFileInfo(file).absolutePath()); // where they stay
    return true;
}

/// It is unsaved work until it is written, which the window does not wait for.
void TakingDocument::startCopy(splittakerdata031 document, const QString& copy, QWidget* over) {
    TakingState state = stateOf(std::move(document));
    state.day = m_days.take(DayKeeping::find(copy), over);
    start(std::move(state), copy, over);
    setNamed();
    undoStack().resetClean();
    noteEdit();
    if (!holdsNothing())
        saveBeside(over);
}

bool TakingDocument::recover(const std::string& content) {
    auto state = recoveredState(content, path(), workspace());
    if (!state)
        return false;
    if (const auto changed = firstOtherRun(*state, value()))
        m_workedOn = static_cast<int>(*changed);
    state->day = value().day; // which was kept apart from this
    startFrom(std::move(*state));
    return true;
}

QString TakingDocument::filmPattern() const {
    const QString kept = workspace().remembered(FilmPatternKey).value(0);
    return kept.isEmpty() ? QString::fromUtf8(DefaultVideoPattern.data(),
                                              static_cast<qsizetype>(DefaultVideoPattern.size()))
                          : kept;
}

void TakingDocument::readFilmNames(const QString& pattern) {
    workspace().remember(FilmPatternKey, {pattern});
    put(tr("names of the films"), withFilmNames(value(), pattern.toStdString()));
}

const athletedata031& TakingDocument::run(int index) const {
    return *value().runs.at(static_cast<std::size_t>(index)).record;
}

RunIdentity TakingDocument::identityOf(int index) const {
    return value().runs.at(static_cast<std::size_t>(index)).identity;
}

int TakingDocument::placeOf(const RunIdentity& identity) const {
    const auto found = std::ranges::find(value().runs, identity, &TakenRun::identity);
    return found == value().runs.end() ? -1 : static_cast<int>(found - value().runs.begin());
}

RunMarks TakingDocument::marks(int index) const {
    RunMarks marks = marksOf(run(index).sectioninfo);
    if (marks.marks.empty())
        marks.start = value().runs[static_cast<std::size_t>(index)].start;
    return marks;
}

double TakingDocument::expectedTime(int index) const {
    return entryOrZero(m_expected, static_cast<std::size_t>(index));
}

QString TakingDocument::film(int index, std::size_t camera) const {
    return pathOf(entryOrZero(run(index).videoname, camera));
}

QString TakingDocument::fixedFilm(int index, std::size_t camera) const {
    return pathOf(entryOrZero(run(index).fixcameras, camera));
}

QString TakingDocument::pathOf(const std::string& name) const {
    const bool isBare = name.find_first_of("/\\") == std::string::npos && name != "..";
    return name.empty() || !isBare ? QString() : placeOfFilm(workspace(), path(), qtText(name));
}

QStringList TakingDocument::filmNames() const {
    return desktop::filmNames(value());
}

QStringList TakingDocument::findFilms(const QString& folder) {
    QStringList missing = filmNames();
    missing.removeIf(
        [this](const QString& name) { return QFileInfo(pathOf(name.toStdString())).isFile(); });
    return desktop::findFilms(workspace(), path(), folder, missing);
}

QString TakingDocument::title() const {
    const std::string& name = info().title.empty() ? info().event : info().title;
    return name.empty() ? QFileInfo(path()).completeBaseName() : qtText(name);
}

QString TakingDocument::folder() const {
    return QFileInfo(path()).absolutePath();
}

void TakingDocument::put(const QString& what, TakingState after) {
    edit(what, [&](TakingState& state) { state = std::move(after); });
}

/// The runs as their perfect and expected times are computed here.
splittakerdata031 TakingDocument::countedTimes() const {
    splittakerdata031 times = timesOf(value());
    blankNegativeTimes(times.athletes);
    return times;
}

std::optional<Reason> TakingDocument::whyPerfect() const {
    return explainExpected(countedTimes().athletes, path().toStdString(), "perfect");
}

std::optional<Reason> TakingDocument::whyExpected(int index) const {
    return explainExpected(countedTimes().athletes, path().toStdString(),
                           "xtime/" + std::to_string(index));
}

void TakingDocument::follow() {
    splittakerdata031 times = countedTimes();
    recomputeExpected(times, [](std::string_view) {});
    m_perfect = times.info.perfectRun;
    m_expected.clear();
    for (const athletedata031& run : times.athletes)
        m_expected.push_back(run.sectioninfo.xTime);
    m_days.keep(value().day, path());
}

void TakingDocument::editRun(int index, const QString& what,
                             const std::function<void(athletedata031&)>& change) {
    put(what, withRun(value(), static_cast<std::size_t>(index), change));
}

void TakingDocument::editCross(const QString& what,
                               const std::function<void(crossdata030&)>& change) {
    editCross(what, trialStarts(), change);
}

void TakingDocument::editCross(const QString& what, TrialStarts starts,
                               const std::function<void(crossdata030&)>& change) {
    put(what, withCross(value(), std::move(starts), change));
}

void TakingDocument::editRuns(const QString& what,
                              const std::function<void(athletedata031&)>& change) {
    put(what, withEveryRun(value(), change));
}

void TakingDocument::editInfo(const QString& what,
                              const std::function<void(infodata031&)>& change) {
    put(what, withInfo(value(), change));
}

void TakingDocument::setMarks(int index, const QString& what, const RunMarks& marks) {
    put(what, withMarks(value(), static_cast<std::size_t>(index), marks));
}

void TakingDocument::setMarks(int index, const QString& what, const RunMarks& marks,
                              const std::function<void(athletedata031&)>& change) {
    const auto run = static_cast<std::size_t>(index);
    put(what, withRun(withMarks(value(), run, marks), run, change));
}

void TakingDocument::addRun(const QString& what, athletedata031 run) {
    put(what, withMoreRuns(value(), {std::move(run)}));
}

void TakingDocument::removeRun(int index) {
    if (index >= 0 && index < runCount())
        put(tr("run removed"), withoutRun(value(), static_cast<std::size_t>(index)));
}

void TakingDocument::moveRun(int index, int to) {
    const auto isRun = [this](int place) { return place >= 0 && place < runCount(); };
    if (isRun(index) && isRun(to) && to != index)
        put(tr("run moved"),
            withRunMoved(value(), static_cast<std::size_t>(index), static_cast<std::size_t>(to)));
}

int TakingDocument::addFilms(const QStringList& names) {
    const QStringList fresh = filmsOfNoRun(value(), names);
    if (fresh.isEmpty())
        return 0;
    put(tr("videos imported"),
        withMoreRuns(value(), runsOfFilms(fresh, filmPattern().toStdString(), info().gates)));
    return static_cast<int>(fresh.size());
}

void TakingDocument::importSplitFiles(const QStringList& files, QWidget* over) {
    readSplitFiles(m_imports, workspace(), files, over,
                   [this, over = QPointer(over)](std::vector<RecognisedSplitFile> read) {
                       for (RecognisedSplitFile& file : read)
                           if (auto race =
                                   importedRace(std::move(file), value(), workspace(), over))
                               put(tr("split file imported"), withRace(value(), std::move(*race)));
                   });
}

void TakingDocument::takeResults(const ResultsList& list, const std::vector<ResultOfRun>& runs) {
    if (list.results.empty())
        return;
    put(tr("official results imported"), withResults(value(), list, runs));
    logPerfectTime();
}

bool TakingDocument::takeOfficial(const OfficialDifference& difference) {
    std::optional<TakingState> after = withOfficial(value(), difference);
    if (!after)
        return false;
    put(tr("official result of %1").arg(QString::fromStdString(difference.crew)),
        std::move(*after));
    logPerfectTime();
    return true;
}

void TakingDocument::reset(QWidget* over) {
    const QString runs =
        runCount() == 1 ? tr("1 run") : tr("%n runs", nullptr, static_cast<int>(runCount()));
    const QString what = tr("%1 with %2 is emptied. Ctrl+Z brings it back.").arg(title(), runs);
    if (!workspace().askBeforeLoss(
            {messages::BeCareful,
             messages::AskToDeleteAll + std::string("\n\n") + what.toStdString()},
            tr(messages::ResetButton), over))
        return;
    TakingState emptied = stateOf(newRaceIn(folder(), workspace()));
    emptied.day = value().day; // the start list is no data of a run
    put(tr("reset"), std::move(emptied));
    logPerfectTime();
}

bool TakingDocument::holdsMore() const {
    return startsWithoutSplit(value()) > 0;
}

/// They stay in the automatic save, and are offered when the file is opened again.
bool TakingDocument::mayLeaveMore(QWidget* over) {
    const int starts = startsWithoutSplit(value());
    if (starts == 0)
        return true;
    const QString told =
        (starts == 1 ? tr("1 start without a split is not stored in the file. This computer keeps "
                          "it, and offers it when the file is opened here again.")
                     : tr("%n starts without a split are not stored in the file. This computer "
                          "keeps them, and offers them when the file is opened here again.",
                          nullptr, static_cast<int>(starts)));
    if (!workspace().ask({"", told.toStdString()}, tr("Close"), over))
        return false;
    keepWork();
    return true;
}

splittakerdata031 TakingDocument::finished() const {
    return finishedDocument(value(), workspace().clock()(), [](std::string_view) {});
}

void TakingDocument::logPerfectTime() const {
    (void)finishedDocument(value(), workspace().clock()(), workspace().log());
}

TakingDocument::Content TakingDocument::contentNow() const {
    return [state = shared(), now = workspace().clock()()] {
        return encode(finishedDocument(*state, now, [](std::string_view) {}));
    };
}

TakingDocument::Content TakingDocument::keptContentNow() const {
    return [state = shared()] { return keptWork(*state); };
}

TakingDocument::Beside TakingDocument::besideNow() const {
    const Preferences& preferences = workspace().preferences();
    return besideWith(m_lists.value_or(
        BesideFile{preferences.boolean("savetoCSV"), preferences.boolean("savetoPDF")}));
}

TakingDocument::Beside TakingDocument::besideWith(const BesideFile& lists) const {
    return [state = shared(), now = workspace().clock()(), lists](const fs::path& file) {
        writeBeside(finishedDocument(*state, now, [](std::string_view) {}), file, lists);
    };
}

/// A split file may hold runs, a cross race, or both; before the first run of a race its start list
/// stands beside it.
bool TakingDocument::holdsNothing() const {
    return value().runs.empty() && day().starts.empty() && cross().timetrials.empty() &&
           cross().eliphase.empty() && cross().crossinfo.gates.empty();
}

bool TakingDocument::mayWrite(QWidget* over) {
    if (holdsNothing())
        workspace().showAlert({"", messages::NothingToSave}, over);
    return !holdsNothing();
}

/// Who exports onto the document's own file saves it.
void TakingDocument::exportTo(const QString& file, const BesideFile& lists, QWidget* over,
                              Saved saved) {
    const bool isAgreed = splitFileIn(QFileInfo(file).path()).isEmpty() || holdsNothing() ||
                          workspace().ask({"", messages::AskToOverwrite}, tr("Overwrite"), over);
    if (holdsNothing())
        workspace().showAlert({"", messages::NothingToExport}, over);
    if (holdsNothing() || !isAgreed) {
        if (saved)
            saved(false);
    } else if (canonicalPath(file) == canonicalPath(path())) {
        saveWith(lists, over, std::move(saved));
    } else {
        writeCopy(file, lists, over, std::move(saved));
    }
}

/// Where it is written again after a failure, it is with these lists too.
void TakingDocument::saveWith(const BesideFile& lists, QWidget* over, Saved saved) {
    m_lists = lists;
    acceptDisk();
    saveBeside(over, [this, saved = std::move(saved)](bool isSaved) {
        m_lists.reset();
        if (saved)
            saved(isSaved);
    });
}

void TakingDocument::writeCopy(const QString& file, const BesideFile& lists, QWidget* over,
                               Saved saved) {
    const auto write = [file = fs::path(file.toStdString()), content = contentNow(),
                        beside = besideWith(lists)] {
        writeFileSafely(file, content());
        beside(file);
    };
    disk::run(
        *this, write,
        [this, window = QPointer(over), saved = std::move(saved)](const std::exception_ptr& fault) {
            if (fault)
                tellNotWritten(fault, window);
            if (saved)
                saved(!fault);
        });
}

QString TakingDocument::summary() const {
    const std::size_t count = static_cast<std::size_t>(runCount());
    return count == 1 ? tr("1 run") : tr("%n runs", nullptr, static_cast<int>(count));
}

} // namespace kavela::desktop
