#pragma once

#include "report/table_view.h"

#include <QColor>
#include <QString>

#include <optional>
#include <vector>

/// The split table as it goes onto paper: texts and colours, without the runs they came from.
namespace kavela::report {

struct ReportCell {
    QString text;
    QColor ink;
    std::optional<QColor> ground; ///< the tint
    bool isBest = false; ///< of its column: in bold, with a mark, for those who see no colours
};

struct ReportRow {
    QString name;
    std::vector<QString> leads; ///< by leading column
    std::vector<ReportCell> cells;
};

/// The runs of one phase and category.
struct ReportGroup {
    QString title; ///< empty when the file names neither
    std::vector<ReportRow> rows;
};

struct ReportTable {
    std::vector<RunColumn> leads; ///< between the names and the times
    std::vector<QString> columns;
    std::vector<ReportGroup> groups;
    bool isTinted = false;
    ColourScale scale = ColourScale::GreenRed;
    QString note; ///< what the cells say: gaps to whom, with penalties or without, accumulated

    [[nodiscard]] std::size_t rowCount() const;
};

/// The table of a race set as a view of it shows it. `table` was made of the set with the settings.
[[nodiscard]] ReportTable reportTable(const RaceSet& set, const SplitTable& table,
                                      const TableSettings& settings, const TableView& view = {});

/// The titles of all columns of a table.
[[nodiscard]] std::vector<QString> columnTitles(const SplitTable& table);

/// "Heats · K1M"
[[nodiscard]] QString groupTitle(const std::string& phase, const std::string& category);

/// The title of a leading column: "Cat".
[[nodiscard]] QString leadTitle(RunColumn column);

/// A colour of the table on white paper, without transparency.
[[nodiscard]] QColor onPaper(const Colour& colour);

} // namespace kavela::report
