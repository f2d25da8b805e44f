#include "desktop/planning/season_panel.h"

namespace kavela::desktop {

SeasonPanel::SeasonPanel(PlanningDocument& document, QWidget* parent)
    : QWidget(parent), m_document(document) {
    connect(&document, &PlanningDocument::changed, this, &SeasonPanel::invalidate);
}

void SeasonPanel::showSeason(std::optional<PlannedSeason> place) {
    if (place == m_place)
        return;
    m_place = place;
    m_isOther = true;
    invalidate();
}

const athletesplanning_v6* SeasonPanel::athlete() const {
    return m_place ? m_document.athleteAt(m_place->athlete) : nullptr;
}

const yearsplannings_v6* SeasonPanel::season() const {
    return m_place ? m_document.seasonAt(*m_place) : nullptr;
}

void SeasonPanel::edit(const QString& what, const std::function<void(yearsplannings_v6&)>& change) {
    if (m_place)
        m_document.editSeason(*m_place, what, change);
}

void SeasonPanel::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (m_isStale)
        invalidate();
}

void SeasonPanel::invalidate() {
    m_isStale = !isVisible();
    if (m_isStale)
        return;
    refresh();
    m_isOther = false;
}

} // namespace kavela::desktop
