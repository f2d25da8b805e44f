#pragma once

#include "common/cm_time.h"

#include <QString>

#include <functional>
#include <map>
#include <optional>

class QUndoStack;

namespace kavela::desktop {

/// The start marks of time trials that have no split yet. A file tells the start of a trial only by
/// its time up to the last split, so that until then it is kept here. Changes are steps of the
/// document's undo stack, which must not use them once they are gone.
class StartMarks {
public:
    /// By the trial's place in the file.
    using Starts = std::map<std::size_t, CMTime>;

    /// `changed` is called whenever a start is another one, also by undoing.
    explicit StartMarks(std::function<void()> changed) : m_changed(std::move(changed)) {}

    [[nodiscard]] std::optional<CMTime> of(std::size_t trial) const;
    /// The starts with another one of a trial, or without it.
    [[nodiscard]] Starts with(std::size_t trial, const std::optional<CMTime>& start) const;
    /// The starts when a trial is gone and those behind it move up.
    [[nodiscard]] Starts without(std::size_t trial) const;

    /// Changes the starts in one step with an edit of the document, where there is one.
    void set(QUndoStack& stack, const QString& what, Starts starts,
             const std::function<void()>& edit = {});
    /// Forgets all of them, for another document.
    void clear() { m_starts.clear(); }

private:
    class Step;

    Starts m_starts;
    std::function<void()> m_changed;
};

} // namespace kavela::desktop
