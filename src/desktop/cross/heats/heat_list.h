#pragma once

#include "desktop/shell/tables/column_model.h"
#include "splitdata/cross_records.h"

#include <QWidget>

class QPushButton;

namespace kavela::desktop {

class ColumnTable;
class TakingDocument;

/// What the list tells of a heat.
struct HeatRow {
    std::size_t place = 0; ///< in the file
    QString boats;
    QString film;
    QString taken;
};

/// The heats of a cross race in the order of the file, with what adds, names and removes them.
/// Changes nothing itself.
class HeatList : public QWidget {
    Q_OBJECT

public:
    explicit HeatList(QWidget* parent = nullptr);

    /// What is done with the heats, to stand below the list; the layout that takes it owns it.
    [[nodiscard]] QWidget* buttons() const { return m_buttons; }
    /// Films that the document does not find are shown as missing.
    void setHeats(const TakingDocument& document, std::optional<std::size_t> front);

signals:
    void chosen(std::size_t heat);
    void additionWanted();
    void namesWanted();
    void filmWanted();
    void removalWanted();

private:
    void makeButtons();

    ColumnModel<HeatRow> m_rows;
    ColumnTable* m_table;
    QWidget* m_buttons;
    std::vector<QPushButton*> m_ofHeat; ///< that need a heat
};

} // namespace kavela::desktop
