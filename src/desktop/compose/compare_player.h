#pragma once

#include "compose/compose_job.h"
#include "compose/layout.h"
#include "compose/split_moments.h"
#include "compose/time_map.h"

#include <QImage>
#include <QObject>
#include <QSize>
#include <QString>
#include <QStringList>

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace kavela {
class FrameCache;
}

namespace kavela::desktop {

class PreviewWorker;

/// The film of a comparison that is heard.
struct HeardFilm {
    std::filesystem::path film;
    std::vector<TimePiece> pieces; ///< by common time
};

/// What a comparison is, once its split files and films were read.
struct PreparedComparison {
    double length = 0;          ///< seconds of the composed film
    double speed = 1;           ///< seconds of common time in one of them
    double frameSeconds = 0.02; ///< of the composed film
    CommonRange shown;          ///< in common time
    CommonRange choice;         ///< that a part can be chosen from
    std::vector<SplitMoment> splits;
    std::vector<std::string> titles; ///< of the splits, entry 0 that of split 1
    std::vector<FilmPlace> places;   ///< in the picture
    QSize size;                      ///< of the picture
    std::optional<HeardFilm> heard;  ///< nothing where it is silent, as in slow motion
    QStringList faults;              ///< of films that cannot be shown, a sentence each

    /// The number of the last one, whose mark may be missing on every film; 0 for none.
    [[nodiscard]] std::size_t lastSplit() const {
        return std::max(titles.size(), splits.empty() ? std::size_t{0} : splits.back().split);
    }
};

/// Shows a comparison as its film will be, made by what makes the film, on a thread of its own. For
/// the interface thread.
class ComparePlayer : public QObject {
    Q_OBJECT

public:
    explicit ComparePlayer(std::shared_ptr<FrameCache> frames, QObject* parent = nullptr);
    ~ComparePlayer() override;

    /// Shows a job, whose files are named in full, in pictures that fit into the box. The moment
    /// stays as far as the film still has it. What is asked for while another one is being read
    /// takes its place.
    void show(const composejob002& job, QSize box);
    /// Shows nothing.
    void clear();

    /// Goes to a moment of the composed film, in seconds.
    void seek(double seconds);
    void step(int frames);
    /// Plays on at the speed of the composed film, from the beginning where it stands at its end.
    /// Pictures that come too late are left out.
    void play();
    void pause();
    [[nodiscard]] bool isPlaying() const { return m_isPlaying; }
    /// Seconds of the composed film that the picture stands at.
    [[nodiscard]] double position() const { return m_position; }
    /// Seconds of the composed film that are due by now: while it plays, ahead of the picture by
    /// what making that takes.
    [[nodiscard]] double clock() const;

    /// Nothing until a job was read, and where that failed.
    [[nodiscard]] const std::optional<PreparedComparison>& prepared() const { return m_prepared; }
    [[nodiscard]] const QImage& image() const { return m_image; }

signals:
    /// There is another comparison, or none.
    void preparedChanged();
    /// It cannot be shown. `where` is the place in the job, such as "films[1]"; empty for a fault
    /// of the films.
    void failed(const QString& where, const QString& what);
    void pictureShown();
    void playingChanged();
    /// It goes on from another moment.
    void sought();

private:
    friend class PreviewWorker;
    void takeNews();
    void setClock();

    bool m_isPlaying = false;
    double m_position = 0;
    double m_clockFrom = 0; ///< where it stood at m_clockSince
    std::chrono::steady_clock::time_point m_clockSince;
    std::uint64_t m_asked = 0; ///< number of the job that was asked for last
    std::optional<PreparedComparison> m_prepared;
    QImage m_image;
    std::unique_ptr<PreviewWorker> m_worker;
};

} // namespace kavela::desktop
