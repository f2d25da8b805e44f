#include "desktop/shell/qt_text.h"

#include <QStringList>

namespace kavela::desktop {

QString joined(const std::vector<std::string>& texts) {
    QStringList parts;
    for (const std::string& text : texts)
        parts.append(qtText(text));
    return parts.join(", ");
}

QString joined(const std::vector<std::int64_t>& numbers) {
    QStringList parts;
    for (const std::int64_t number : numbers)
        parts.append(QString::number(number));
    return parts.join(", ");
}

} // namespace kavela::desktop
