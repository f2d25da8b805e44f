#include "desktop/shell/alert_boxes.h"

#include <QMessageBox>

namespace kavela::desktop {

void AlertBoxes::show(const Alert& alert) {
    QMessageBox box(m_parent);
    box.setIcon(QMessageBox::Warning);
    box.setWindowTitle("Kavela");
    const QString text = QString::fromStdString(alert.text);
    box.setText(alert.title.empty() ? text : QString::fromStdString(alert.title));
    if (!alert.title.empty())
        box.setInformativeText(text);
    box.exec();
}

} // namespace kavela::desktop
