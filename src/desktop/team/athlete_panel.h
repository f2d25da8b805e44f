#pragma once

#include "desktop/shell/tables/column_model.h"

#include <QStringList>
#include <QWidget>

#include <optional>
#include <string>

class QComboBox;
class QLineEdit;

namespace kavela::desktop {

class ColumnTable;
class TeamDocument;

/// One athlete of a team, as the list shows it.
struct AthleteRow {
    QString name;
    std::int64_t birthYear = 0;
    QStringList categories;
    bool isRetired = false;
};

/// The athletes of a team: searched by name, filtered by category, sorted by any column. Names and
/// birth years are edited in place, retirement is a tick.
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

    [[nodiscard]] ColumnTable& table() const { return *m_table; }
    [[nodiscard]] QLineEdit& search() const { return *m_search; }

signals:
    void athleteChosen();
    void categoryChosen();

private:
    [[nodiscard]] std::vector<Column<AthleteRow>> columns();
    void makeTable();
    void showTeam();
    void filter();

    TeamDocument& m_document;
    ColumnModel<AthleteRow> m_model;
    QLineEdit* m_search;
    QComboBox* m_category;
    ColumnTable* m_table;
};

/// The name as the team writes it. Throws RefusedEntry for an empty one and for one that another
/// athlete has; `athlete` is whose name it shall be, none for a new one.
[[nodiscard]] std::string checkedName(const TeamDocument& document, const QString& typed,
                                      std::optional<std::size_t> athlete);

} // namespace kavela::desktop
