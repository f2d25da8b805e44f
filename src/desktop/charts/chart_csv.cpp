#include "desktop/charts/chart_csv.h"

#include "common/delimited_text.h"
#include "common/number_text.h"

#include <algorithm>
#include <cmath>

namespace kavela::desktop {

namespace {

constexpr double Precision = 1e6; ///< parts of a second: far below the interval of any film

} // namespace

QString csvLine(const QStringList& fields) {
    QStringList safe;
    for (const QString& field : fields)
        safe << QString::fromStdString(csvField(field.toStdString()));
    return safe.join(';') + '\n';
}

QString csvNumber(std::optional<double> value) {
    if (!value)
        return {};
    const double rounded = std::round(*value * Precision) / Precision;
    return QString::fromStdString(plainText(std::isfinite(rounded) ? rounded : *value));
}

QString tabSeparated(const QString& csv) {
    QString text;
    bool isQuoted = false;
    for (qsizetype i = 0; i < csv.size(); ++i) {
        const QChar each = csv[i];
        if (each == '"' && isQuoted && i + 1 < csv.size() && csv[i + 1] == '"')
            text += csv[++i];
        else if (each == '"')
            isQuoted = !isQuoted;
        else if (each == ';' && !isQuoted)
            text += '\t';
        else if (isQuoted && each.isSpace())
            text += ' ';
        else
            text += each == '\t' ? QChar(' ') : each;
    }
    return text;
}

} // namespace kavela::desktop
