#pragma once

#include "desktop/shell/forms/record_form.h"
#include "desktop/shell/tables/column_model.h"
#include "desktop/taking/notes/note_page.h"

class QCheckBox;

namespace kavela::desktop {

class RadioBox;

/// The comment on a split.
struct CommentRow {
    QString split;
    QString text;
};

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
    [[nodiscard]] std::vector<Column<CommentRow>> columns();
    void makeTable();
    void addFields();
    void addRadio();
    void goOn();

    int m_run = -1; ///< that is shown
    ColumnModel<CommentRow> m_comments;
    RecordForm<athletedata031> m_form;
    RecordForm<athletedata031> m_scores; ///< a row of it
    QCheckBox* m_isVisible;
    ColumnTable* m_table;
    RadioBox* m_radio;
};

} // namespace kavela::desktop
