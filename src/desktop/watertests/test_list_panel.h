#pragma once

#include "desktop/shell/tables/column_model.h"
#include "desktop/watertests/listed_test.h"

#include <QWidget>

#include <optional>
#include <set>

class QComboBox;

namespace kavela::desktop {

class ColumnTable;
class TestsDocument;

/// The list of the tests, of everybody or of one athlete, of every kind or of one, with a tick at
/// those that are laid over each other.
class TestListPanel : public QWidget {
    Q_OBJECT

public:
    explicit TestListPanel(TestsDocument& document, QWidget* parent = nullptr);

    /// The test that is chosen.
    [[nodiscard]] std::optional<TestId> current() const;
    void choose(TestId id);
    /// The rows that are selected, and all that are listed, in their order.
    [[nodiscard]] std::vector<TestId> selected() const;
    [[nodiscard]] std::vector<TestId> listed() const;
    /// The ticked ones, in the order of the file.
    [[nodiscard]] std::vector<TestId> ticked() const;
    void tickAll(bool isTicked);
    /// Ticks every test of the kind and the athlete of the chosen one, and no other.
    void tickHistory();
    /// Moves the choice by rows, within the list.
    void move(int rows);

    [[nodiscard]] ColumnTable& table() const { return *m_table; }
    [[nodiscard]] QComboBox& athleteFilter() const { return *m_athlete; }

signals:
    /// Another test was chosen, or the ticks changed.
    void chosen();
    /// The list shows other tests.
    void listChanged();

private:
    using Test = TestList::value_type;

    [[nodiscard]] std::vector<Column<Test, TestId>> columns();
    void makeTable();
    void fillAthletes();
    void filter();
    void setTicked(const std::vector<TestId>& tests, bool isTicked);
    [[nodiscard]] std::vector<TestId> idsOf(const std::vector<int>& places) const;

    TestsDocument& m_document;
    ColumnModel<Test, TestId> m_model;
    QComboBox* m_athlete;
    QComboBox* m_kind;
    ColumnTable* m_table;
    std::set<TestId> m_ticked;
    std::optional<TestId> m_kept; ///< stays listed though it may no longer fit
};

} // namespace kavela::desktop
