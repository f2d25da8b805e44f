#pragma once

#include "desktop/people/found_lines.h"
#include "desktop/shell/entry_dialog.h"
#include "desktop/team/takeover/take_over.h"

#include <functional>
#include <map>

class QComboBox;
class QCheckBox;
class QDateEdit;
class QFormLayout;
class QLabel;
class QLineEdit;
class QPushButton;

namespace kavela::desktop {

class FoundLinesView;
class WholeBox;

/// What a file has for the athletes of the team, to be ticked line by line before anything is
/// written, with what it replaces; and who stays out, with the reason. Crews that no name of the
/// team fits are given to an athlete by hand, or added to the team.
class TakeOverDialog : public EntryDialog {
    Q_OBJECT

public:
    /// Results of a split file.
    TakeOverDialog(const myTeamToSaveStruct& team, FoundRace race, QWidget* parent);
    /// Results of an official list, which says neither category nor phase nor day; `present` is
    /// the moment to start from, `category` the one to propose.
    TakeOverDialog(const myTeamToSaveStruct& team, ResultsList list, const std::string& category,
                   ReferenceDate present, QWidget* parent);

    /// What was chosen.
    [[nodiscard]] const std::vector<PlannedResult>& planned() const { return m_plan; }
    [[nodiscard]] RaceName name() const;
    [[nodiscard]] std::size_t tickedCount() const;

    [[nodiscard]] FoundLines& lines() { return m_lines; }
    [[nodiscard]] FoundLinesView& view() { return *m_view; }

private:
    TakeOverDialog(const myTeamToSaveStruct& team, QWidget* parent);
    void makeRace(QFormLayout& form, const FoundRace& race);
    void makeListFacts(QFormLayout& form, const std::string& category, ReferenceDate present);
    void finish(QFormLayout* form);
    void plan();
    void showPlan();
    [[nodiscard]] FoundLine lineOf(const PlannedResult& planned) const;
    void choose(const CrewOfFile& crew, const Belonging& whose);
    void tick(std::size_t line, bool isTicked);
    void showCount();
    void tickAll(bool isTicked);

    const myTeamToSaveStruct& m_team;
    std::function<FoundRace()> m_read;
    FoundLines m_lines;
    ChosenByHand m_chosen;
    /// What was ticked and unticked by hand: crew, and the phase of the run or nothing.
    std::map<std::pair<CrewOfFile, std::string>, bool> m_ticks;
    std::vector<PlannedResult> m_plan;
    std::vector<SkippedLine> m_skipped; ///< of a list
    QComboBox* m_event = nullptr;
    QLineEdit* m_location = nullptr;
    WholeBox* m_year = nullptr;
    QComboBox* m_category = nullptr;
    QComboBox* m_phase = nullptr;
    QDateEdit* m_date = nullptr;
    QCheckBox* m_isFinal = nullptr;
    FoundLinesView* m_view;
    QLabel* m_note = nullptr;
    QPushButton* m_take = nullptr;
};

} // namespace kavela::desktop
