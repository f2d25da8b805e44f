#pragma once

#include "desktop/taking/notes/note_page.h"

class QCheckBox;
class QDoubleSpinBox;
class QSpinBox;

namespace kavela::desktop {

class RadioBox;

/// The coach's words on each split, the scores of the run, its give-ups and its team radio.
class CommentPage : public NotePage {
    Q_OBJECT

public:
    explicit CommentPage(NoteDesk& desk);

    void commit() override;
    void refresh() override;
    void mark(const Stamps&) override {}
    /// Begins or ends a recording of the team radio.
    void recordRadio();

private:
    void addScores();
    void addRadio();
    void takeComment(int row, int column);

    QCheckBox* m_isVisible;
    QTableWidget* m_table;
    QDoubleSpinBox* m_athletesScore;
    QDoubleSpinBox* m_coachsScore;
    QSpinBox* m_giveUps;
    RadioBox* m_radio;
};

} // namespace kavela::desktop
