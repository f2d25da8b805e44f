#pragma once

#include "desktop/charts/chart_colours.h"

#include <QLabel>

namespace kavela::desktop {

/// A line in a form or dialog that says what is wrong, hidden as long as nothing is.
class FaultLabel : public QLabel {
public:
    explicit FaultLabel(QWidget* parent = nullptr) : QLabel(parent) {
        setWordWrap(true);
        setTextFormat(Qt::PlainText);
        hide();
    }

    void tell(const QString& fault) {
        QPalette colours = palette();
        colours.setColor(QPalette::WindowText, missedColour(colours));
        setPalette(colours);
        setText(fault.isEmpty() ? fault : QStringLiteral("⚠ ") + fault);
        setVisible(!fault.isEmpty());
    }
};

} // namespace kavela::desktop
