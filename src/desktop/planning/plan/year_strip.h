#pragma once

#include "desktop/planning/plan/week_block.h"
#include "planning/planning_records.h"

#include <QWidget>

#include <chrono>
#include <functional>
#include <optional>

namespace kavela::desktop {

/// A season on one strip: months, macrocycles, mesocycles, the load of each week, events and tests.
/// A click, the arrow keys or a drag choose weeks.
class YearStrip : public QWidget {
    Q_OBJECT

public:
    explicit YearStrip(QWidget* parent = nullptr);

    /// The weeks are copied as far as they are painted.
    void setWeeks(const std::vector<microsplanning_v5>& weeks);
    void setToday(std::optional<std::chrono::sys_days> today);
    void setBlock(const WeekBlock& block);

    [[nodiscard]] const WeekBlock& block() const { return m_block; }
    [[nodiscard]] std::size_t weekCount() const { return m_weeks.size(); }
    /// Where a week stands, over the whole height.
    [[nodiscard]] QRectF columnOf(std::size_t week) const;
    /// The week under a place; nothing beside the weeks.
    [[nodiscard]] std::optional<std::size_t> weekAt(double x) const;

    /// Takes less height, as in a low window.
    void setLow(bool isLow);
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

signals:
    void chosen(const kavela::desktop::WeekBlock& block);
    void activated(std::size_t week);

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    /// What the strip shows of a week.
    struct Week {
        std::int64_t number = 0;
        std::optional<std::chrono::sys_days> day; ///< its first one
        bool isOnMonday = false;
        double load = 0;
        QString macrocycle;
        QString mesocycle;
        QString event;
        QString tests; ///< a letter for each kind
        QString tip;
        bool isUnwell = false;
    };

    /// One of the lines of the strip, from its top.
    struct Row {
        double top = 0;
        double height = 0;
    };
    using Text = std::function<QString(const Week&)>;

    [[nodiscard]] static Week shownOf(const microsplanning_v5& week);
    [[nodiscard]] double titleWidth() const;
    [[nodiscard]] Row row(int index) const;
    [[nodiscard]] QRectF cell(std::size_t first, std::size_t last, const Row& row) const;
    void choose(std::size_t week, bool extend);

    void paintMonths(QPainter& painter) const;
    void paintBand(QPainter& painter, const Row& row, const Text& text, bool isStrong) const;
    void paintLoads(QPainter& painter) const;
    void paintNumbers(QPainter& painter) const;
    void paintEvents(QPainter& painter) const;
    void paintTests(QPainter& painter) const;
    void paintTitles(QPainter& painter) const;
    void paintChosen(QPainter& painter) const;

    std::vector<Week> m_weeks;
    std::optional<std::chrono::sys_days> m_today;
    WeekBlock m_block;
    bool m_isLow = false;
};

} // namespace kavela::desktop
