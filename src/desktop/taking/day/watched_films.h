#pragma once

#include "desktop/shell/background_work.h"
#include "desktop/taking/day/watched_folder.h"

#include <QFileSystemWatcher>
#include <QObject>
#include <QStringList>
#include <QTimer>

#include <string>
#include <utility>
#include <vector>

namespace kavela::desktop {

/// The films of a folder, looked at again and again beside the window: cards and synchronised
/// folders do not always tell that something came.
class WatchedFilms : public QObject {
    Q_OBJECT

public:
    struct Pace {
        int lookMilliseconds = 4000; ///< from one look to the next
        double restSeconds = 2;      ///< how long a film must have kept its size to be whole
    };

    explicit WatchedFilms(QObject* parent);
    ~WatchedFilms() override;

    void setPace(const Pace& pace);
    /// Watches the folder of a race and, where that is another one, a card with the folders in it.
    /// Nothing where `here` is empty.
    void watch(const QString& here, const QString& card);
    /// Looks once more as soon as it can.
    void lookSoon() { m_soon.start(); }
    /// A film in the race's folder was named anew.
    void rename(const QString& film, const QString& now);

    /// In the folder of the race, and on the card by their paths there; growing ones included.
    [[nodiscard]] const std::vector<FilmFile>& here() const { return m_here.files; }
    [[nodiscard]] const std::vector<FilmFile>& card() const { return m_card.files; }
    /// Of a film that is whole.
    [[nodiscard]] const RecordedFilm& recording(const FilmFile& film, bool isHere) const;
    [[nodiscard]] const QString& cardFolder() const { return m_card.folder; }
    /// Whether there is a card to be watched that is not there now.
    [[nodiscard]] bool isCardAway() const { return !m_card.folder.isEmpty() && !m_card.isThere; }
    [[nodiscard]] int growing() const;

signals:
    /// Other films are there, or one came to be whole.
    void changed();

private:
    void look();
    void take(WatchedFolder here, WatchedFolder card);
    void watchFolders();

    Pace m_pace;
    WatchedFolder m_here;
    WatchedFolder m_card;
    std::vector<std::pair<std::string, std::string>> m_renamed; ///< while a look goes on
    bool m_isLooking = false;
    int m_watch = 0; ///< number of the folders that are watched now
    QTimer m_regular;
    QTimer m_soon;
    QFileSystemWatcher m_watcher;
    BackgroundWork m_work;
};

} // namespace kavela::desktop
