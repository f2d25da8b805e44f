#pragma once

#include "desktop/shell/forms/record_form.h"
#include "desktop/shell/tables/column_model.h"
#include "desktop/taking/notes/note_page.h"
#include "splittaking/annotations/strategies.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace kavela::desktop {

/// One of the ways that are compared.
struct WayRow {
    StrategyOption way;
    double gap = 0; ///< seconds behind the best one
};

/// Ways of paddling a section, compared by their times. A way is timed by two marks on the film, by
/// the section's time in a run of the file, or by hand.
class StrategyPage : public NotePage {
    Q_OBJECT

public:
    explicit StrategyPage(NoteDesk& desk);

    [[nodiscard]] std::optional<Alert> refusal() const override;
    void commit() override;
    void refresh() override;
    void forget() override;
    /// Where the way in hand begins, then where it ends.
    void mark(const Stamps& stamps) override;
    /// Removes the way in hand; where there is none, the comparison.
    [[nodiscard]] bool removeCurrent() override;

private:
    [[nodiscard]] std::vector<Column<WayRow>> columns();
    void makeTable();
    void makeParts();
    void makeLayout();
    [[nodiscard]] const strategy001* strategy() const;
    [[nodiscard]] std::optional<std::size_t> option() const;
    void change(const QString& what, const std::function<void(strategy001&)>& act);
    void addComparison();
    void addWay();
    void takeSectionTime();
    void setInHand(std::size_t option);
    void showComparisons();
    void showOptions(bool isOther);
    void showChoices();
    void showNextMark();

    /// Where a way begins, until its end is marked or another one comes to hand.
    struct Begun {
        std::size_t option = 0;
        CMTime from;
    };

    int m_owner = -1;           ///< run that is shown
    std::size_t m_strategy = 0; ///< in hand
    std::optional<Begun> m_begun;
    ColumnModel<WayRow> m_ways;
    ColumnTable* m_table;
    RecordForm<strategy001> m_words;
    std::optional<std::pair<int, std::size_t>> m_shown; ///< run and comparison
    QComboBox* m_comparisons = nullptr;
    QComboBox* m_title = nullptr;
    QLabel* m_next = nullptr;
    QLineEdit* m_newOption = nullptr;
    QComboBox* m_run = nullptr;
    QComboBox* m_section = nullptr;
    QPushButton* m_take = nullptr;
    QLabel* m_cost = nullptr;
};

} // namespace kavela::desktop
