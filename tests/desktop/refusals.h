#pragma once

#include <QApplication>
#include <QLabel>

#include <string>

namespace kavela::test {

/// What the bubble beside a field of `window` says; empty where none is shown.
inline std::string refusalIn(const QWidget& window) {
    QApplication::processEvents(); // the field takes the focus back
    for (const QLabel* const bubble : window.findChildren<QLabel*>("refusal"))
        if (bubble->isVisible())
            return bubble->text().toStdString();
    return {};
}

} // namespace kavela::test
