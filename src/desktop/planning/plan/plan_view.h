#pragma once

#include "desktop/planning/plan/totals_columns.h"
#include "desktop/planning/plan/week_block.h"
#include "desktop/planning/plan/week_grid.h"
#include "desktop/planning/season_panel.h"

class QComboBox;
class QLabel;
class QStackedLayout;

namespace kavela::desktop {

class WeekForm;
class YearStrip;

/// A season to plan: the year on top, the chosen week with its sessions below, the totals, and what
/// the week is for beside them.
class PlanView : public SeasonPanel {
    Q_OBJECT

public:
    explicit PlanView(PlanningDocument& document, QWidget* parent = nullptr);

    /// Of the calendar; the first season shown opens at its week.
    void setToday(std::chrono::sys_days today);

    [[nodiscard]] YearStrip& strip() const { return *m_strip; }
    [[nodiscard]] WeekGrid& grid() const { return *m_grid; }
    [[nodiscard]] WeekForm& form() const { return *m_form; }
    [[nodiscard]] ColumnModel<CategoryTotal>& totals() { return m_totals; }
    [[nodiscard]] const WeekBlock& block() const { return m_block; }
    /// The week in front; null when there is none.
    [[nodiscard]] const microsplanning_v5* week() const;

    void chooseBlock(const WeekBlock& block);
    void stepWeek(int weeks);
    void goToToday();

    void addSession();
    void editSession();
    void removeSession();
    void copySession();
    void pasteSession();
    void moveSession(std::size_t session, const DayCell& to);
    /// Moves the chosen session by whole weeks.
    void moveSessionBy(int weeks);

    void copyWeek();
    /// Content of the copied week over the one in front, after asking where it has sessions.
    void pasteWeek();
    /// Copies the chosen block over the weeks behind it, so many times.
    void repeatChosen(std::size_t times);
    void askToRepeat();
    void clearWeek();
    void planAsInSessions();
    /// Adds a week behind the last one.
    void addWeek();
    void removeLastWeek();

    void commit();

signals:
    /// "3 weeks were written": what was done that may be out of sight.
    void told(const QString& text);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void refresh() override;

private:
    void makeParts();
    void connectParts();
    [[nodiscard]] TypedTotals typedTotals();
    [[nodiscard]] QWidget* makeTotals();
    void showWeek();
    void showTotals();
    [[nodiscard]] std::vector<microsplanning_v5> scopeOfTotals() const;
    void editWeek(const QString& what, const std::function<void(microsplanning_v5&)>& change);
    void editWeeks(const QString& what,
                   const std::function<void(std::vector<microsplanning_v5>&)>& change);
    [[nodiscard]] QStringList used(std::string sessioninmicro_v5::*field) const;
    [[nodiscard]] QStringList usedTitles() const;
    [[nodiscard]] sessioninmicro_v5 newSession() const;
    [[nodiscard]] std::optional<sessioninmicro_v5> asked(const sessioninmicro_v5& session);

    YearStrip* m_strip;
    QWidget* m_stripArea = nullptr; ///< in which it scrolls
    WeekGrid* m_grid;
    WeekForm* m_form;
    ColumnModel<CategoryTotal> m_totals;
    QComboBox* m_scope;
    QLabel* m_empty;
    QStackedLayout* m_stack = nullptr;
    WeekBlock m_block;
    std::optional<std::chrono::sys_days> m_today;
    std::optional<PlannedSeason> m_shown;
    std::optional<sessioninmicro_v5> m_copiedSession;
    std::optional<microsplanning_v5> m_copiedWeek;
};

} // namespace kavela::desktop
