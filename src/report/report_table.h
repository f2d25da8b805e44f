#pragma once

#include "analysis/split_table.h"

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
    std::vector<ReportCell> cells;
};

/// The runs of one phase and category.
struct ReportGroup {
    QString title; ///< empty when the file names neither
    std::vector<ReportRow> rows;
};

struct ReportTable {
    std::vector<QString> columns;
    std::vector<ReportGroup> groups;
    bool isTinted = false;
    QString note; ///< what the times are: with penalties or without, accumulated

    [[nodiscard]] std::size_t rowCount() const;
};

[[nodiscard]] ReportTable reportTable(const RaceSet& set, const TableSettings& settings);

/// "Heats · K1M"
[[nodiscard]] QString groupTitle(const std::string& phase, const std::string& category);

/// A colour of the table on white paper, without transparency.
[[nodiscard]] QColor onPaper(const Colour& colour);

} // namespace kavela::report
