#pragma once

#include "desktop/cross/cross_page.h"
#include "desktop/cross/trials/trial_marks.h"

#include <memory>

class QComboBox;
class QLabel;
class QStackedWidget;
class QTabBar;
class QTableWidget;

namespace kavela::desktop {

class GateForm;
class RollForm;
class TrialList;

/// The time trials of a cross race on film: splits, upstream gates and the roll of one boat at a
/// time, their ranking, and the heats that follow from it. What the marking key marks next is
/// always said.
class TrialPage : public CrossPage {
    Q_OBJECT

public:
    explicit TrialPage(const CrossDesk& desk);

    void refresh() override;
    void showFrame() override;
    void commit() override;

    [[nodiscard]] QString film() const override;
    [[nodiscard]] std::vector<LineMark> marks() const override;
    [[nodiscard]] std::optional<std::size_t> selectedMark() const override;
    /// Brings the mode of the mark, and its gate in front.
    void selectMark(std::size_t mark) override;
    /// The last split; gates and rolls stand beside each other.
    [[nodiscard]] std::optional<std::size_t> lastMark() const override;
    /// At those of the present mode.
    [[nodiscard]] bool stopsAt(std::size_t mark) const override;

    void mark(const CMTime& moment) override;
    void moveMark(const CMTime& moment) override;
    /// Without a selected mark the gate in front, once it has none.
    void removeMark() override;
    void stepRow(int step) override;
    /// In the mode of the upstream gates.
    bool stepGate(int step) override;
    /// Goes to the split, the gate or the part of the roll of that number.
    void pressNumber(int number) override;

    /// The trial in front, by its place in the file; nothing without one.
    [[nodiscard]] std::optional<std::size_t> trial() const { return m_trial; }
    void selectTrial(std::size_t trial);
    [[nodiscard]] TrialMode mode() const { return m_mode; }
    void setMode(TrialMode mode);
    /// The upstream gate that is marked next.
    [[nodiscard]] std::optional<std::int64_t> gate() const { return m_gate; }

    /// Puts the cursor where the name of a new athlete is typed, or of the one in front.
    void startAdding();
    void startRenaming();
    /// Adds a trial for each film of the folder that no trial has yet, named after the film.
    void addFilms(const QStringList& names);
    /// Gives the trial in front another film of the folder.
    void setFilm(const QString& name) override;
    void removeTrial();
    /// Makes heats of as many boats as chosen beside the button; heats that exist stay.
    void makeHeats();

signals:
    void filmWanted(); ///< for the trial in front: setFilm() takes it
    void heatsMade();

private:
    [[nodiscard]] QWidget* makeSeeding();
    [[nodiscard]] QWidget* makeModes();
    void connectParts();
    void connectForms();

    [[nodiscard]] const ttdata030* record() const;
    [[nodiscard]] RunMarks runMarks() const;
    [[nodiscard]] std::vector<TrialMark> trialMarks() const;
    [[nodiscard]] const ttupstream030* upstream() const;
    /// The mark that the marking key takes at the gate in front or the roll.
    [[nodiscard]] std::optional<GateMark> nextGateMark() const;
    [[nodiscard]] QString frontText() const;
    [[nodiscard]] std::optional<CMTime> runningFrom() const;

    [[nodiscard]] bool followTrial();
    void followMark();
    void showTrial();
    void showMode();
    void select(const TrialMark& mark);
    void selectWhere(const std::function<bool(const TrialMark&)>& isIt);
    void forgetSelection();
    void goTo(const TrialMark& mark);

    void addTrial(const QString& athlete, const QString& film);
    void rename(std::size_t trial, const QString& athlete);
    void editTrial(const QString& what, const std::function<void(ttdata030&)>& change);
    void setRunMarks(const QString& what, const RunMarks& marks);
    void markSplit(const CMTime& moment);
    void markGate(const CMTime& moment);
    void markRoll(const CMTime& moment);
    [[nodiscard]] bool mayMarkAnew() const;
    void setGate(std::optional<std::int64_t> gate);
    void bringGate();
    void goOn();
    bool refuses(const std::optional<std::string>& why);
    [[nodiscard]] std::optional<std::string> refusalToMove(const TrialMark& mark,
                                                           const CMTime& moment) const;

    QString m_path; ///< of the document that is shown
    std::optional<std::size_t> m_trial;
    TrialMode m_mode = TrialMode::Splits;
    std::optional<std::int64_t> m_gate;
    std::optional<TrialMark> m_selected;
    std::shared_ptr<const crossdata030> m_seen; ///< the content that is shown
    std::vector<TrialMark> m_seenMarks;         ///< of the trial in front

    TrialList* m_list;
    QComboBox* m_boats;
    QTabBar* m_bar;
    QLabel* m_front;
    QLabel* m_running;
    QStackedWidget* m_stack;
    QTableWidget* m_splits;
    GateForm* m_gates;
    RollForm* m_roll;
};

} // namespace kavela::desktop
