#pragma once

#include <QScrollArea>

#include <algorithm>

namespace kavela::desktop {

/// Fills its place with a page, and scrolls it up and down where the place is too low for it.
class ScrollPage : public QScrollArea {
public:
    explicit ScrollPage(QWidget* page, QWidget* parent = nullptr) : QScrollArea(parent) {
        setWidgetResizable(true);
        setFrameShape(QFrame::NoFrame);
        setFocusPolicy(Qt::NoFocus); // Tab goes through the fields of the page
        setWidget(page);
    }

    [[nodiscard]] QSize minimumSizeHint() const override {
        return {std::max(widget()->minimumWidth(), widget()->minimumSizeHint().width()),
                QScrollArea::minimumSizeHint().height()};
    }
};

} // namespace kavela::desktop
