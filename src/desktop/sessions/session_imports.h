#pragma once

#include "boatmotion/session_editing.h"
#include "desktop/imports/import_files.h"

#include <QCoreApplication>

#include <functional>
#include <optional>
#include <vector>

class QWidget;

namespace kavela::desktop {

class SessionConversion;
class SessionDocument;
class SessionEdits;
class Workspace;

/// What other devices recorded, taken into a session: lists of phone loggers become recordings,
/// tracks of watches join the recording that is open, power-meter data its strokes.
class SessionImports {
    Q_DECLARE_TR_FUNCTIONS(SessionImports)

public:
    /// A list of samples becomes a session of its own, in the place of the one that is shown.
    struct Place {
        /// Tells whether what is shown may give way, maybe once it is saved.
        std::function<void(std::function<void(bool mayGo)> left)> whenLeft;
        /// Shows the session of a recording that is to be saved under the path.
        std::function<void(EditedSession session, const QString& recording)> show;
    };

    SessionImports(SessionDocument& document, SessionEdits& edits, SessionConversion& conversion,
                   Workspace& workspace, QWidget& over, Place place);

    /// Takes in what watches and phone loggers recorded.
    void askForImports();
    void importFrom(const QStringList& paths);
    /// The same, and lists of power meters; recordings come first, so that tracks find one to join.
    void takeInAll(const QStringList& paths);

    void askForPowerMeter();
    /// Shows what a list of a power meter holds and brings it in. False when it is not to be read
    /// or not wanted.
    bool importPowerMeter(const QString& path);

    /// Whether a track was joined to the recording.
    [[nodiscard]] bool hasTrack() const { return m_track.has_value(); }
    /// Moves the track that was joined last in time: the clock of the watch was wrong.
    void moveTrack();
    /// Another session is shown, which has none.
    void forgetTrack() { m_track.reset(); }

private:
    /// The track of a watch that was joined to the recording, and what it gave to it.
    struct WatchTrack {
        ImportedTrack track;
        bool givesFixes = false;
        bool givesHeart = false;
        double offset = 0; ///< s by which its clock was behind

        [[nodiscard]] bool isWanted() const {
            return (givesFixes && !track.gps.empty()) || (givesHeart && !track.heart.empty());
        }
    };

    void takeInEach(std::vector<ImportedFile> files);
    void takeIn(ImportedFile file);
    void showRecording(bmrawdata_v5 recording, const QString& path);
    void analyse(bmrawdata_v5 recording, const QString& path);
    void join(ImportedTrack track);
    void joinTrack(bmrawdata_v5 recording, WatchTrack track, const QString& what);
    [[nodiscard]] std::optional<double> askForOffset(const bmrawdata_v5& recording,
                                                     const WatchTrack& track);
    void tell(const QString& title, const QString& text) const;

    SessionDocument& m_document;
    SessionEdits& m_edits;
    SessionConversion& m_conversion;
    Workspace& m_workspace;
    QWidget& m_over;
    Place m_place;
    std::optional<WatchTrack> m_track;
};

/// Whether a file is a list of a power meter, by what it holds.
[[nodiscard]] bool isPowerMeterList(const QString& path);

} // namespace kavela::desktop
