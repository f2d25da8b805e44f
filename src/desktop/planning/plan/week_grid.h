#pragma once

#include "planning/day_parts.h"

#include <QWidget>

#include <optional>

namespace kavela::desktop {

/// A place in a week: a day from its first one, and a part of it.
struct DayCell {
    std::size_t day = 0;
    DayPart part = DayPart::Morning;

    friend bool operator==(const DayCell&, const DayCell&) = default;
};

/// A week as a wall plan: days across, parts of the day down, a card for each session. Cards are
/// dragged to another cell; arrow keys move the choice, with Alt the chosen session.
class WeekGrid : public QWidget {
    Q_OBJECT

public:
    explicit WeekGrid(QWidget* parent = nullptr);

    /// Shows a week, or nothing. The choice stays where it was as far as it is still there.
    void setWeek(const microsplanning_v5* week);
    void setToday(std::optional<std::chrono::sys_days> today);

    /// The chosen session by its number in the week's list; none where an empty cell is chosen.
    [[nodiscard]] std::optional<std::size_t> session() const { return m_session; }
    [[nodiscard]] DayCell cell() const { return m_cell; }
    void chooseSession(std::size_t session);
    void chooseCell(const DayCell& cell);

    /// Where a card stands; nothing for a session that has none.
    [[nodiscard]] std::optional<QRect> cardOf(std::size_t session) const;
    [[nodiscard]] QRect placeOf(const DayCell& cell) const;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

signals:
    void chosen();
    /// A double click or Return: the chosen session is to be edited, or one added to the cell.
    void activated();
    void moved(std::size_t session, const kavela::desktop::DayCell& to);

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    /// What the grid shows of a session.
    struct Card {
        std::size_t session = 0;
        std::optional<DayCell> cell; ///< nothing for one on no day of the week
        QString title;
        QString when;
        QString values;
        QString tip;
        bool isOdd = false;
        QRect place;
    };

    void layOut();
    [[nodiscard]] int countAt(DayPart part) const; ///< of the fullest day, at least one
    [[nodiscard]] int cardHeight() const;
    [[nodiscard]] int titleWidth() const;
    [[nodiscard]] int columnLeft(std::size_t day) const;
    [[nodiscard]] std::vector<DayPart> shownParts() const;
    [[nodiscard]] const Card* cardAt(const QPoint& position) const;
    [[nodiscard]] std::optional<DayCell> cellAt(const QPoint& position) const;
    [[nodiscard]] DayCell neighbour(const DayCell& cell, int days, int parts) const;
    [[nodiscard]] std::vector<std::size_t> sessionsAt(const DayCell& cell) const;
    void choose(const DayCell& cell, std::optional<std::size_t> session);
    void step(int days, int parts);
    void moveBy(int days, int parts);

    void paintFrame(QPainter& painter) const;
    void paintCard(QPainter& painter, const Card& card, const QRect& place) const;

    std::optional<std::chrono::sys_days> m_firstDay;
    std::optional<std::chrono::sys_days> m_today;
    bool m_hasWeek = false;
    bool m_hasAnyTime = false;
    std::vector<Card> m_cards;
    std::vector<std::size_t> m_elsewhere; ///< cards
    std::array<int, DayParts + 1> m_rowTops{};
    int m_natural = 0; ///< height that the sessions ask for
    DayCell m_cell;
    std::optional<std::size_t> m_session;
    std::optional<QPoint> m_press;
    std::optional<QPoint> m_drag;
};

} // namespace kavela::desktop
