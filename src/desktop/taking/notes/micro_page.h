#pragma once

#include "desktop/taking/notes/note_page.h"

class QTableWidget;

namespace kavela::desktop {

/// Micro splits: marks between the splits, timed from the start of the run.
class MicroPage : public NotePage {
    Q_OBJECT

public:
    explicit MicroPage(NoteDesk& desk);

    void refresh() override;
    [[nodiscard]] std::optional<MarkKind> kind() const override { return MarkKind::MicroSplit; }
    void mark(const Stamps& stamps) override;

private:
    QTableWidget* m_table;
};

} // namespace kavela::desktop
