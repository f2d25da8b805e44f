#pragma once

#include "desktop/shell/tables/column_model.h"
#include "desktop/taking/notes/note_page.h"
#include "splittaking/annotations/penalty_details.h"

class QLabel;
class QPushButton;

namespace kavela::desktop {

class CodeCombo;

/// The penalties of a run in detail. The marking key adds one to the gate in front; penalties have
/// no moment on the film.
class PenaltyPage : public NotePage {
    Q_OBJECT

public:
    explicit PenaltyPage(NoteDesk& desk);

    void forget() override;
    void refresh() override;
    void mark(const Stamps& stamps) override;
    [[nodiscard]] bool needsFrame() const override { return false; }
    [[nodiscard]] bool removeCurrent() override;

private:
    void addCodes();
    void chooseAtGate();
    void showChosen();
    void showOutOfStep();
    void choose(int row);
    void begin();
    void change(PenaltyField field, std::int64_t code);
    [[nodiscard]] std::int64_t codeOf(PenaltyField field) const;

    QLabel* m_front;
    QLabel* m_outOfStep;
    QPushButton* m_another;
    std::array<CodeCombo*, PenaltyFields> m_codes{}; ///< by field; none for the gate
    ColumnModel<PenaltyEntry> m_entries;
    ColumnTable* m_table;
    std::optional<PenaltyHandle> m_chosen;
    std::optional<std::int64_t> m_chosenGate; ///< of the one chosen, which another may follow there
    int m_gate = 0;                           ///< that was in front when a penalty was chosen
    int m_run = -1;
    bool m_isBeginning = false; ///< another penalty at the gate in front, beside those it has
};

} // namespace kavela::desktop
