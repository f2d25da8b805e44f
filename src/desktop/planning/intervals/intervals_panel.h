#pragma once

#include "desktop/planning/planning_document.h"

#include <QWidget>

class QLabel;
class QPushButton;
class QTableWidget;

namespace kavela::desktop {

class IntervalForm;

/// The coach's favourite interval sessions: a list, a form for the one that is chosen, and a timer.
class IntervalsPanel : public QWidget {
    Q_OBJECT

public:
    explicit IntervalsPanel(PlanningDocument& document, QWidget* parent = nullptr);

    [[nodiscard]] QTableWidget& table() const { return *m_table; }
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
    void makeKeys();
    [[nodiscard]] const std::vector<favInvervalSessions_v2>& sessions() const;
    void insert(std::size_t at, const QString& what, favInvervalSessions_v2 session);
    void invalidate();
    void refresh();
    void followTable();
    void showCurrent();

    PlanningDocument& m_document;
    QTableWidget* m_table;
    QLabel* m_empty;
    IntervalForm* m_form;
    QPushButton* m_timer = nullptr;
    std::vector<QPushButton*> m_forOne; ///< buttons that need a chosen session
    std::optional<std::size_t> m_shown; ///< the session in the form
    bool m_isStale = true;
    bool m_isFilling = false;
};

} // namespace kavela::desktop
