#include "desktop/shell/tables/table_text.h"

#include "common/delimited_text.h"
#include "common/number_text.h"
#include "desktop/shell/tables/row_model.h"

#include <QAbstractItemModel>
#include <QLocale>

namespace kavela::desktop {

namespace {

QString fieldOf(const QModelIndex& index, const QString& decimalSign) {
    const QVariant told = index.data(RowModel::CopyRole);
    if (!told.isValid())
        return index.data().toString();
    if (told.typeId() != QMetaType::Double)
        return told.toString();
    return QString::fromStdString(shortestText(told.toDouble())).replace('.', decimalSign);
}

QString titleOf(const QAbstractItemModel& model, int section, Qt::Orientation orientation) {
    return model.headerData(section, orientation).toString().replace('\n', ' ');
}

} // namespace

QString separatedLine(QStringList fields, QChar separator) {
    for (QString& field : fields)
        field = QString::fromStdString(csvField(field.toStdString(), separator.toLatin1()));
    return fields.join(separator) + '\n';
}

TextTable clipboardTable() {
    return {'\t', QLocale().decimalPoint()};
}

TextTable fileTable() {
    return {';', QStringLiteral(".")};
}

QString tableAsText(const QAbstractItemModel& model, const QList<int>& rows,
                    const QList<int>& columns, const TextTable& style, bool hasRowTitles) {
    QStringList titles = hasRowTitles ? QStringList(QString()) : QStringList();
    for (const int column : columns)
        titles.append(titleOf(model, column, Qt::Horizontal));
    QString text = separatedLine(titles, style.separator);
    for (const int row : rows) {
        QStringList fields;
        if (hasRowTitles)
            fields.append(titleOf(model, row, Qt::Vertical));
        for (const int column : columns)
            fields.append(fieldOf(model.index(row, column), style.decimalSign));
        text += separatedLine(fields, style.separator);
    }
    return text;
}

} // namespace kavela::desktop
