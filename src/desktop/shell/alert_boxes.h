#pragma once

#include "common/alerts.h"

#include <QPointer>
#include <QWidget>

namespace kavela::desktop {

/// Alerts as modal boxes over a window.
class AlertBoxes : public Alerts {
public:
    explicit AlertBoxes(QWidget* parent = nullptr) : m_parent(parent) {}
    void show(const Alert& alert) override;

private:
    QPointer<QWidget> m_parent;
};

} // namespace kavela::desktop
