#pragma once

#include <QScrollArea>

namespace kavela::desktop {

/// Fills its place with a page, and scrolls it where the place is smaller than the page can be.
class ScrollPage : public QScrollArea {
public:
    explicit ScrollPage(QWidget* page, QWidget* parent = nullptr) : QScrollArea(parent) {
        setWidgetResizable(true);
        setFrameShape(QFrame::NoFrame);
        setFocusPolicy(Qt::NoFocus); // Tab goes through the fields of the page
        setWidget(page);
    }
};

} // namespace kavela::desktop
