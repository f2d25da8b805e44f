#pragma once

#include "desktop/shell/background_work.h"
#include "vision/light_barrier.h"
#include "vision/slit_file.h"

#include <QObject>
#include <QStringList>
#include <QTimer>

#include <atomic>
#include <memory>
#include <vector>

namespace kavela::desktop {

/// Looks beside the window for boats that cross the lines of a film, one line after the other, and
/// keeps what was found of each as long as line, side and boat stay the same.
class CrossingSearch : public QObject {
    Q_OBJECT

public:
    explicit CrossingSearch(QObject* parent = nullptr);

    /// Nothing of another film counts any more.
    void setFilm(std::shared_ptr<const VideoIndex> index);
    /// Looks for the boats of one line, in place of what is being looked for.
    void search(const slitline001& line);
    void cancel();
    /// Keeps what was found on a line, as a search of it does, in place of what was found before.
    void keep(const SlitLine& line, const BoatBox& boat, Crossings crossings);
    [[nodiscard]] bool isSearching() const { return m_isSearching; }
    /// How far it is, 0 to 1.
    [[nodiscard]] double share() const;

    /// What was found on a line as it is now, without what was refused there; in the order of time.
    [[nodiscard]] std::vector<Proposal> proposals(const slitline001& line) const;
    /// The same with what was refused.
    [[nodiscard]] std::vector<Proposal> allProposals(const slitline001& line) const;
    /// All that was found there; null where it was not looked for.
    [[nodiscard]] const Crossings* crossings(const slitline001& line) const;
    [[nodiscard]] bool isSearched(const slitline001& line) const { return find(line) != nullptr; }
    /// What there is to say of it, a sentence each.
    [[nodiscard]] QStringList notes(const slitline001& line) const;

signals:
    void changed();
    void found(); ///< a search came to its end
    void failed(const QString& why);

private:
    struct Found {
        SlitLine line;
        BoatBox boat;
        Crossings crossings;
    };

    [[nodiscard]] const Found* find(const slitline001& line) const;
    void stop();

    std::shared_ptr<const VideoIndex> m_index;
    std::vector<Found> m_found;
    bool m_isSearching = false;
    std::shared_ptr<std::atomic<double>> m_progress; ///< of the search that goes on
    QTimer m_look;                                   ///< for the progress
    BackgroundWork m_work;
};

} // namespace kavela::desktop
