#include "desktop/race/table_text.h"

namespace kavela::desktop {

namespace {

/// A field that holds the separator, a quote or a line break is quoted.
QString quoted(QString field, QChar separator) {
    const bool needsQuotes = field.contains(separator) || field.contains('"') ||
                             field.contains('\n') || field.contains('\r');
    return needsQuotes ? '"' + field.replace("\"", "\"\"") + '"' : field;
}

} // namespace

QString separatedLine(QStringList fields, QChar separator) {
    for (QString& field : fields)
        field = quoted(field, separator);
    return fields.join(separator) + '\n';
}

QString tabSeparated(const QAbstractItemModel& model, const QList<int>& rows,
                     const QList<int>& columns) {
    QString text;
    const auto addLine = [&](auto field) {
        QStringList fields;
        for (const int column : columns)
            fields.append(field(column).toString());
        text += separatedLine(fields, '\t');
    };
    addLine([&](int column) { return model.headerData(column, Qt::Horizontal); });
    for (const int row : rows)
        addLine([&](int column) { return model.index(row, column).data(); });
    return text;
}

} // namespace kavela::desktop
