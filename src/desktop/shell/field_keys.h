#pragma once

#include <QObject>

#include <functional>

class QLineEdit;
class QMainWindow;

namespace kavela::desktop {

/// Whose the keys are in a window of films, where letters, arrows and Home have a meaning of their
/// own. In a field that is typed in they are the field's, from the first letter until it is left:
/// Enter takes what was typed and stays, Esc takes it back and gives the keys to the window again.
/// Undo and redo are the field's as long as it has something to undo.
class FieldKeys : public QObject {
    Q_OBJECT

public:
    /// `leave` gives the focus to what keys belong to otherwise.
    FieldKeys(QMainWindow& window, std::function<void()> leave);

    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    /// A field of the window gets the keys, or they are the window's again.
    void typingChanged(bool isTyping);

private:
    [[nodiscard]] QLineEdit* fieldIn(QObject* watched) const;

    QMainWindow& m_window;
    std::function<void()> m_leave;
};

} // namespace kavela::desktop
