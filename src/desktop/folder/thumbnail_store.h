#pragma once

#include "desktop/shell/background_work.h"

#include <QHash>
#include <QImage>
#include <QObject>
#include <QSet>
#include <QStringList>

#include <optional>

namespace kavela::desktop {

/// What a film looks like in small, and how long it is.
struct FilmLook {
    QImage picture = {}; ///< null where none can be made
    QImage small = {};   ///< the same for a line of a list, in the middle of SmallBox
    std::optional<double> seconds = {}; ///< nothing where the film does not tell
    QString fault = {};                 ///< why there is no picture
};

/// Makes the small pictures of films beside the window, two at a time, those that were asked for
/// last first, and keeps them on the disk by path, size and date of the film.
class ThumbnailStore : public QObject {
    Q_OBJECT

public:
    /// The size that pictures fit into.
    static constexpr QSize Box{240, 135};
    /// The size of those for a line of a list: twice that of the line, for fine screens.
    static constexpr QSize SmallBox{128, 72};

    /// Pictures are kept in the folder, which is made when the first one is; in none without.
    explicit ThumbnailStore(QString folder, QObject* parent = nullptr);

    /// Films to be looked at in this order; those asked for before wait no more.
    void ask(const QStringList& films);
    /// Null as long as the film was not looked at.
    [[nodiscard]] const FilmLook* lookOf(const QString& film) const;
    /// The film has another name now.
    void rename(const QString& from, const QString& to);
    /// All are to be looked at anew, such as films that were changed.
    void forget();

signals:
    void looked(const QString& film);

private:
    void startNext();

    QString m_folder;
    QStringList m_waiting;
    QSet<QString> m_running;
    QHash<QString, FilmLook> m_looks;
    int m_generation = 0; ///< what was begun before forget() counts no more
    BackgroundWork m_work;
};

/// Where the pictures of this user are kept.
[[nodiscard]] QString userThumbnailFolder();

} // namespace kavela::desktop
