#pragma once

#include "desktop/shell/tables/column_model.h"
#include "desktop/splitfile/code_form.h"
#include "desktop/taking/notes/note_page.h"
#include "splittaking/annotations/gate_marks.h"

class QCheckBox;
class QLabel;

namespace kavela::desktop {

/// An upstream gate of the course, with what the run has of it.
struct UpstreamRow {
    std::int64_t gate = 0;
    std::optional<upstreamdata025> taken;
};

/// The upstream gates of a run: the gate in front is marked at its entrance, its pole line where
/// that is wanted, and its exit; the next gate follows by itself.
class UpstreamPage : public NotePage {
    Q_OBJECT

public:
    explicit UpstreamPage(NoteDesk& desk);

    [[nodiscard]] std::optional<Alert> refusal() const override;
    void enter() override;
    void refresh() override;
    void showFrame() override;
    [[nodiscard]] std::optional<MarkKind> kind() const override { return MarkKind::Upstream; }
    void mark(const Stamps& stamps) override;
    void choose(const LaneMark& mark) override;
    /// Takes out the entry of the gate that was clicked with its marks, or one without marks.
    [[nodiscard]] bool removeCurrent() override;
    bool stepGate(int step) override;

private:
    [[nodiscard]] std::optional<std::int64_t> gate() const;
    [[nodiscard]] const upstreamdata025* entry() const;
    [[nodiscard]] std::optional<GateMark> nextMark() const;
    void goOn();
    void showTable();
    void clickGate(int place);
    void change(const std::function<void(upstreamdata025&)>& act);

    QLabel* m_front;
    QLabel* m_times;
    QCheckBox* m_withMiddle;
    CodeForm<upstreamdata025> m_turn;
    ColumnModel<UpstreamRow> m_gates;
    ColumnTable* m_table;
    /// The gate whose row was clicked, and the run: that is what keys mean as long as it is in
    /// front.
    std::optional<std::pair<int, std::int64_t>> m_clicked;
};

} // namespace kavela::desktop
