#pragma once

#include "desktop/shell/tool.h"

#include <QAbstractButton>

namespace kavela::desktop {

/// A tool on the home screen: icon, title, and one line that says what it is for.
class Tile : public QAbstractButton {
    Q_OBJECT

public:
    explicit Tile(const Tool& tool, QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    QString m_purpose;
};

} // namespace kavela::desktop
