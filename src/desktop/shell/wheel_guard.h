#pragma once

#include <QObject>

namespace kavela::desktop {

/// Keeps the wheel from changing a number or a choice that the pointer only passes while a page is
/// scrolled: boxes turn with the wheel as long as they have the focus, which the wheel does not
/// give them. Installed on the application.
class WheelGuard : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    bool eventFilter(QObject* object, QEvent* event) override;
};

} // namespace kavela::desktop
