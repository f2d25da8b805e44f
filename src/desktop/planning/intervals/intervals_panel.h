#pragma once

#include "desktop/planning/planning_document.h"
#include "desktop/shell/tables/column_model.h"

#include <QWidget>

class QAction;
class QPushButton;

namespace kavela::desktop {

class ColumnTable;
class IntervalForm;

/// The coach's favourite interval sessions: a list, a form for the one that is chosen, and a timer.
class IntervalsPanel : public QWidget {
    Q_OBJECT

public:
    explicit IntervalsPanel(PlanningDocument& document, QWidget* parent = nullptr);

    [[nodiscard]] ColumnTable& table() const { return *m_table; }
    [[nodiscard]] IntervalForm& form() const { return *m_form; }
    [[nodiscard]] std::optional<std::size_t> current() const;
    void choose(std::size_t session);

    void add();
    void duplicate();
    void move(bool isUp);
    void removeCurrent();
    /// Opens the timer of the chosen session; the reason is told where it cannot be timed.
    void startTimer();

signals:
    void refused(const QString& reason);

protected:
    void showEvent(QShowEvent* event) override;

private:
    void makeTable();
    [[nodiscard]] QWidget* makeList();
    [[nodiscard]] QWidget* makeDetails();
    [[nodiscard]] const std::vector<favInvervalSessions_v2>& sessions() const;
    void insert(std::size_t at, const QString& what, favInvervalSessions_v2 session);
    void invalidate();
    void refresh();
    void followTable();
    void showCurrent(bool isOther);

    PlanningDocument& m_document;
    ColumnModel<favInvervalSessions_v2> m_model;
    ColumnTable* m_table;
    IntervalForm* m_form;
    QPushButton* m_timer = nullptr;
    std::vector<QAction*> m_forOne;     ///< those that need a chosen session
    std::optional<std::size_t> m_shown; ///< the session in the form
    bool m_isStale = true;
};

} // namespace kavela::desktop
