#include "desktop/taking/taking_document.h"

#include "common/error.h"
#include "common/json_encode.h"
#include "common/safe_file.h"
#include "desktop/shell/workspace.h"
#include "desktop/taking/film_places.h"
#include "desktop/taking/kept_work.h"
#include "desktop/taking/taking_files.h"
#include "report/pdf_file.h"
#include "report/race_report.h"
#include "splitdata/loader.h"
#include "splitdata/run_timing.h"
#include "splittaking/annotations/film_marks.h"
#include "splittaking/course_setup.h"
#include "splittaking/messages.h"
#include "splittaking/penalties.h"
#include "splittaking/perfect_time.h"
#include "splittaking/table_export.h"
#include "splittaking/training_collection.h"
#include "splittaking/video_names.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QStandardPaths>
#include <QUndoCommand>

#include <algorithm>

namespace kavela::desktop {

namespace fs = std::filesystem;

namespace {

constexpr int KeepAfterMilliseconds = 1000;
constexpr const char* FilmPatternKey = "filmNames";

/// What the name of a run's first film tells.
void takeFilmName(athletedata031& run, const std::string& pattern) {
    FilmFacts facts = filmFacts(run.videoname.front(), pattern);
    run.names = std::move(facts.names);
    run.phase = std::move(facts.phase);
    run.cat = std::move(facts.category);
}

QString qtText(const std::string& text) {
    return QString::fromStdString(text);
}

} // namespace

/// One edit: the document before and after it. Made after the fact, so its first redo does nothing.
class TakingStep : public QUndoCommand {
public:
    TakingStep(TakingDocument& document, const QString& what, TakingState before, TakingState after)
        : QUndoCommand(what),
          m_document(document),
          m_before(std::move(before)),
          m_after(std::move(after)) {}

    void undo() override { m_document.show(m_before); }
    void redo() override { m_document.show(m_after); }

private:
    TakingDocument& m_document;
    TakingState m_before;
    TakingState m_after;
};

TakingDocument::TakingDocument(Workspace& workspace, Autosave autosave, QObject* parent)
    : QObject(parent),
      m_workspace(workspace),
      m_autosave(std::move(autosave)),
      m_chooseCopy([this](const QString& proposed) {
          return QFileDialog::getSaveFileName(nullptr, tr("Save a copy as"), proposed,
                                              tr("Split files (*.kvx)"));
      }) {
    m_keep.setSingleShot(true);
    m_keep.setInterval(KeepAfterMilliseconds);
    connect(&m_keep, &QTimer::timeout, this, &TakingDocument::keepWork);
}

TakingDocument::~TakingDocument() {
    if (m_keep.isActive())
        keepWork();
    m_undo.disconnect(); // it tells of its end, when the rest is gone already
}

QString TakingDocument::filmPattern() const {
    const QString kept = m_workspace.remembered(FilmPatternKey).value(0);
    return kept.isEmpty() ? QString::fromUtf8(DefaultVideoPattern.data(),
                                              static_cast<qsizetype>(DefaultVideoPattern.size()))
                          : kept;
}

void TakingDocument::readFilmNames(const QString& pattern) {
    m_workspace.remember(FilmPatternKey, {pattern});
    TakingState after = m_state;
    for (TakenRun& run : after.runs) {
        if (run.record->videoname.empty())
            continue;
        auto read = std::make_shared<athletedata031>(*run.record);
        takeFilmName(*read, pattern.toStdString());
        run.record = std::move(read);
    }
    push(tr("names of the films"), std::move(after));
}

std::vector<athletedata031> TakingDocument::runsOf(const QStringList& films) const {
    std::vector<athletedata031> runs;
    for (const QString& film : films) {
        athletedata031 run;
        run.videoname = {film.toStdString()};
        takeFilmName(run, filmPattern().toStdString());
        (void)fitPenalties(run, info().gates);
        runs.push_back(std::move(run));
    }
    return runs;
}

const athletedata031& TakingDocument::run(int index) const {
    return *m_state.runs.at(static_cast<std::size_t>(index)).record;
}

RunIdentity TakingDocument::identityOf(int index) const {
    return m_state.runs.at(static_cast<std::size_t>(index)).identity;
}

int TakingDocument::placeOf(const RunIdentity& identity) const {
    const auto found = std::ranges::find(m_state.runs, identity, &TakenRun::identity);
    return found == m_state.runs.end() ? -1 : static_cast<int>(found - m_state.runs.begin());
}

RunMarks TakingDocument::marks(int index) const {
    RunMarks marks = marksOf(run(index).sectioninfo);
    if (marks.marks.empty())
        marks.start = m_state.runs[static_cast<std::size_t>(index)].start;
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
    return name.empty() || !isBare ? QString() : placeOfFilm(m_workspace, m_path, qtText(name));
}

QStringList TakingDocument::filmNames() const {
    return desktop::filmNames(m_state);
}

QStringList TakingDocument::findFilms(const QString& folder) {
    QStringList missing = filmNames();
    missing.removeIf(
        [this](const QString& name) { return QFileInfo(pathOf(name.toStdString())).isFile(); });
    return desktop::findFilms(m_workspace, m_path, folder, missing);
}

QString TakingDocument::title() const {
    const std::string& name = info().title.empty() ? info().event : info().title;
    return name.empty() ? QFileInfo(m_path).completeBaseName() : qtText(name);
}

void TakingDocument::push(const QString& what, TakingState after) {
    m_undo.push(new TakingStep(*this, what, m_state, std::move(after)));
    m_keep.start();
}

void TakingDocument::show(const TakingState& state) {
    m_state = state;
    splittakerdata031 times = timesOf(m_state);
    blankNegativeTimes(times.athletes);
    recomputeExpected(times, [](std::string_view) {});
    m_perfect = times.info.perfectRun;
    m_expected.clear();
    for (const athletedata031& run : times.athletes)
        m_expected.push_back(run.sectioninfo.xTime);
    if (isDirty())
        m_keep.start();
    emit changed();
}

void TakingDocument::editRun(int index, const QString& what,
                             const std::function<void(athletedata031&)>& change) {
    auto edited = std::make_shared<athletedata031>(run(index));
    change(*edited);
    TakingState after = m_state;
    after.runs[static_cast<std::size_t>(index)].record = std::move(edited);
    push(what, std::move(after));
}

void TakingDocument::editCross(const QString& what,
                               const std::function<void(crossdata030&)>& change) {
    auto edited = std::make_shared<crossdata030>(cross());
    change(*edited);
    TakingState after = m_state;
    after.cross = std::move(edited);
    push(what, std::move(after));
}

void TakingDocument::editRuns(const QString& what,
                              const std::function<void(athletedata031&)>& change) {
    TakingState after = m_state;
    for (TakenRun& each : after.runs) {
        auto edited = std::make_shared<athletedata031>(*each.record);
        change(*edited);
        each.record = std::move(edited);
    }
    push(what, std::move(after));
}

void TakingDocument::editInfo(const QString& what,
                              const std::function<void(infodata031&)>& change) {
    auto edited = std::make_shared<infodata031>(info());
    change(*edited);
    TakingState after = m_state;
    const bool isOtherCourse =
        edited->gates != info().gates || edited->totalsplits != info().totalsplits;
    after.info = std::move(edited);
    if (isOtherCourse)
        for (TakenRun& run : after.runs) {
            auto fitted = std::make_shared<athletedata031>(*run.record);
            (void)fitPenalties(*fitted, after.info->gates);
            if (const RunMarks marks = marksOf(fitted->sectioninfo); marks != RunMarks())
                applyMarks(marks, *fitted, after.info->totalsplits);
            run.record = std::move(fitted);
        }
    push(what, std::move(after));
}

void TakingDocument::setMarks(int index, const QString& what, const RunMarks& marks) {
    auto edited = std::make_shared<athletedata031>(run(index));
    const auto start = startOf(*edited);
    applyMarks(marks, *edited, info().totalsplits);
    if (startOf(*edited) != start)
        retimeNotes(*edited);
    TakingState after = m_state;
    TakenRun& marked = after.runs[static_cast<std::size_t>(index)];
    marked.record = std::move(edited);
    marked.start = marks.start;
    push(what, std::move(after));
}

void TakingDocument::addRun(const QString& what, athletedata031 run) {
    (void)fitPenalties(run, info().gates);
    TakingState after = m_state;
    after.runs.push_back({std::make_shared<athletedata031>(std::move(run)), std::nullopt});
    push(what, std::move(after));
}

void TakingDocument::removeRun(int index) {
    if (index < 0 || index >= runCount())
        return;
    TakingState after = m_state;
    after.runs.erase(after.runs.begin() + index);
    push(tr("run removed"), std::move(after));
}

void TakingDocument::moveRun(int index, int to) {
    const auto isRun = [this](int place) { return place >= 0 && place < runCount(); };
    if (!isRun(index) || !isRun(to) || to == index)
        return;
    TakingState after = m_state;
    auto moved = std::move(after.runs[static_cast<std::size_t>(index)]);
    after.runs.erase(after.runs.begin() + index);
    after.runs.insert(after.runs.begin() + to, std::move(moved));
    push(tr("run moved"), std::move(after));
}

int TakingDocument::addFilms(const QStringList& names) {
    QStringList fresh;
    for (const QString& name : names) {
        const bool isKnown = std::ranges::any_of(m_state.runs, [&](const TakenRun& run) {
            const std::vector<std::string>& films = run.record->videoname;
            return std::ranges::find(films, name.toStdString()) != films.end();
        });
        if (!isKnown)
            fresh.append(name);
    }
    if (fresh.isEmpty())
        return 0;
    TakingState after = m_state;
    for (athletedata031& run : runsOf(fresh))
        after.runs.push_back({std::make_shared<athletedata031>(std::move(run)), std::nullopt});
    push(tr("videos imported"), std::move(after));
    return static_cast<int>(fresh.size());
}

void TakingDocument::keepWork() {
    if (!isDirty()) {
        m_autosave.forget(m_path);
        return;
    }
    try {
        m_autosave.keep(m_path, keptWork(m_state));
    } catch (const std::exception& error) {
        m_workspace.log()(std::string("The work could not be kept: ") + error.what());
    }
}

void TakingDocument::importSplitFile(const QString& file, QWidget* over) {
    auto document = readCurrent(file, over);
    if (!document)
        return;
    TakingState imported = stateOf(std::move(*document));
    TakingState after = m_state;
    if (imported.runs.empty() && !after.runs.empty()) {
        m_workspace.showAlert({"", tr("“%1” holds no runs. Nothing was imported.")
                                       .arg(QFileInfo(file).fileName())
                                       .toStdString()},
                              over);
        return;
    }
    if (after.runs.empty())
        after = std::move(imported);
    else
        after.runs.insert(after.runs.end(), imported.runs.begin(), imported.runs.end());
    push(tr("split file imported"), std::move(after));
}

void TakingDocument::takeResults(const ResultsList& list, const std::vector<ResultOfRun>& runs) {
    if (list.results.empty())
        return;
    auto edited = std::make_shared<infodata031>(info());
    edited->resultsCSVdata.insert(edited->resultsCSVdata.end(), list.results.begin(),
                                  list.results.end());
    TakingState after = m_state;
    after.info = std::move(edited);
    for (const ResultOfRun& each : runs) {
        TakenRun& taken = after.runs.at(each.run);
        auto record = std::make_shared<athletedata031>(*taken.record);
        takeResult(*record, list.results.at(each.line.value()));
        taken.record = std::move(record);
    }
    push(tr("official results imported"), std::move(after));
    logPerfectTime();
}

void TakingDocument::reset(QWidget* over) {
    const QString runs = runCount() == 1 ? tr("1 run") : tr("%1 runs").arg(runCount());
    const QString what = tr("%1 with %2 is emptied. Ctrl+Z brings it back.").arg(title(), runs);
    if (!m_workspace.askBeforeLoss(
            {messages::BeCareful,
             messages::AskToDeleteAll + std::string("\n\n") + what.toStdString()},
            tr(messages::ResetButton), over))
        return;
    push(tr("reset"), stateOf(newDocument()));
    logPerfectTime();
}

bool TakingDocument::isDirty() const {
    return !m_undo.isClean() || startsWithoutSplit(m_state) > 0;
}

bool TakingDocument::mayClose(QWidget* over) {
    if (m_undo.isClean())
        return mayLeaveStarts(over);
    switch (m_workspace.askToSave(title(), over)) {
    case Workspace::Leaving::Save:
        return save(over) && mayLeaveStarts(over);
    case Workspace::Leaving::Discard:
        discard();
        return true;
    case Workspace::Leaving::Stay:
        break;
    }
    return false;
}

/// They stay in the automatic save, and are offered when the file is opened again.
bool TakingDocument::mayLeaveStarts(QWidget* over) {
    const int starts = startsWithoutSplit(m_state);
    if (starts == 0)
        return true;
    const QString told =
        (starts == 1 ? tr("1 start without a split is not stored in the file. This computer keeps "
                          "it, and offers it when the file is opened here again.")
                     : tr("%1 starts without a split are not stored in the file. This computer "
                          "keeps them, and offers them when the file is opened here again.")
                           .arg(starts));
    if (!m_workspace.ask({"", told.toStdString()}, tr("Close"), over))
        return false;
    keepWork();
    return true;
}

void TakingDocument::discard() {
    keepWork();
    m_keep.stop();
    m_autosave.putAside(m_path);
    m_undo.setClean();
}

} // namespace kavela::desktop
