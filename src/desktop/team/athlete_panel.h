#pragma once

#include "desktop/team/athlete_model.h"

#include <QWidget>

class QComboBox;
class QLineEdit;
class QTableView;

namespace kavela::desktop {

class AthleteFilter;

/// The athletes of a team: searched by name, filtered by category, sorted by any column.
class AthletePanel : public QWidget {
    Q_OBJECT

public:
    explicit AthletePanel(TeamDocument& document, QWidget* parent = nullptr);

    /// The athlete chosen, by the place in the team; none where none is shown.
    [[nodiscard]] std::optional<std::size_t> athlete() const;
    /// Chooses an athlete; a filter that hides it is cleared.
    void choose(std::size_t athlete);
    /// The category that is filtered by; empty for all.
    [[nodiscard]] std::string category() const;
    void setCategory(const QString& category);

    [[nodiscard]] QTableView& table() const { return *m_table; }
    [[nodiscard]] QLineEdit& search() const { return *m_search; }
    [[nodiscard]] AthleteModel& model() { return m_model; }

signals:
    void athleteChosen();
    void categoryChosen();

private:
    void makeTable();
    void filter();
    void keepOneChosen();

    TeamDocument& m_document;
    AthleteModel m_model;
    AthleteFilter* m_shown;
    QLineEdit* m_search;
    QComboBox* m_category;
    QTableView* m_table;
};

} // namespace kavela::desktop
