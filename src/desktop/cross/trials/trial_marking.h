#pragma once

#include "desktop/cross/trials/trial_desk.h"

#include <QCoreApplication>

namespace kavela::desktop {

/// What the keys of marking do on the film of the trial in front, in each mode, and what is said of
/// it.
class TrialMarking {
    Q_DECLARE_TR_FUNCTIONS(TrialMarking)

public:
    /// Questions are asked over the window of `page`.
    TrialMarking(TrialDesk& desk, const QWidget& page);

    void mark(const CMTime& moment);
    /// The selected mark.
    void move(const CMTime& moment);
    /// The selected mark; without one the gate in front, once it has none.
    void remove();
    /// Goes to the split, the gate or the part of the roll of that number.
    void goToNumber(int number);

    /// What the marking key marks next, or why it marks nothing.
    [[nodiscard]] QString nextText() const;
    /// From where the time runs along with the film; nothing when nothing is being timed.
    [[nodiscard]] std::optional<CMTime> runningFrom() const;

private:
    void markSplit(const CMTime& moment);
    void markGate(const CMTime& moment);
    void markRoll(const CMTime& moment);
    [[nodiscard]] bool mayMarkAnew() const;
    void moveSelected(const TrialMark& mark, const CMTime& moment);
    void removeSelected(const TrialMark& mark);
    void removeGate();
    bool refuses(const std::optional<std::string>& why);
    [[nodiscard]] std::optional<std::string> refusalToMove(const TrialMark& mark,
                                                           const CMTime& moment) const;

    TrialDesk& m_desk;
    const QWidget& m_page;
};

} // namespace kavela::desktop
