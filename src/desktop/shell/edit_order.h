#pragma once

#include <QModelIndex>
#include <QTableView>
#include <QTreeView>

namespace kavela::desktop {

/// The nearest cell behind (1) or before (-1) the current one that can be typed in, as the eye
/// reads: along the row in the order of the columns shown, then on in the next row. Invalid where
/// there is none.
[[nodiscard]] QModelIndex typedCellBeside(const QTableView& view, int way);
[[nodiscard]] QModelIndex typedCellBeside(const QTreeView& view, int way);

/// A table or tree that values are typed into one after the other: Tab and Shift+Tab go to the next
/// and the previous cell that can be typed in, whether a cell is open or not, and leave the view at
/// its end.
template <class View>
class EditOrder : public View {
public:
    explicit EditOrder(QWidget* parent = nullptr) : View(parent) {
        this->setTabKeyNavigation(true);
    }

    /// A digit is a value that missed its cell, not a search: it must not lead to another row.
    void keyboardSearch(const QString& text) override {
        if (text.isEmpty() || !text.front().isDigit())
            View::keyboardSearch(text);
    }

protected:
    QModelIndex moveCursor(typename View::CursorAction action,
                           Qt::KeyboardModifiers modifiers) override {
        if (action == View::MoveNext || action == View::MovePrevious)
            return typedCellBeside(*this, action == View::MoveNext ? 1 : -1);
        return View::moveCursor(action, modifiers);
    }
};

} // namespace kavela::desktop
