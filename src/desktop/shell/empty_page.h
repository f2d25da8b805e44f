#pragma once

#include <QString>
#include <QWidget>

#include <functional>
#include <vector>

class QLabel;

namespace kavela::desktop {

/// What a window shows as long as it has nothing else: what can be dropped there, what it is for,
/// and buttons that open something.
class EmptyPage : public QWidget {
    Q_OBJECT

public:
    /// A button, and what it does.
    struct Way {
        QString title;
        std::function<void()> take;
    };

    EmptyPage(const QString& title, const QString& text, const std::vector<Way>& ways,
              QWidget* parent = nullptr);

    /// Another text below the title, such as why there is still nothing.
    void tell(const QString& text);

protected:
    void showEvent(QShowEvent* event) override;

private:
    QLabel* m_text;
};

} // namespace kavela::desktop
