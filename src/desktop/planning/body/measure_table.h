#pragma once

#include "desktop/planning/body/measure_model.h"

#include <QWidget>

#include <optional>

class QHBoxLayout;
class QLabel;
class QPushButton;
class QStackedWidget;
class QTableView;

namespace kavela::desktop {

/// A table of dated measurements that is edited by keys alone: Insert adds, Delete removes, typing
/// or F2 edits. Words stand in its place while there is nothing to show.
class MeasureTable : public QWidget {
    Q_OBJECT

public:
    /// `addText` is what the button says.
    MeasureTable(std::vector<MeasureColumn> columns, const QString& addText,
                 QWidget* parent = nullptr);

    /// Keeps the current cell at its measurement.
    void show(std::vector<MeasureRow> rows);
    using QWidget::show;
    /// What is told while there is no measurement; whether one can be added.
    void setEmptyText(const QString& text, bool canAdd);
    /// Another button beside those of the table.
    void addButton(QPushButton* button);

    /// The measurement of the current row.
    [[nodiscard]] std::optional<std::size_t> current() const;
    /// Makes a measurement the current one, and opens the first cell that can be typed into.
    void choose(std::size_t place);
    void edit(std::size_t place);

    [[nodiscard]] QTableView& view() const { return *m_view; }
    [[nodiscard]] MeasureModel& model() { return m_model; }
    [[nodiscard]] QPushButton& addButton() const { return *m_add; }

signals:
    void addAsked();
    void removalAsked(const std::vector<std::size_t>& places);
    void currentChanged();

private:
    void makeView();
    void enable();
    [[nodiscard]] std::vector<std::size_t> selected() const;

    MeasureModel m_model;
    QTableView* m_view;
    QLabel* m_empty;
    QStackedWidget* m_stack;
    QHBoxLayout* m_buttons;
    QPushButton* m_add;
    QPushButton* m_remove;
    bool m_canAdd = false;
};

} // namespace kavela::desktop
