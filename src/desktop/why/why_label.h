#pragma once

#include "common/why.h"

#include <QLabel>

#include <functional>
#include <optional>

namespace kavela::desktop {

/// A number in words that tells why it is what it is: by Alt+click, and by the key, for which Tab
/// leads to it.
class WhyLabel : public QLabel {
    Q_OBJECT

public:
    explicit WhyLabel(std::function<std::optional<Reason>()> why, QWidget* parent = nullptr);

    /// Shows a number; hidden while it has none, so that Tab passes it by.
    void tell(const QString& text);

protected:
    void paintEvent(QPaintEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
};

} // namespace kavela::desktop
