#pragma once

#include "desktop/shell/tables/column_model.h"
#include "desktop/taking/notes/note_page.h"
#include "splittaking/annotations/strokes.h"

class QLabel;

namespace kavela::desktop {

class CodeCombo;

/// The strokes of a section.
struct StrokeRow {
    QString section;
    SectionStrokes strokes;
};

/// Strokes with their hand and style, the rate at the frame shown, and the strokes of each section.
class StrokePage : public NotePage {
    Q_OBJECT

public:
    explicit StrokePage(NoteDesk& desk);

    void refresh() override;
    void showFrame() override;
    [[nodiscard]] std::optional<MarkKind> kind() const override { return MarkKind::Stroke; }
    /// A stroke of the other hand than the one before.
    void mark(const Stamps& stamps) override;
    void markHand(const Stamps& stamps, HandCode hand);
    void choose(const LaneMark& mark) override;
    void unchoose() override { m_chosen.reset(); }
    /// Gives the chosen stroke the other hand.
    void swapChosen();

private:
    void changeStyle(std::int64_t style);

    QLabel* m_rate;
    CodeCombo* m_style;
    ColumnModel<StrokeRow> m_sections;
    std::optional<std::size_t> m_chosen; ///< stroke
};

} // namespace kavela::desktop
