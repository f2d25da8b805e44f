#pragma once

#include "vision/slit_file.h"

#include <QObject>
#include <QString>

#include <exception>
#include <functional>
#include <optional>
#include <vector>

namespace kavela::desktop {

/// The lines of another film of the same folder.
struct SlitNeighbour {
    QString film; ///< its name without ending
    slitfile002 file;
};

/// The lines over a film, what was refused on them and what was found there, in a file beside the
/// film. It is written at every change, beside the window.
class SlitKeeping : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    /// Reads what belongs to a film, beside the window; nothing where it has no lines yet, but the
    /// point that is timed in the folder. What cannot be read is told, and is put aside under
    /// another name before lines are written there.
    void open(const QString& film);
    /// The film of the folder whose lines were changed last; null where no other one has any.
    [[nodiscard]] const SlitNeighbour* neighbour() const {
        return m_neighbour ? &*m_neighbour : nullptr;
    }
    [[nodiscard]] const slitfile002& file() const { return m_file; }
    /// Changes and writes it; refused as long as it is being read.
    void edit(const std::function<void(slitfile002&)>& change);
    /// The same for lines as they were before an edit, or after one that was taken back: not told
    /// as another edit.
    void putBack(slitfile002 file);
    /// What was found, which is no step of its own and stays when lines are put back.
    void keepSearches(std::vector<slitsearch001> searches);

signals:
    void opened(); ///< another film, whose lines are still to come
    /// Something is not as it was; ahead of changed().
    void edited(const slitfile002& before);
    void changed();
    /// It could not be read or written, and why; the next change tries to write again.
    void failed(const QString& why);

private:
    struct Read {
        std::optional<slitfile002> file;
        std::optional<SlitNeighbour> neighbour;
    };

    void takeRead(Read read, const QString& name, const std::exception_ptr& fault);
    void write();

    QString m_film;
    slitfile002 m_file;
    std::optional<SlitNeighbour> m_neighbour;
    int m_readings = 0; ///< how often a film was opened
    bool m_isReading = false;
    bool m_isUnreadable = false; ///< what stands under the name was not made by this window
};

} // namespace kavela::desktop
