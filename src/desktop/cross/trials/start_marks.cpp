#include "desktop/cross/trials/start_marks.h"

#include <QUndoCommand>

namespace kavela::desktop {

class StartMarks::Step : public QUndoCommand {
public:
    Step(const QString& what, StartMarks& marks, Starts after)
        : QUndoCommand(what), m_marks(marks), m_before(marks.m_starts), m_after(std::move(after)) {}

    void undo() override { show(m_before); }
    void redo() override { show(m_after); }

private:
    void show(const Starts& starts) {
        m_marks.m_starts = starts;
        m_marks.m_changed();
    }

    StartMarks& m_marks;
    Starts m_before;
    Starts m_after;
};

std::optional<CMTime> StartMarks::of(std::size_t trial) const {
    const auto found = m_starts.find(trial);
    return found == m_starts.end() ? std::nullopt : std::optional(found->second);
}

StartMarks::Starts StartMarks::with(std::size_t trial, const std::optional<CMTime>& start) const {
    Starts starts = m_starts;
    if (start)
        starts[trial] = *start;
    else
        starts.erase(trial);
    return starts;
}

StartMarks::Starts StartMarks::without(std::size_t trial) const {
    Starts starts;
    for (const auto& [place, start] : m_starts)
        if (place != trial)
            starts.emplace(place > trial ? place - 1 : place, start);
    return starts;
}

void StartMarks::set(QUndoStack& stack, const QString& what, Starts starts,
                     const std::function<void()>& edit) {
    const bool isOther = starts != m_starts;
    if (isOther && edit)
        stack.beginMacro(what);
    if (isOther)
        stack.push(new Step(what, *this, std::move(starts)));
    if (edit)
        edit();
    if (isOther && edit)
        stack.endMacro();
}

} // namespace kavela::desktop
