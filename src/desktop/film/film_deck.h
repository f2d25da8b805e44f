#pragma once

#include "desktop/film/camera_slot.h"
#include "desktop/film/film_jumps.h"
#include "desktop/film/press_queue.h"
#include "video/camera_group.h"
#include "video/frame_cache.h"

#include <QObject>
#include <QStringList>
#include <QTimer>

#include <algorithm>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace kavela::desktop {

class OpenedFilm;

/// The films of one run, played in step: the cameras, their clock, and what a coach does with them.
/// Everything returns at once; frames come when they are decoded.
///
/// Who presses a key means a frame: the one on the screen, and after a jump or a step the one that
/// was gone to, until it has been decoded and shown.
class FilmDeck : public QObject {
    Q_OBJECT

public:
    explicit FilmDeck(std::shared_ptr<FrameCache> cache, QObject* parent = nullptr);
    ~FilmDeck() override;

    /// Closes the films that are open and opens these, the first of them leading; none to close.
    /// Films beside them, such as a fixed camera's of a whole race, only follow: nothing is marked
    /// on them by the way, and they do not make the run longer.
    void open(const QStringList& films, const QStringList& beside = {});
    /// Opens a film beside those that are shown, as far as its frame `first`: it is there at once
    /// when it is the first one of the next open(), whatever is opened instead closes it. Empty for
    /// none.
    void openAhead(const QString& film, const FrameRequest& first = FrameNumber{0});
    [[nodiscard]] const QStringList& films() const { return m_films; }
    [[nodiscard]] const QStringList& filmsBeside() const { return m_beside; }
    /// Those of the run. Films beside them have the numbers behind theirs, wherever a camera is
    /// asked for.
    [[nodiscard]] std::size_t cameras() const {
        return std::min(m_slots.size(), static_cast<std::size_t>(m_films.size()));
    }

    /// All that are shown, those beside included.
    [[nodiscard]] std::size_t views() const { return m_slots.size(); }

    /// The frame on the screen; null before the first one.
    [[nodiscard]] const FilmPicture* shown(std::size_t camera) const;
    /// The stamps of the frames that stand on the screen now, one per camera; empty as long as a
    /// camera shows none, or shows one that only stands in.
    [[nodiscard]] std::vector<CMTime> stamps() const;
    /// The stamp of the frame of one camera; nothing as long as it shows none of its own.
    [[nodiscard]] std::optional<CMTime> stamp(std::size_t camera) const;
    [[nodiscard]] std::shared_ptr<const VideoIndex> index(std::size_t camera) const;
    /// Why the film of a camera cannot be shown; empty when it can.
    [[nodiscard]] QString fault(std::size_t camera) const;

    /// The stamps of the frames that somebody means who presses a key now, one per view. Empty as
    /// long as the films are not read so far. Where another film of the run than the first cannot
    /// be read its offset tells; those beside are left out then.
    [[nodiscard]] std::vector<CMTime> meant() const;
    /// Acts with them, at once where they are known, otherwise as soon as they are; `refuse` says
    /// why when that can no longer be.
    void whenMeant(PressQueue::Act act, PressQueue::Refuse refuse);
    /// The same for the frame of the first film due at a number of seconds, or with a stamp.
    void whenKnown(const FrameRequest& frame, PressQueue::Act act, PressQueue::Refuse refuse);
    /// The same, with the stamp of that frame; without one, and at once, where no film is open that
    /// could tell it.
    using Settled = std::function<void(const std::optional<CMTime>& stamp)>;
    void whenSettled(const FrameRequest& frame, const Settled& act, PressQueue::Refuse refuse);
    /// Lets the presses that wait act before something else is done, such as saving. Waits a little
    /// for films that are being read; what is not known then is refused.
    void finishPresses();

    /// The stamp of the frame so many frames beside the one of a stamp; where the film is not open,
    /// or ends before it, the stamp moves by hundredths of a second.
    [[nodiscard]] CMTime nudged(std::size_t camera, const CMTime& stamp, int frames) const;

    [[nodiscard]] bool isPlaying() const;
    [[nodiscard]] double rate() const;
    [[nodiscard]] double position() const; ///< seconds of the first film
    [[nodiscard]] double start() const;
    [[nodiscard]] double end() const;

    void setBox(std::size_t camera, QSize box);

    void togglePlaying();
    void play(double rate);
    void pause();
    void slower();
    void faster();
    void normalSpeed();
    void shuttle(ShuttleKey key, bool isStopHeld);
    void step(FrameNumber frames);
    void stepAlone(std::size_t camera, FrameNumber frames);
    void jump(double seconds); ///< from where the film stands
    void seek(double seconds);
    void seek(const CMTime& stamp);
    /// Where somebody is likely to go next, in seconds of the first film, so that it is decoded
    /// beforehand; nowhere without a value.
    void expect(std::optional<double> seconds);
    void alignCameras();
    void setOffset(std::size_t camera, const CameraOffset& offset);
    /// Only this stretch of a film is shown and played, in seconds of its own.
    void setStretch(std::size_t camera, double from, double to);

signals:
    void frameShown(std::size_t camera);
    void indexChanged(std::size_t camera);
    void stateChanged(); ///< playing, rate
    void failed(std::size_t camera, const QString& message);
    void refused(const QString& why); ///< a key did nothing

private:
    [[nodiscard]] static CameraGroup::Moment now();
    [[nodiscard]] std::unique_ptr<OpenedFilm> opened(const QString& film);
    void addCamera(const QString& film);
    void takePicture(std::size_t camera);
    void takeIndex(std::size_t camera);
    void fail(std::size_t camera, const QString& message);
    [[nodiscard]] PressQueue::Meant meantNow() const;
    [[nodiscard]] FrameRequest meantBy(std::size_t camera) const;
    [[nodiscard]] std::vector<CMTime> stampsOf(const PressQueue::Meant& meant) const;
    [[nodiscard]] std::optional<CMTime> seen() const;
    template <class Act>
    void withGroup(Act act);
    template <class Act>
    void jumpWithGroup(Act act, bool isStop = false);
    void sharpen();

    std::shared_ptr<FrameCache> m_cache;
    QStringList m_films;
    QStringList m_beside;
    std::vector<QSize> m_boxes; ///< of the views, also of those that have no film now
    std::vector<std::unique_ptr<OpenedFilm>> m_opened;
    std::unique_ptr<OpenedFilm> m_ahead; ///< of the next open()
    std::vector<std::shared_ptr<CameraSlot>> m_slots;
    std::vector<std::shared_ptr<VideoPlayer>> m_players;
    std::vector<std::optional<FilmPicture>> m_shown;
    FilmJumps m_jumps;
    std::vector<QString> m_faults;
    PressQueue m_presses;
    std::unique_ptr<CameraGroup> m_group;
    QTimer m_tick;
    QTimer m_sharpen;     ///< after the last of many sizes, as while an edge is dragged
    int m_generation = 0; ///< of the films: events of those that were closed are ignored
};

} // namespace kavela::desktop
