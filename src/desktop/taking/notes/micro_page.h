#pragma once

#include "desktop/shell/tables/column_model.h"
#include "desktop/taking/notes/note_page.h"

namespace kavela::desktop {

/// A micro split, timed from the start of the run and from the one before it, in seconds.
struct MicroRow {
    std::size_t number = 0; ///< counted from 1
    double seconds = 0;
    double sinceBefore = 0;
};

/// Micro splits: marks between the splits, timed from the start of the run.
class MicroPage : public NotePage {
    Q_OBJECT

public:
    explicit MicroPage(NoteDesk& desk);

    void refresh() override;
    [[nodiscard]] std::optional<MarkKind> kind() const override { return MarkKind::MicroSplit; }
    void mark(const Stamps& stamps) override;
    void choose(const LaneMark&) override { showChosen(); }
    void unchoose() override { showChosen(); }

private:
    void showChosen();

    ColumnModel<MicroRow> m_micros;
    ColumnTable* m_table;
};

} // namespace kavela::desktop
