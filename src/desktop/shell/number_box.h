#pragma once

#include <QDoubleSpinBox>
#include <QSpinBox>

namespace kavela::desktop {

/// Whether a key is one of the two that take what was typed.
[[nodiscard]] bool isEnter(const QKeyEvent& key);

/// A number with steps. It is typed with a decimal point or comma, whatever the system writes, and
/// shown with the sign of the system. What is no number of its range stays in the box, which says
/// why; the value is then the one from before.
class NumberBox : public QDoubleSpinBox {
    Q_OBJECT

public:
    explicit NumberBox(QWidget* parent = nullptr);

    /// The number is one of seconds, and 1:22.75 may be typed for it.
    void setIsTime(bool isTime) { m_isTime = isTime; }
    /// Shows what a document holds, unless another number is being typed in its place.
    void showValue(double value);
    /// What Enter does: the text becomes the value, or the box says why it cannot.
    void takeTyped();

    [[nodiscard]] double valueFromText(const QString& text) const override;
    [[nodiscard]] QString textFromValue(double value) const override;
    [[nodiscard]] QValidator::State validate(QString& text, int& position) const override;

protected:
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    [[nodiscard]] double read(const QString& text) const;

    bool m_isTime = false;
};

/// The same for whole numbers.
class WholeBox : public QSpinBox {
    Q_OBJECT

public:
    explicit WholeBox(QWidget* parent = nullptr);

    void showValue(int value);
    /// The same as NumberBox has it.
    void takeTyped();

    [[nodiscard]] int valueFromText(const QString& text) const override;
    [[nodiscard]] QString textFromValue(int value) const override;
    [[nodiscard]] QValidator::State validate(QString& text, int& position) const override;

protected:
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    [[nodiscard]] int read(const QString& text) const;
};

} // namespace kavela::desktop
