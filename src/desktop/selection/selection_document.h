#pragma once

#include "desktop/shell/document.h"
#include "results/selection_edit.h"
#include "results/selection_ranking.h"
#include "results/selection_records.h"

namespace kavela::desktop {

template <>
struct LargeParts<selectionracesStruct_v3> {
    static constexpr auto lists = std::tuple([](auto& races) -> auto& { return races.categories; });
    static constexpr auto wholes = std::tuple();
};

/// A selection file that is being edited: percentages and scores always follow the results. The
/// athletes stay in the order of the file while it is edited, so that the place of one is good for
/// several edits; its content has them in the order of the score. In what-if mode edits go into a
/// copy that is thrown away afterwards.
class SelectionDocument : public Document<selectionracesStruct_v3> {
    Q_OBJECT

public:
    using Document::Document;
    ~SelectionDocument() override { keepPending(); }

    /// Opens a file of any layout; one of an older layout is rewritten, with its previous content
    /// kept.
    [[nodiscard]] FileReading reading(const QString& path, QWidget* over);
    /// A new selection of a season; the path is where saving will propose to put it.
    void startNew(const QString& path, std::int64_t year, QWidget* over);

    /// The document as it is shown: the real one, or the one of what-if mode.
    [[nodiscard]] const selectionracesStruct_v3& shown() const;
    /// An edit of what is shown.
    void change(const QString& what, const std::function<void(selectionracesStruct_v3&)>& act);

    /// Which kind of bonus counts; none while bonuses are switched off.
    [[nodiscard]] BonusKind bonus() const { return m_bonus; }
    void setBonus(BonusKind bonus);
    /// Which times the table compares.
    [[nodiscard]] SelectionTimes times() const { return m_times; }
    void setTimes(SelectionTimes times);

    [[nodiscard]] bool isWhatIf() const { return m_whatIf.has_value(); }
    /// Begins or ends the what-if mode. What was tried is thrown away at its end.
    void setWhatIf(bool isOn);

protected:
    [[nodiscard]] QString summary() const override;
    [[nodiscard]] Content contentNow() const override;
    [[nodiscard]] bool recover(const std::string& content) override;
    [[nodiscard]] std::string failure() const override;
    void settle(selectionracesStruct_v3& value) override;

private:
    BonusKind m_bonus;
    SelectionTimes m_times = SelectionTimes::Official;
    std::optional<selectionracesStruct_v3> m_whatIf;
};

} // namespace kavela::desktop
