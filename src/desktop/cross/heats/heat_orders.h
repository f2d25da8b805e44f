#pragma once

#include "desktop/cross/heats/heat_desk.h"
#include "desktop/cross/heats/shown_orders.h"

#include <QWidget>

class QLabel;
class QLineEdit;
class QPushButton;
class QScrollArea;
class QVBoxLayout;

namespace kavela::desktop {

class OrderBoard;
class PlaceGrid;

/// The order of the boats at the gate in front and, beside it, those at all gates; and what names
/// the boats and takes their order.
class HeatOrders : public QWidget {
    Q_OBJECT

public:
    explicit HeatOrders(HeatDesk& desk, QWidget* parent = nullptr);

    void refresh();
    /// Another frame on the screen.
    void showFrame();
    /// Takes the comment that is being typed.
    void commit();

    /// Names a boat as the next one at the gate; a second time takes it back. The first one starts
    /// an order of its own: what was offered or taken makes way.
    void name(const std::string& boat);
    /// Takes the order shown. A gate that had none gives way to the next one.
    void take(const CMTime& moment);

signals:
    void takingWanted(); ///< at the frame shown
    void columnChosen(const ShownOrder& order);

private:
    void makeOrders(QVBoxLayout& column);
    void makeButtons(QVBoxLayout& column);
    [[nodiscard]] rounddata030 preview() const;
    [[nodiscard]] QString fault() const;
    void draft(std::optional<HeatDesk::Names> order, HeatFront::Naming naming);
    void takeComment();
    void showBoard(const rounddata030& preview);
    void fitGrid();

    HeatDesk& m_desk;
    QLabel* m_title;
    OrderBoard* m_board;
    PlaceGrid* m_grid;
    QScrollArea* m_gridArea;
    QPushButton* m_take;
    QPushButton* m_keep;
    QPushButton* m_reset;
    QLineEdit* m_comment;
};

} // namespace kavela::desktop
