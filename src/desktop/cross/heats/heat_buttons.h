#pragma once

#include <QPushButton>

namespace kavela::desktop {

/// A button of the page of heats: a click leaves the keys to the film.
[[nodiscard]] inline QPushButton* heatButton(const char* name, const QString& text,
                                             const QString& tip) {
    auto* const made = new QPushButton(text);
    made->setObjectName(name);
    made->setToolTip(tip);
    made->setFocusPolicy(Qt::TabFocus);
    return made;
}

} // namespace kavela::desktop
