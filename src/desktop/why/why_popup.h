#pragma once

#include "common/why.h"

#include <QObject>
#include <QPoint>

#include <functional>
#include <optional>

class QAbstractItemView;
class QModelIndex;
class QRect;
class QWidget;

namespace kavela::desktop {

/// Shows beside a number how it came about: its rule, what went into it and where that stands, the
/// full number behind the rounded one, and the numbers made on the way, which open. Can be copied
/// as text; Escape or a click elsewhere closes it. A place that is activated is shown
/// by the tool window that `over` belongs to, or goes out as its placeRequested(). `atGlobal` is
/// where the number stands on the screen.
void showWhy(const Reason& reason, const QRect& atGlobal, QWidget* over);

/// Answers for what stands at a point of a widget; nothing where no number stands that could.
using WhyAt = std::function<std::optional<Reason>(const QPoint& local)>;
/// The same for a cell of a table.
using WhyOfCell = std::function<std::optional<Reason>(const QModelIndex& index)>;

/// Asks why: Alt+click on a number of a widget, or Shift+F1 while the widget has the focus. The key
/// stands in the Help menu of the tool window, and thus among its keys, from when the widget is
/// shown there.
class WhyKeys : public QObject {
    Q_OBJECT

public:
    WhyKeys(QWidget* watched, WhyAt answer);
    WhyKeys(QAbstractItemView* watched, WhyOfCell answer);

    /// Asks for what the key means: the current cell of a table, otherwise what the widget answers
    /// for the point (-1, -1).
    void askByKey();
    [[nodiscard]] QWidget* watched() const { return m_watched; }

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void listen();
    void askAt(const QPoint& local);
    void answer(const std::optional<Reason>& reason, const QRect& local);
    void showInMenu();

    QWidget* m_watched;
    WhyAt m_at;
    WhyOfCell m_ofCell;
};

/// Makes a widget answer; its points are those of its viewport where it has one. The function is
/// asked for the middle of the current cell of a table when the key is used, and for (-1, -1) in
/// other widgets, which then answer for what is selected.
void answerWhy(QWidget* watched, WhyAt answer);
/// Makes a table answer by its cells.
void answerWhy(QAbstractItemView* watched, WhyOfCell answer);

} // namespace kavela::desktop
