#include "desktop/motion/mount_names.h"

#include <QCoreApplication>

namespace kavela::desktop {

QStringList mountNames() {
    const auto tr = [](const char* text) { return QCoreApplication::translate("Mount", text); };
    return {tr("Top to the bow"),  tr("Bottom to the bow"), tr("Right to the bow"),
            tr("Left to the bow"), tr("Back to the bow"),   tr("Screen to the bow")};
}

} // namespace kavela::desktop
