#pragma once

#include "desktop/taking/notes/note_page.h"

class QCheckBox;
class QTableWidget;

namespace kavela::desktop {

class NumberBox;
class WholeBox;
class RadioBox;

/// The coach's words on each split, the scores of the run, its give-ups and its team radio.
class CommentPage : public NotePage {
    Q_OBJECT

public:
    explicit CommentPage(NoteDesk& desk);

    void commit() override;
    void refresh() override;
    /// Comments have no moment: the keys stay those of the splits.
    [[nodiscard]] bool takesMarks() const override { return false; }
    void mark(const Stamps&) override {}
    /// Begins or ends a recording of the team radio.
    void recordRadio();

private:
    void addScores();
    void addRadio();
    void takeComment(int row, int column);
    void goOn();

    QCheckBox* m_isVisible;
    QTableWidget* m_table;
    NumberBox* m_athletesScore;
    NumberBox* m_coachsScore;
    WholeBox* m_giveUps;
    RadioBox* m_radio;
};

} // namespace kavela::desktop
