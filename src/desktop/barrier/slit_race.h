#pragma once

#include "common/cm_time.h"
#include "desktop/shell/tool_window.h"
#include "desktop/splitfile/taking_document.h"

#include <QObject>
#include <QPointer>
#include <QString>

#include <optional>
#include <vector>

namespace kavela::desktop {

/// A run that is seen on the film, at one of its lines.
struct SlitRun {
    int run = 0;
    QString crew;
    QString details;                    ///< category and phase
    std::optional<double> seconds = {}; ///< where it was marked, in seconds of the film
};

/// The race that the marks of a slit picture belong to. Its document is that of split taking, so
/// that both windows see every mark at once, and undo the same steps.
class SlitRace : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    void setFilm(const QString& film); ///< its path
    /// The document lives in a window of its own, which saves it and takes its steps back.
    void setDocument(TakingDocument& document, ToolWindow& owner);
    [[nodiscard]] bool isThere() const { return !m_document.isNull(); }
    [[nodiscard]] TakingDocument* document() const { return m_document; }
    [[nodiscard]] QString name() const; ///< of the file; empty without one

    /// "2: Bridge", or "Start" for 0.
    [[nodiscard]] QString titleOf(std::size_t split) const;
    /// How many splits the course has; 0 without a race.
    [[nodiscard]] std::size_t splits() const;

    /// The runs with this film in the order of the list, which is that of their starts.
    [[nodiscard]] std::vector<SlitRun> runs(std::size_t split) const;
    /// Makes the mark of a split at a frame, in one step; `beside` is the part of a second that its
    /// time is to be finer than the frame. Returns why not; empty when it is made.
    [[nodiscard]] QString mark(int run, std::size_t split, const CMTime& stamp,
                               std::optional<double> beside = {});
    [[nodiscard]] QString unmark(int run, std::size_t split);

    void undo();
    void redo();
    void save();

signals:
    void changed();
    void stepped(int steps); ///< how many steps of the document are taken now
    void replaced();         ///< by another document, or by none

private:
    void leave();

    QString m_film; ///< its name without folder
    QPointer<TakingDocument> m_document;
    QPointer<ToolWindow> m_owner;
};

/// The split file in a film's folder, or the folder where it has none; empty for no film.
[[nodiscard]] QString raceFileOf(const QString& film);

} // namespace kavela::desktop
