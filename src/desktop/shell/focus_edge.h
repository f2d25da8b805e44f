#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

namespace kavela::desktop {

/// Whether a widget is one that we paint, as a chart or a film, and that has nothing inside that is
/// laid out: the toolkit neither says what it is nor marks the focus on it.
[[nodiscard]] bool isPainted(const QWidget& widget);

/// Draws an edge inside the painted widget that has the focus, or round the list, table or text of
/// several lines, which the toolkit marks no more than what is without it. As long as it lives.
class FocusEdge : public QObject {
    Q_OBJECT

public:
    explicit FocusEdge(QObject* parent = nullptr);
    ~FocusEdge() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void follow(QWidget* focus);

    QPointer<QWidget> m_edge; ///< a child of the widget with the focus
};

} // namespace kavela::desktop
