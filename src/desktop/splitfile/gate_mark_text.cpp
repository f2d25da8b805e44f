#include "desktop/splitfile/gate_mark_text.h"

#include <QObject>

namespace kavela::desktop {

QString gateMarkText(GateMark which) {
    switch (which) {
    case GateMark::Entrance:
        return QObject::tr("entrance");
    case GateMark::Middle:
        return QObject::tr("middle");
    case GateMark::Exit:
        break;
    }
    return QObject::tr("exit");
}

} // namespace kavela::desktop
