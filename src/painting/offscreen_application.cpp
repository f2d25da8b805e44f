#include "painting/offscreen_application.h"

namespace kavela::painting {

namespace {

/// Takes what the font machinery tells programmers, such as which font lacks which script.
void ignoreMessage(QtMsgType, const QMessageLogContext&, const QString&) {}

} // namespace

OffscreenApplication::OffscreenApplication()
    : m_application((qInstallMessageHandler(ignoreMessage), m_count), m_pointers.data()) {}

} // namespace kavela::painting
