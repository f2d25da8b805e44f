#pragma once

#include "desktop/planning/planning_document.h"

#include <QWidget>

namespace kavela::desktop {

/// A part of the planning window that shows one season of one athlete, and edits it through the
/// document. It is brought up to date after every change of the document, once it is seen.
class SeasonPanel : public QWidget {
    Q_OBJECT

public:
    explicit SeasonPanel(PlanningDocument& document, QWidget* parent = nullptr);

    /// Shows another season; nothing for none.
    void showSeason(std::optional<PlannedSeason> place);
    [[nodiscard]] std::optional<PlannedSeason> place() const { return m_place; }

signals:
    /// What was typed or asked for cannot be done, and why.
    void refused(const QString& reason);

protected:
    /// Shows the season afresh; it may be another one, the same one changed, or none.
    virtual void refresh() = 0;

    [[nodiscard]] PlanningDocument& document() const { return m_document; }
    /// Null when there is none.
    [[nodiscard]] const athletesplanning_v6* athlete() const;
    [[nodiscard]] const yearsplannings_v6* season() const;
    /// Whether refresh() shows another season than before.
    [[nodiscard]] bool isOtherSeason() const { return m_isOther; }
    /// One step of the undo stack; nothing where there is no season.
    void edit(const QString& what, const std::function<void(yearsplannings_v6&)>& change);

    void showEvent(QShowEvent* event) override;

private:
    void invalidate();

    PlanningDocument& m_document;
    std::optional<PlannedSeason> m_place;
    bool m_isStale = true;
    bool m_isOther = true;
};

} // namespace kavela::desktop
