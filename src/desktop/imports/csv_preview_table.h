#pragma once

#include "boatmotion/imports/sensor_csv.h"
#include "desktop/shell/tables/column_model.h"

#include <QWidget>

class QComboBox;

namespace kavela::desktop {

class ColumnTable;

/// The first lines of a list of samples, and over each column the choice of what it holds.
class CsvPreviewTable : public QWidget {
    Q_OBJECT

public:
    explicit CsvPreviewTable(QWidget* parent = nullptr);

    /// `columns`: what each of them holds. Nothing is signalled.
    void showPreview(const CsvPreview& preview, std::vector<CsvQuantity> columns);
    [[nodiscard]] const std::vector<CsvQuantity>& columns() const { return m_columns; }

signals:
    /// Another quantity was chosen over one of the columns.
    void columnsChosen();

private:
    /// One line of the list, or the one of the choices in front of them.
    struct Line {
        bool isChoices = false;
        std::vector<std::string> fields = {};
    };

    [[nodiscard]] ColumnModel<Line>::Columns columnsOf(const std::vector<std::string>& titles);
    [[nodiscard]] QString textAt(const Line& line, std::size_t column) const;
    [[nodiscard]] QComboBox* columnChoice(std::size_t column);

    std::vector<CsvQuantity> m_columns;
    ColumnModel<Line> m_lines;
    ColumnTable* m_table;
};

} // namespace kavela::desktop
