#include "desktop/race/table_text.h"

#include <numeric>

namespace kavela::desktop {

namespace {

/// A field that holds the separator, a quote or a line break is quoted.
QString quoted(QString field, QChar separator) {
    const bool needsQuotes = field.contains(separator) || field.contains('"') ||
                             field.contains('\n') || field.contains('\r');
    return needsQuotes ? '"' + field.replace("\"", "\"\"") + '"' : field;
}

QString separated(const QAbstractItemModel& model, const QList<int>& rows,
                  const QList<int>& columns, QChar separator) {
    QString text;
    const auto addLine = [&](auto field) {
        QStringList fields;
        for (const int column : columns)
            fields.append(quoted(field(column).toString(), separator));
        text += fields.join(separator) + '\n';
    };
    addLine([&](int column) { return model.headerData(column, Qt::Horizontal); });
    for (const int row : rows)
        addLine([&](int column) { return model.index(row, column).data(); });
    return text;
}

} // namespace

QString tabSeparated(const QAbstractItemModel& model, const QList<int>& rows,
                     const QList<int>& columns) {
    return separated(model, rows, columns, '\t');
}

QString semicolonSeparated(const QAbstractItemModel& model, const QList<int>& columns) {
    QList<int> rows(model.rowCount());
    std::iota(rows.begin(), rows.end(), 0);
    return separated(model, rows, columns, ';');
}

} // namespace kavela::desktop
