#pragma once

#include <QAbstractTableModel>

#include <vector>

#include "analysis/cell_text.h"

namespace kavela::desktop {

class RaceDocument;

/// The split table of a race as Qt's views want it: the comparison rows, always on top, then the
/// runs. Runs are sorted here, so that a row of the model is a row of the screen.
class SplitTableModel : public QAbstractTableModel {
    Q_OBJECT

public:
    /// The columns in front of the times.
    enum LeadingColumn { NameColumn, PhaseColumn, CategoryColumn, PlaceColumn, LeadingColumns };

    explicit SplitTableModel(RaceDocument& document, QObject* parent = nullptr);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;
    void sort(int column, Qt::SortOrder order) override;

    void setContent(CellContent content);
    void setReference(const TableReference& reference);
    void setScale(ColourScale scale);
    [[nodiscard]] CellContent content() const { return m_content; }
    [[nodiscard]] const TableReference& reference() const { return m_reference; }
    [[nodiscard]] ColourScale scale() const { return m_scale; }

    /// Number of the run, among the shown ones, that stands in a row, none for a comparison row;
    /// and the row of a run, -1 for none.
    [[nodiscard]] std::optional<std::size_t> runOfRow(int row) const;
    [[nodiscard]] int rowOfRun(std::size_t run) const;
    /// The comparison row that stands in a row; null for a run.
    [[nodiscard]] const ComparisonRow* comparisonOfRow(int row) const;
    /// The runs in the order of the rows.
    [[nodiscard]] const std::vector<std::size_t>& order() const { return m_order; }

private:
    void reload();
    void applySort();
    void repaint();
    [[nodiscard]] int comparisons() const;
    [[nodiscard]] QVariant comparisonData(const ComparisonRow& row, int column, int role) const;
    [[nodiscard]] QString comparisonText(const ComparisonRow& row, int column) const;
    [[nodiscard]] QVariant runData(std::size_t run, int column, int role) const;
    [[nodiscard]] QString leadingText(std::size_t run, int column) const;
    [[nodiscard]] QString cellText(std::size_t run, std::size_t cell) const;
    [[nodiscard]] QString toolTip(std::size_t run, std::size_t cell) const;
    [[nodiscard]] QVariant background(const TableCell& cell) const;
    [[nodiscard]] QVariant foreground(const TableCell& cell) const;

    RaceDocument& m_document;
    std::vector<std::size_t> m_order; ///< runs in the order of the rows
    int m_sortColumn = -1;            ///< none: the order of the file
    Qt::SortOrder m_sortOrder = Qt::AscendingOrder;
    CellContent m_content = CellContent::Time;
    TableReference m_reference;
    ColourScale m_scale = ColourScale::GreenRed;
};

} // namespace kavela::desktop
