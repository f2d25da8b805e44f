#pragma once

#include "desktop/watertests/test_list_model.h"

#include <QWidget>

#include <optional>

class QComboBox;
class QTableView;

namespace kavela::desktop {

class TestFilter;

/// The list of the tests, of everybody or of one athlete, of every kind or of one.
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

    [[nodiscard]] QTableView& table() const { return *m_table; }
    [[nodiscard]] QComboBox& athleteFilter() const { return *m_athlete; }

signals:
    /// Another test was chosen, or the ticks changed.
    void chosen();
    /// The list shows other tests.
    void listChanged();

private:
    void makeTable();
    void fillAthletes();
    void filter();
    void keepOneChosen();
    [[nodiscard]] TestId idAt(const QModelIndex& index) const;

    TestsDocument& m_document;
    TestListModel m_model;
    TestFilter* m_shown;
    QComboBox* m_athlete;
    QComboBox* m_kind;
    QTableView* m_table;
    std::optional<TestId> m_chosen;
    int m_place = 0; ///< the row to choose where the chosen test is gone
};

} // namespace kavela::desktop
