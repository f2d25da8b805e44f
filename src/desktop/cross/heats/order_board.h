#pragma once

#include "desktop/cross/heats/boat_looks.h"

#include <QWidget>

class QToolButton;

namespace kavela::desktop {

/// The order of the boats at the gate in front, the first one on top and those that were not seen
/// below. It is dragged into place, or moved with the buttons of each boat.
class OrderBoard : public QWidget {
    Q_OBJECT

public:
    struct Row {
        BoatLook look;
        int change = 0; ///< places won since the gate before; below 0 places lost
    };
    struct Order {
        std::vector<Row> seen;
        std::vector<Row> unseen;
        bool isOffered = false; ///< neither taken nor touched by the coach
        bool isFixed = false;   ///< only to be read
    };

    explicit OrderBoard(QWidget* parent = nullptr);
    ~OrderBoard() override;

    void show(Order order);
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

signals:
    /// The coach wants this order, the boats not seen left out.
    void edited(const std::vector<std::string>& order);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    struct Buttons {
        QToolButton* up;
        QToolButton* down;
        QToolButton* seen;
    };

    [[nodiscard]] int rowHeight() const;
    [[nodiscard]] std::size_t rows() const { return m_order.seen.size() + m_order.unseen.size(); }
    [[nodiscard]] std::optional<std::size_t> rowAt(double y) const;
    [[nodiscard]] Buttons makeButtons(std::size_t row);
    void placeButtons();
    void move(std::size_t from, std::size_t to);
    void toggle(std::size_t row);
    void paintRow(QPainter& painter, std::size_t row) const;
    void paintKey(QPainter& painter, const QRectF& place, int number) const;
    void paintWords(QPainter& painter, const QRectF& place, const Row& boat, bool isSeen) const;
    void tell();

    Order m_order;
    std::vector<Buttons> m_buttons;
    std::optional<std::size_t> m_dragged;
};

} // namespace kavela::desktop
