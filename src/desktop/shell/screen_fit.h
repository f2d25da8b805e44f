#pragma once

#include <QList>
#include <QObject>
#include <QRect>

#include <functional>

class QWidget;

namespace kavela::desktop {

/// A window's place brought into an area: made smaller where it is larger, then moved inside.
[[nodiscard]] QRect fitted(const QRect& wanted, const QRect& area);

/// What a window may cover of its screen: all but the bars of the desktop.
[[nodiscard]] QRect freeArea(const QWidget& window);

/// A place beside those that are taken: a step below and to the right of one that it would cover,
/// from the top left again where that leaves the area, and always inside it.
[[nodiscard]] QRect placeBeside(const QRect& wanted, const QList<QRect>& taken, const QRect& area);
/// Gives a window that is not shown yet such a place on its screen, with its title bar. One that
/// fills the screen stays as it is.
void placeBeside(QWidget& window, const QList<QWidget*>& others);

/// Keeps every window and dialog of the program on its screen, whatever size it asks for or was
/// remembered with. Where what it holds cannot be made small enough, it scrolls.
class ScreenFit : public QObject {
public:
    using Area = std::function<QRect(const QWidget& window)>;

    /// Watches the windows of the application as long as it lives.
    explicit ScreenFit(QObject* parent, Area area = freeArea);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void fitContent(QWidget& window);
    void fitPlace(QWidget& window);
    /// Without the frame that the system puts around a window.
    [[nodiscard]] QRect areaInside(const QWidget& window) const;

    Area m_area;
};

} // namespace kavela::desktop
