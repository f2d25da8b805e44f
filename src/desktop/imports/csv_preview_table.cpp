#include "desktop/imports/csv_preview_table.h"

#include "desktop/shell/qt_text.h"
#include "desktop/shell/tables/column_table.h"
#include "desktop/shell/theme.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QHeaderView>
#include <QStyle>
#include <QVBoxLayout>

#include <utility>

namespace kavela::desktop {

namespace {

/// The column is as wide as what is chosen, the list that drops down as wide as what could be.
class QuantityCombo : public QComboBox {
public:
    explicit QuantityCombo(CsvQuantity quantity) {
        for (std::size_t q = 0; q < CsvQuantities; ++q)
            addItem(qtText(textOf(static_cast<CsvQuantity>(q))));
        setCurrentIndex(static_cast<int>(quantity));
        setMaxVisibleItems(static_cast<int>(CsvQuantities));
        setFocusPolicy(Qt::StrongFocus);
        setAutoFillBackground(true); // the cell below it holds the same text
        view()->setMinimumWidth(QComboBox::sizeHint().width());
    }

    QSize sizeHint() const override {
        const int arrow = style()->pixelMetric(QStyle::PM_ScrollBarExtent) + 3 * theme::Spacing;
        return {fontMetrics().horizontalAdvance(currentText()) + arrow,
                QComboBox::sizeHint().height()};
    }
};

} // namespace

CsvPreviewTable::CsvPreviewTable(QWidget* parent)
    : QWidget(parent), m_lines({}), m_table(new ColumnTable(m_lines, "preview")) {
    m_table->setOnlyShown();
    m_table->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    auto* const whole = new QVBoxLayout(this);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->addWidget(m_table);
}

QString CsvPreviewTable::textAt(const Line& line, std::size_t column) const {
    if (line.isChoices)
        return column < m_columns.size() ? qtText(textOf(m_columns[column])) : QString();
    return column < line.fields.size() ? qtText(line.fields[column]) : QString();
}

ColumnModel<CsvPreviewTable::Line>::Columns
CsvPreviewTable::columnsOf(const std::vector<std::string>& titles) {
    ColumnModel<Line>::Columns columns;
    for (std::size_t c = 0; c < titles.size(); ++c)
        columns.push_back(textColumn<Line>(
            qtText(titles[c]), [this, c](const Line& line) { return textAt(line, c); }));
    return columns;
}

void CsvPreviewTable::showPreview(const CsvPreview& preview, std::vector<CsvQuantity> columns) {
    m_columns = std::move(columns);
    m_columns.resize(preview.titles.size());
    std::vector<Line> lines{{.isChoices = true}};
    for (const std::vector<std::string>& fields : preview.rows)
        lines.push_back({.fields = fields});
    m_lines.setColumns(columnsOf(preview.titles));
    m_lines.show(std::move(lines), true);
    for (std::size_t c = 0; c < m_columns.size(); ++c) {
        QComboBox* const choice = columnChoice(c);
        m_table->setIndexWidget(m_table->cellAt(0, static_cast<int>(c)), choice);
        m_table->setRowHeight(0, choice->sizeHint().height());
    }
    m_table->resizeColumnsToContents();
}

QComboBox* CsvPreviewTable::columnChoice(std::size_t column) {
    auto* const choice = new QuantityCombo(m_columns[column]);
    connect(choice, &QComboBox::currentIndexChanged, this, [this, column](int quantity) {
        m_columns[column] = static_cast<CsvQuantity>(quantity);
        m_lines.refresh();
        emit columnsChosen();
    });
    return choice;
}

} // namespace kavela::desktop
