#include "desktop/race/race_document.h"

#include "analysis/followed_runs.h"
#include "desktop/race/read_race.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/workspace.h"

#include <QFileInfo>
#include <QMetaObject>

#include <algorithm>

namespace kavela::desktop {

RaceDocument::RaceDocument(Workspace& workspace, QObject* parent)
    : QObject(parent), m_workspace(workspace) {
    connect(&m_workspace, &Workspace::preferenceChanged, this, [this](const QString& key) {
        if (key == "colorMode" || key == "penaltiesIncluded" || key == "penaltiesVisible")
            rebuild();
    });
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, &RaceDocument::noticeDisk);
}

bool RaceDocument::open(ReadRace& race, QWidget* over) {
    if (!take(race, over))
        return false;
    m_filter = {};
    m_workspace.addRecentFile(m_path);
    chooseRuns();
    return true;
}

void RaceDocument::reload(QWidget* over, const std::function<void()>& done) {
    m_work.runAwaited(
        [path = m_path, clock = m_workspace.clock()] { return readRace(path, clock); },
        [this, path = m_path, over, done](const std::shared_ptr<ReadRace>& race) {
            if (path != m_path || !take(*race, over)) // it shows another one by now
                return;
            keepFilterPossible();
            chooseRuns();
            done();
        });
}

/// A phase or category that no run has any more would leave an empty table behind.
void RaceDocument::keepFilterPossible() {
    const auto drop = [this](QString& wanted, std::string analyzerdata::*field) {
        const auto has = [&](const analyzerdata& run) { return qtText(run.*field) == wanted; };
        if (std::ranges::none_of(m_whole.alldata, has))
            wanted.clear();
    };
    drop(m_filter.phase, &analyzerdata::phase);
    drop(m_filter.category, &analyzerdata::category);
}

bool RaceDocument::take(ReadRace& race, QWidget* over) {
    race.notes.tell(m_workspace, over);
    if (!race.isRead)
        return false;
    m_upgradeNote = race.upgradeNote;
    m_path = race.path;
    takeOver(std::move(race.info), std::move(race.set));
    watch(race.stamp);
    return true;
}

void RaceDocument::takeOver(infodata031 info, RaceSet now) {
    m_info = std::move(info);
    const RunMoves moves = followedRuns(m_whole, now);
    m_whole = std::move(now);
    emit runsMoved(moves);
}

void RaceDocument::show(splittakerdata031 document, const QString& path) {
    m_path = path;
    infodata031 info = document.info;
    takeOver(std::move(info), makeRaceSet(std::move(document), path.toStdString()));
    keepFilterPossible();
    chooseRuns();
}

QString RaceDocument::title() const {
    const std::string& name = m_info.title.empty() ? m_info.event : m_info.title;
    return name.empty() ? QFileInfo(m_path).completeBaseName() : qtText(name);
}

QString RaceDocument::subtitle() const {
    QStringList parts;
    for (const std::string& part : {m_info.session, m_info.place, dayText(m_info.date)})
        if (!part.empty())
            parts.append(qtText(part));
    parts.append(tr("%1 gates, %2 upstream").arg(m_info.gates).arg(m_info.upGates.size()));
    return parts.join(" · ");
}

TableSettings RaceDocument::settings() const {
    const Preferences& preferences = m_workspace.preferences();
    TableSettings settings;
    settings.kind = m_isAccumulated ? ValueKind::Accumulated : ValueKind::Sections;
    settings.penaltiesIncluded = preferences.boolean("penaltiesIncluded");
    settings.penaltiesVisible = preferences.boolean("penaltiesVisible");
    settings.colorMode = preferences.string("colorMode");
    return settings;
}

void RaceDocument::setFilter(const RunFilter& filter) {
    if (filter == m_filter)
        return;
    m_filter = filter;
    chooseRuns();
}

void RaceDocument::setAccumulated(bool accumulated) {
    if (accumulated == m_isAccumulated)
        return;
    m_isAccumulated = accumulated;
    rebuild();
}

void RaceDocument::chooseRuns() {
    const auto accepts = [](const QString& wanted, const std::string& value) {
        return wanted.isEmpty() || qtText(value) == wanted;
    };
    m_shown = filteredRaceSet(m_whole, [&](const analyzerdata& run) {
        return accepts(m_filter.phase, run.phase) && accepts(m_filter.category, run.category) &&
               qtText(run.name).contains(m_filter.name, Qt::CaseInsensitive);
    });
    ++m_shownVersion;
    rebuild();
}

void RaceDocument::rebuild() {
    m_table = makeSplitTable(m_shown, settings());
    m_figures.emplace(m_table);
    rebuildComparisons();
    emit tableChanged();
}

void RaceDocument::rebuildComparisons() {
    m_comparisons.clear();
    if (m_isIdealShown)
        m_comparisons.push_back(idealRow(m_shown, settings()));
    for (const analyzerdata& run : m_foreign)
        m_comparisons.push_back(comparisonRow(m_shown, run, settings()));
}

std::vector<RowKey> RaceDocument::comparisonKeys() const {
    std::vector<RowKey> keys;
    if (m_isIdealShown)
        keys.push_back({RowKey::Kind::Ideal});
    for (std::size_t i = 0; i < m_foreign.size(); ++i)
        keys.push_back({RowKey::Kind::Other, i});
    return keys;
}

std::optional<ComparisonRow> RaceDocument::valuesOf(const RowKey& row) const {
    if (row.kind == RowKey::Kind::Ideal)
        return idealRow(m_shown, settings());
    const bool isOwn = row.kind == RowKey::Kind::Run;
    const std::vector<analyzerdata>& runs = isOwn ? m_whole.alldata : m_foreign;
    if (row.number >= runs.size())
        return std::nullopt;
    return comparisonRow(m_shown, runs[row.number], settings());
}

void RaceDocument::setIdealShown(bool isShown) {
    if (isShown == m_isIdealShown)
        return;
    m_isIdealShown = isShown;
    rebuild();
}

void RaceDocument::addComparison(const analyzerdata& run, const QString& race) {
    analyzerdata taken;
    taken.name = run.name;
    taken.event = race.toStdString();
    taken.phase = run.phase;
    taken.category = run.category;
    taken.sectioninfo = run.sectioninfo;
    m_foreign.push_back(std::move(taken));
    rebuild();
}

void RaceDocument::clearComparisons() {
    m_foreign.clear();
    m_isIdealShown = false;
    rebuild();
}

std::vector<CourseReference> RaceDocument::courseReferences() const {
    std::vector<CourseReference> references;
    for (const analyzerdata& run : m_foreign)
        references.push_back({CourseReferenceKind::Times, 0, run.name + ", " + run.event,
                              comparedTimes(m_shown, run, settings().penaltiesIncluded)});
    return references;
}

/// What another program wrote since the file was read is noticed once it is shown.
void RaceDocument::watch(const FileStamp& read) {
    if (!m_watcher.files().isEmpty())
        m_watcher.removePaths(m_watcher.files());
    m_watcher.addPath(m_path);
    m_known = read;
    if (FileStamp(m_path) != read)
        QMetaObject::invokeMethod(this, &RaceDocument::noticeDisk, Qt::QueuedConnection);
}

void RaceDocument::noticeDisk() {
    const FileStamp now(m_path);
    const bool isSame = now.isThere() && now == m_known;
    // A file replaced by renaming is watched no longer.
    if (now.isThere() && m_watcher.files().isEmpty())
        m_watcher.addPath(m_path);
    if (!isSame)
        emit changedOnDisk();
}

} // namespace kavela::desktop
