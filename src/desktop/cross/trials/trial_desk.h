#pragma once

#include "desktop/cross/cross_page.h"
#include "desktop/cross/trials/trial_marks.h"

#include <QObject>

#include <functional>
#include <memory>

namespace kavela::desktop {

/// Which trial, mode, gate and mark of the page of trials are in front, through every change of the
/// document; and the one way to change that trial.
class TrialDesk : public QObject {
    Q_OBJECT

public:
    explicit TrialDesk(const CrossDesk& desk);

    [[nodiscard]] const CrossDesk& desk() const { return m_desk; }
    /// The place of the trial in the file; nothing without one.
    [[nodiscard]] std::optional<std::size_t> place() const { return m_trial; }
    /// Null without one.
    [[nodiscard]] const ttdata030* trial() const;
    [[nodiscard]] TrialMode mode() const { return m_mode; }
    /// The upstream gate that is marked next.
    [[nodiscard]] std::optional<std::int64_t> gate() const { return m_gate; }
    /// What the trial has of it; null for nothing.
    [[nodiscard]] const ttupstream030* upstream() const;
    /// The mark that the marking key takes at the gate in front or the roll.
    [[nodiscard]] std::optional<GateMark> nextGateMark() const;

    /// With a start that stands beside the document, as long as there is no split.
    [[nodiscard]] RunMarks runMarks() const;
    [[nodiscard]] std::vector<TrialMark> marks() const;
    /// Of those marks, by its place; nothing when it is gone.
    [[nodiscard]] std::optional<std::size_t> selectedMark() const;
    [[nodiscard]] const std::optional<TrialMark>& selected() const { return m_selected; }

    /// Looks for what is in front in another content of the document; true when the trial is gone,
    /// so that another one comes to the front as if it had been chosen.
    [[nodiscard]] bool follow();
    /// Brings a trial to the front that is there.
    void open(std::size_t trial);
    /// Brings the mode of the mark, and its gate in front.
    void select(const TrialMark& mark);
    void selectWhere(const std::function<bool(const TrialMark&)>& isIt);
    /// Shows its frame, too.
    void goTo(const TrialMark& mark);
    /// Without a word: the mark is about to go.
    void dropSelection() { m_selected.reset(); }
    void setMode(TrialMode mode);
    void setGate(std::optional<std::int64_t> gate);
    /// Brings the first upstream gate in front that is not marked yet; without one the front stays.
    void goOn();
    /// Whether the pole line of a gate is to be marked, too.
    void setWantsMiddle(bool wantsMiddle);

    // Every edit is one step that can be undone.
    void edit(const QString& what, const std::function<void(ttdata030&)>& change);
    void setRunMarks(const QString& what, const RunMarks& marks);

signals:
    void trialChanged(); ///< there is other to show of the trial
    void frontChanged(); ///< another mode or gate is in front, or another mark comes next
    void marksChanged();
    void told(const QString& text);
    void flashed(const QString& text);

private:
    [[nodiscard]] bool followTrial();
    void followMark();
    void followGate();
    void forgetSelection();
    void bringGate();

    CrossDesk m_desk;
    QString m_path; ///< of the document that is shown
    std::optional<std::size_t> m_trial;
    TrialMode m_mode = TrialMode::Splits;
    std::optional<std::int64_t> m_gate;
    std::optional<TrialMark> m_selected;
    bool m_wantsMiddle = true;
    std::shared_ptr<const crossdata030> m_seen; ///< the content that is shown
    std::vector<TrialMark> m_seenMarks;         ///< of the trial in front
};

} // namespace kavela::desktop
