#include "desktop/race/table_export.h"

#include "desktop/race/split_table_model.h"
#include "desktop/shell/tables/table_text.h"

namespace kavela::desktop {

namespace {

bool hasPenalties(const SplitTableModel& model, int column) {
    return model.headerData(column, Qt::Horizontal, SplitTableModel::PenaltyRole).toBool();
}

QStringList headerFields(const SplitTableModel& model, const QList<int>& columns) {
    QStringList fields;
    for (const int column : columns) {
        const QString title = model.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
        fields.append(title);
        if (hasPenalties(model, column))
            fields.append(SplitTableModel::tr("%1 penalty").arg(title));
    }
    return fields;
}

QStringList rowFields(const SplitTableModel& model, int row, const QList<int>& columns,
                      const QString& decimalSign) {
    QStringList fields;
    for (const int column : columns) {
        const QModelIndex cell = model.index(row, column);
        QString text = cell.data(SplitTableModel::NumberRole).toString();
        if (column >= SplitTableModel::LeadingColumns)
            text.replace('.', decimalSign);
        fields.append(text);
        if (hasPenalties(model, column))
            fields.append(cell.data(SplitTableModel::PenaltyRole).toString());
    }
    return fields;
}

} // namespace

QString splitTableAsText(const SplitTableModel& model, const QList<int>& rows,
                         const QList<int>& columns, const TextTable& style) {
    QString text = separatedLine(headerFields(model, columns), style.separator);
    for (const int row : rows)
        text += separatedLine(rowFields(model, row, columns, style.decimalSign), style.separator);
    return text;
}

} // namespace kavela::desktop
