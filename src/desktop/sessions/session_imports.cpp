#include "desktop/sessions/session_imports.h"

#include "boatmotion/conversion.h"
#include "boatmotion/imports/join_recording.h"
#include "boatmotion/power_meter.h"
#include "common/error.h"
#include "common/text_file.h"
#include "desktop/sessions/power_meter_dialog.h"
#include "desktop/sessions/session_conversion.h"
#include "desktop/sessions/session_document.h"
#include "desktop/sessions/session_edits.h"
#include "desktop/sessions/track_offset_dialog.h"
#include "desktop/shell/workspace.h"

#include <QFileDialog>
#include <QFileInfo>

#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

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
    QStringList lines{SessionImports::tr("%1 positions and %2 heart rates were taken over.")
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

SessionImports::SessionImports(SessionDocument& document, SessionEdits& edits,
                               SessionConversion& conversion, Workspace& workspace, QWidget& over,
                               Place place)
    : m_document(document),
      m_edits(edits),
      m_conversion(conversion),
      m_workspace(workspace),
      m_over(over),
      m_place(std::move(place)) {}

void SessionImports::askForImports() {
    WorkspaceAlerts alerts(m_workspace, &m_over);
    CsvMappings known = knownMappings(m_workspace);
    auto files =
        kavela::desktop::askForImports(QFileInfo(m_document.path()).path(), alerts, &m_over, known);
    keepMappings(known, m_workspace);
    takeInEach(std::move(files));
}

void SessionImports::importFrom(const QStringList& paths) {
    WorkspaceAlerts alerts(m_workspace, &m_over);
    CsvMappings known = knownMappings(m_workspace);
    auto files = importFiles(paths, alerts, &m_over, known);
    keepMappings(known, m_workspace);
    takeInEach(std::move(files));
}

void SessionImports::takeInEach(std::vector<ImportedFile> files) {
    for (ImportedFile& file : files)
        m_conversion.whenFree([this, held = std::make_shared<ImportedFile>(std::move(file))] {
            takeIn(std::move(*held));
        });
}

void SessionImports::takeInAll(const QStringList& paths) {
    static const QStringList Tracks{"gpx", "tcx", "fit"};
    QStringList ordered = paths;
    std::ranges::stable_partition(ordered, [](const QString& path) {
        return !Tracks.contains(QFileInfo(path).suffix().toLower()) && !isPowerMeterList(path);
    });
    for (const QString& path : ordered) {
        if (isPowerMeterList(path))
            m_conversion.whenFree([this, path] { importPowerMeter(path); });
        else
            m_conversion.whenFree([this, path] { importFrom({path}); });
    }
}

void SessionImports::takeIn(ImportedFile file) {
    try {
        if (auto* const recording = std::get_if<bmrawdata_v5>(&file.content))
            showRecording(std::move(*recording), file.path);
        else
            join(std::move(std::get<ImportedTrack>(file.content)));
    } catch (const MotionError& error) {
        tell(conversion_messages::NotConverted,
             QFileInfo(file.path).fileName() + ": " + QString::fromUtf8(error.what()));
    }
}

/// It has no file yet: "Save the edited .kvb file" makes one.
void SessionImports::showRecording(bmrawdata_v5 recording, const QString& path) {
    const auto held = std::make_shared<bmrawdata_v5>(std::move(recording));
    m_conversion.hold(); // a track that comes with it is to join it, and not what is left for it
    m_place.whenLeft([this, held, path](bool mayGo) {
        m_conversion.release([&] {
            if (mayGo)
                analyse(std::move(*held), path);
        });
    });
}

void SessionImports::analyse(bmrawdata_v5 recording, const QString& path) {
    const QFileInfo list(path);
    m_conversion.analyse(
        std::move(recording), std::nullopt,
        [this, list](EditedSession session) {
            m_place.show(std::move(session), list.path() + '/' + list.completeBaseName() + ".kvb");
        },
        [this, list](const std::exception_ptr& fault) {
            tell(conversion_messages::NotConverted,
                 list.fileName() + ": " + QString::fromStdString(messageOf(fault)));
        });
}

void SessionImports::join(ImportedTrack track) {
    if (!m_document.value().recording) {
        tell({}, tr("Import the recording of the boat first: a track gives it positions and heart "
                    "rates."));
        return;
    }
    bmrawdata_v5 recording = recordingOf(m_document.value());
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

void SessionImports::moveTrack() {
    if (m_conversion.isBusy() || !m_document.value().recording || !m_track)
        return;
    WatchTrack moved = *m_track;
    bmrawdata_v5 recording = recordingOf(m_document.value());
    if (moved.givesFixes)
        recording.gps.clear();
    if (moved.givesHeart)
        recording.heart.clear();
    const auto offset = askForOffset(recording, moved);
    if (!offset)
        return;
    moved.offset = *offset;
    try {
        joinTrack(std::move(recording), std::move(moved), tr("move of a watch's track"));
    } catch (const MotionError& error) {
        tell(conversion_messages::NotConverted, QString::fromUtf8(error.what()));
    }
}

std::optional<double> SessionImports::askForOffset(const bmrawdata_v5& recording,
                                                   const WatchTrack& track) {
    TrackOffsetDialog dialog(recording, track.track, track.offset, &m_over);
    return dialog.exec() == QDialog::Accepted ? std::optional(dialog.offset()) : std::nullopt;
}

void SessionImports::joinTrack(bmrawdata_v5 recording, WatchTrack track, const QString& what) {
    const JoinedTrack joined = joinRecording(recording, track.track, track.offset);
    if (joined.fixes == 0 && joined.heart == 0) {
        tell({}, joinedText(joined));
        return;
    }
    m_conversion.analyse(
        std::move(recording), m_document.value().mount,
        [this, what, joined, track = std::move(track)](EditedSession again) {
            m_edits.takeAnalysed(what, std::move(again));
            m_track = track;
            tell({}, joinedText(joined));
        },
        [this](const std::exception_ptr& fault) {
            tell(conversion_messages::NotConverted, QString::fromStdString(messageOf(fault)));
        });
}

void SessionImports::askForPowerMeter() {
    const QString path = QFileDialog::getOpenFileName(
        &m_over, tr("Import power-meter data"), QFileInfo(m_document.path()).path(),
        tr("Lists (*.csv *.txt)") + ";;" + tr("All files (*)"));
    if (!path.isEmpty())
        importPowerMeter(path);
}

bool SessionImports::importPowerMeter(const QString& path) {
    const QString title = tr("“%1” cannot be read").arg(QFileInfo(path).fileName());
    if (!m_document.hasSession()) {
        tell(title, tr("Import a recording or a session first: power-meter data belongs to its "
                       "strokes."));
        return false;
    }
    try {
        const PowerMeterList list = parsePowerMeter(readTextFile(path.toStdString()));
        PowerMeterDialog dialog(QFileInfo(path).fileName(), list, m_document.value(), &m_over);
        if (dialog.exec() != QDialog::Accepted || dialog.samples().empty())
            return false;
        m_document.edit(tr("import of power-meter data"),
                        [&](EditedSession& session) { session.powerMeter = dialog.samples(); });
        return true;
    } catch (const FileError& error) {
        tell(title, QString::fromStdString(error.reason()));
    } catch (const DecodeError& error) {
        tell(title, QString::fromStdString(error.what()));
    }
    return false;
}

void SessionImports::tell(const QString& title, const QString& text) const {
    m_workspace.showAlert({title.toStdString(), text.toStdString()}, &m_over);
}

} // namespace kavela::desktop
