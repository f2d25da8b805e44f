#include "desktop/sessions/replay.h"
#include "desktop/sessions/session_view.h"
#include "desktop/sessions/session_window.h"
#include "desktop/sessions/track_offset_dialog.h"

#include "boatmotion/conversion.h"
#include "boatmotion/imports/join_recording.h"
#include "boatmotion/power_meter.h"
#include "common/text_file.h"
#include "desktop/imports/import_files.h"
#include "desktop/shell/workspace.h"

#include <QFileInfo>

#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

/// What other devices recorded: lists of phone loggers become recordings, tracks of watches join
/// the recording that is open.
namespace kavela::desktop {

namespace {

constexpr const char* MappingsKey = "imports/lists";

CsvMappings knownMappings(const Workspace& workspace) {
    CsvMappings known;
    for (const QString& mapping : workspace.remembered(MappingsKey))
        known.push_back(mapping.toStdString());
    return known;
}

void keepMappings(const CsvMappings& known, Workspace& workspace) {
    QStringList kept;
    for (const std::string& mapping : known)
        kept.append(QString::fromStdString(mapping));
    if (kept != workspace.remembered(MappingsKey))
        workspace.remember(MappingsKey, kept);
}

QString joinedText(const JoinedTrack& joined) {
    QStringList lines{SessionWindow::tr("%1 positions and %2 heart rates were taken over.")
                          .arg(joined.fixes)
                          .arg(joined.heart)};
    for (const std::string& note : joined.notes)
        lines.append(QString::fromStdString(note));
    return lines.join('\n');
}

} // namespace

bool isPowerMeterList(const QString& path) {
    try {
        const PowerMeterList list = parsePowerMeter(readTextFile(path.toStdString()));
        return !list.samples.empty();
    } catch (const std::runtime_error&) {
        return false;
    }
}

void SessionWindow::askForImports() {
    WorkspaceAlerts alerts(workspace(), this);
    CsvMappings known = knownMappings(workspace());
    auto files =
        kavela::desktop::askForImports(QFileInfo(m_document->path()).path(), alerts, this, known);
    keepMappings(known, workspace());
    takeInEach(std::move(files));
}

void SessionWindow::importFrom(const QStringList& paths) {
    WorkspaceAlerts alerts(workspace(), this);
    CsvMappings known = knownMappings(workspace());
    auto files = importFiles(paths, alerts, this, known);
    keepMappings(known, workspace());
    takeInEach(std::move(files));
}

void SessionWindow::takeInEach(std::vector<ImportedFile> files) {
    for (ImportedFile& file : files)
        whenFree([this, held = std::make_shared<ImportedFile>(std::move(file))] {
            takeIn(std::move(*held));
        });
}

void SessionWindow::takeInAll(const QStringList& paths) {
    static const QStringList Tracks{"gpx", "tcx", "fit"};
    QStringList ordered = paths;
    std::ranges::stable_partition(ordered, [](const QString& path) {
        return !Tracks.contains(QFileInfo(path).suffix().toLower()) && !isPowerMeterList(path);
    });
    for (const QString& path : ordered) {
        if (isPowerMeterList(path))
            whenFree([this, path] { importPowerMeter(path); });
        else
            whenFree([this, path] { importFrom({path}); });
    }
}

void SessionWindow::takeIn(ImportedFile file) {
    try {
        if (auto* const recording = std::get_if<bmrawdata_v5>(&file.content))
            showImported(std::move(*recording), file.path);
        else
            join(std::move(std::get<ImportedTrack>(file.content)));
    } catch (const MotionError& error) {
        tell(conversion_messages::NotConverted,
             QFileInfo(file.path).fileName() + ": " + QString::fromUtf8(error.what()));
    }
}

/// A list of samples is a recording that has no file yet: "Save the edited .kvb file" makes one.
void SessionWindow::showImported(bmrawdata_v5 recording, const QString& path) {
    if (!mayLeave())
        return;
    const QString name = QFileInfo(path).fileName();
    workOn(
        conversion_messages::Converting,
        [recording = std::move(recording)]() mutable {
            return analysedSession(std::move(recording), std::nullopt);
        },
        [this, path](EditedSession session) {
            m_watchTrack.reset();
            m_recordingPath =
                QFileInfo(path).path() + '/' + QFileInfo(path).completeBaseName() + ".kvb";
            m_view->select(std::nullopt);
            m_document->show(std::move(session), proposedPath(m_recordingPath), this);
            m_replay->setMoment(m_replay->from());
        },
        [this, name](const std::exception_ptr& fault) {
            tell(conversion_messages::NotConverted,
                 name + ": " + QString::fromStdString(messageOf(fault)));
        });
}

void SessionWindow::join(ImportedTrack track) {
    if (!m_document->value().recording) {
        tell({}, tr("Import the recording of the boat first: a track gives it positions and heart "
                    "rates."));
        return;
    }
    bmrawdata_v5 recording = recordingOf(m_document->value());
    WatchTrack joined{.track = std::move(track),
                      .givesFixes = recording.gps.empty(),
                      .givesHeart = recording.heart.empty()};
    const JoinedTrack fits = joinable(recording, joined.track);
    if (fits.fixes + fits.heart == 0 && joined.isWanted() && !recording.boatmotion.empty()) {
        // It lies days or hours beside the recording: the watch's clock was wrong, or it is of
        // another session.
        if (const auto offset = askForOffset(recording, joined))
            joined.offset = *offset;
        else
            return tell({}, joinedText(fits));
    }
    joinTrack(std::move(recording), std::move(joined), tr("track of a watch"));
}

void SessionWindow::moveTrack() {
    if (isBusy() || !m_document->value().recording || !m_watchTrack)
        return;
    WatchTrack moved = *m_watchTrack;
    bmrawdata_v5 recording = recordingOf(m_document->value());
    if (moved.givesFixes)
        recording.gps.clear();
    if (moved.givesHeart)
        recording.heart.clear();
    const auto offset = askForOffset(recording, moved);
    if (!offset)
        return;
    moved.offset = *offset;
    joinTrack(std::move(recording), std::move(moved), tr("move of a watch's track"));
}

std::optional<double> SessionWindow::askForOffset(const bmrawdata_v5& recording,
                                                  const WatchTrack& track) {
    TrackOffsetDialog dialog(recording, track.track, track.offset, this);
    return dialog.exec() == QDialog::Accepted ? std::optional(dialog.offset()) : std::nullopt;
}

void SessionWindow::joinTrack(bmrawdata_v5 recording, WatchTrack track, const QString& what) {
    const JoinedTrack joined = joinRecording(recording, track.track, track.offset);
    if (joined.fixes == 0 && joined.heart == 0)
        return tell({}, joinedText(joined));
    analyse(
        [recording = std::move(recording), mount = m_document->value().mount]() mutable {
            return analysedSession(std::move(recording), mount);
        },
        [this, what, joined, track = std::move(track)](EditedSession again) {
            takeAnalysis(what, std::move(again));
            m_watchTrack = track;
            tell({}, joinedText(joined));
        });
}

} // namespace kavela::desktop
