#pragma once

#include <QAbstractTableModel>

#include <vector>

#include "analysis/cell_text.h"
#include "common/why.h"
#include "desktop/race/race_document.h"

namespace kavela::desktop {

/// The split table of a race as Qt's views want it: the comparison rows, always on top, then the
/// runs. Runs are sorted here, so that a row of the model is a row of the screen.
class SplitTableModel : public QAbstractTableModel {
    Q_OBJECT

public:
    /// The columns in front of the times.
    enum LeadingColumn { NameColumn, PhaseColumn, CategoryColumn, PlaceColumn, LeadingColumns };
    /// Those behind the sections: total, sprint and real time.
    static constexpr int ClosingColumns = 3;

    /// What spreadsheets take: the figure of a cell as text with a point, without units and
    /// penalties, empty where there is none; and the penalty seconds shown in the cell, none where
    /// the cells of the column show none. The texts of the other columns as they stand.
    enum ExportRole { NumberRole = Qt::UserRole, PenaltyRole };

    explicit SplitTableModel(RaceDocument& document, QObject* parent = nullptr);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;
    void sort(int column, Qt::SortOrder order) override;

    void setContent(CellContent content);
    void setReference(ReferenceKind kind);
    /// Makes a row the reference, which it stays wherever it goes: under other settings, in another
    /// order, and where the filter leaves it out.
    void setReferenceRow(const RowKey& row);
    void setScale(ColourScale scale);
    [[nodiscard]] CellContent content() const { return m_content; }
    [[nodiscard]] const TableReference& reference() const { return m_reference; }
    [[nodiscard]] ColourScale scale() const { return m_scale; }

    /// What stands in a row, as it was when the rows were last made; and its row now, -1 for none.
    [[nodiscard]] const RowKey& keyOfRow(int row) const;
    [[nodiscard]] int rowOfKey(const RowKey& key) const;
    /// Number of the run, among the shown ones, that stands in a row, none for a comparison row;
    /// and the row of a run, -1 for none.
    [[nodiscard]] std::optional<std::size_t> runOfRow(int row) const;
    [[nodiscard]] int rowOfRun(std::size_t run) const;
    /// The comparison row that stands in a row; null for a run.
    [[nodiscard]] const ComparisonRow* comparisonOfRow(int row) const;
    /// Why a cell of the times shows what it shows; nothing for the other columns, and for a dash
    /// in a comparison row.
    [[nodiscard]] std::optional<Reason> whyOf(const QModelIndex& index) const;
    /// The runs in the order of the rows.
    [[nodiscard]] const std::vector<std::size_t>& order() const { return m_order; }

private:
    void reload();
    void renumber(const RunMoves& moves);
    void resolveReference();
    void applySort();
    void applyTextSort();
    void listKeys();
    void repaint();
    [[nodiscard]] int comparisons() const;
    [[nodiscard]] QString columnName(int column) const;
    [[nodiscard]] QString headerTip(std::size_t cell) const;
    [[nodiscard]] QVariant comparisonData(const ComparisonRow& row, int column, int role) const;
    [[nodiscard]] QString comparisonText(const ComparisonRow& row, int column) const;
    [[nodiscard]] QVariant runData(std::size_t run, int column, int role) const;
    /// The cell that a run is sorted by; null where the rows are sorted by place.
    [[nodiscard]] const TableCell* sortedCell(std::size_t run) const;
    [[nodiscard]] double placeOf(std::size_t run) const;
    [[nodiscard]] QString plainNumber(std::size_t run, std::size_t cell) const;
    [[nodiscard]] QVariant penalty(std::size_t run, std::size_t cell) const;
    [[nodiscard]] bool showsPenalties(std::size_t cell) const;
    [[nodiscard]] QString leadingText(std::size_t run, int column) const;
    [[nodiscard]] QString cellText(std::size_t run, std::size_t cell) const;
    [[nodiscard]] QString toolTip(std::size_t run, std::size_t cell) const;
    [[nodiscard]] QString greyedTip(std::size_t run, std::size_t cell) const;
    [[nodiscard]] QVariant background(const TableCell& cell) const;
    [[nodiscard]] QVariant foreground(const TableCell& cell) const;

    RaceDocument& m_document;
    std::vector<std::size_t> m_order; ///< runs in the order of the rows
    std::vector<RowKey> m_keys;       ///< by row
    int m_sortColumn = -1;            ///< none: the order of the file
    Qt::SortOrder m_sortOrder = Qt::AscendingOrder;
    CellContent m_content = CellContent::Time;
    ReferenceKind m_referenceKind = ReferenceKind::Best;
    RowKey m_referenceRow;      ///< where that is a row
    TableReference m_reference; ///< the same, as the figures take it
    ColourScale m_scale = ColourScale::GreenRed;
};

} // namespace kavela::desktop
