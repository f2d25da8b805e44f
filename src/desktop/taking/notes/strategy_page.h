#pragma once

#include "desktop/taking/notes/note_page.h"
#include "splittaking/annotations/strategies.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTableWidget;

namespace kavela::desktop {

class CellDelegate;

/// Ways of paddling a section, compared by their times. A way is timed by two marks on the film, by
/// the section's time in a run of the file, or by hand.
class StrategyPage : public NotePage {
    Q_OBJECT

public:
    explicit StrategyPage(NoteDesk& desk);

    [[nodiscard]] std::optional<Alert> refusal() const override;
    void refresh() override;
    void forget() override;
    /// Where the way in hand begins, then where it ends.
    void mark(const Stamps& stamps) override;
    /// Removes the way in hand; where there is none, the comparison.
    [[nodiscard]] bool removeCurrent() override;

private:
    void makeParts();
    [[nodiscard]] const strategy001* strategy() const;
    [[nodiscard]] std::optional<std::size_t> option() const;
    void change(const QString& what, const std::function<void(strategy001&)>& act);
    void addComparison();
    void addWay();
    void takeCell(int row, int column);
    void takeSeconds(std::size_t option, const QString& text);
    void takeSectionTime();
    void setInHand(std::size_t option);
    void showComparisons();
    void showOptions();
    void showChoices();
    void showNextMark();

    int m_owner = -1;             ///< run that is shown
    std::size_t m_strategy = 0;   ///< in hand
    std::optional<CMTime> m_from; ///< where the way in hand begins, until its end is marked
    QComboBox* m_comparisons = nullptr;
    QComboBox* m_title = nullptr;
    QLabel* m_next = nullptr;
    QTableWidget* m_options = nullptr;
    CellDelegate* m_cells = nullptr;
    QLineEdit* m_newOption = nullptr;
    QComboBox* m_run = nullptr;
    QComboBox* m_section = nullptr;
    QPushButton* m_take = nullptr;
    QLabel* m_cost = nullptr;
    QLineEdit* m_comment = nullptr;
};

} // namespace kavela::desktop
