#pragma once

#include <QAccessible>
#include <QObject>
#include <QString>

class QWidget;

namespace kavela::desktop {

/// What a screen reader calls a part of a window that says nothing of itself, as a table: by its
/// kind, else by what a field asks for, by the label, group, tab, dock or window that it stands
/// under. Empty where nothing around it has a name.
[[nodiscard]] QString nameFromAround(const QWidget& widget);

/// Gives whoever hears the program instead of seeing it a name for each part that takes the
/// keyboard, and a role for those that we paint. It does nothing until a screen reader is there.
class SpokenNames : public QObject, public QAccessible::ActivationObserver {
    Q_OBJECT

public:
    explicit SpokenNames(QObject* parent = nullptr);
    ~SpokenNames() override;

    void accessibilityActiveChanged(bool active) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace kavela::desktop
