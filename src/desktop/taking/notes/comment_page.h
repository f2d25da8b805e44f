#pragma once

#include "desktop/taking/notes/note_page.h"

class QCheckBox;
class QDoubleSpinBox;
class QSpinBox;

namespace kavela::desktop {

/// The coach's words on each split, the scores of the run and its give-ups.
class CommentPage : public NotePage {
    Q_OBJECT

public:
    explicit CommentPage(NoteDesk& desk);

    void commit() override;
    void refresh() override;
    void mark(const Stamps&) override {}

private:
    void addScores();
    void takeComment(int row, int column);

    QCheckBox* m_isVisible;
    QTableWidget* m_table;
    QDoubleSpinBox* m_athletesScore;
    QDoubleSpinBox* m_coachsScore;
    QSpinBox* m_giveUps;
};

} // namespace kavela::desktop
