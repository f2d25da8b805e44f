#pragma once

#include "desktop/cross/cross_page.h"
#include "desktop/shell/tables/column_model.h"
#include "splittaking/annotations/cross_results.h"

class QLabel;
class QVBoxLayout;

namespace kavela::desktop {

class ColumnTable;

/// A boat of a heat, and what its place is worth.
struct PlaceRow {
    HeatPlace place;
    QIcon badge;
    QString outcome;
    bool isAhead = false; ///< it goes on or wins
};

/// What the heats of a cross race come to: the places of each round, who goes on, and what attacks
/// were worth.
class ResultsPage : public CrossPage {
    Q_OBJECT

public:
    explicit ResultsPage(const CrossDesk& desk);

    void refresh() override;

    /// The table with the focus, otherwise all of them, into the clipboard as tab-separated text.
    void copy() const;

signals:
    /// The coach wants to see a heat, by its place in the file.
    void heatWanted(std::size_t heat);

protected:
    void changeEvent(QEvent* event) override;

private:
    void makeLayout();
    void makeAttacks(QVBoxLayout& column);
    void showRounds();
    /// `isDecided` tells that the next round is known.
    void addRound(const RoundResult& round, const QString& title, bool isDecided);
    [[nodiscard]] QWidget* heatBlock(const HeatResult& heat, const RoundResult& round,
                                     bool isDecided);
    [[nodiscard]] std::vector<PlaceRow> rowsOf(const HeatResult& heat, const RoundResult& round,
                                               bool isDecided) const;
    void showAttacks();

    QLabel* m_empty;
    QVBoxLayout* m_rounds; ///< a widget per round, made anew with each content
    QWidget* m_attacks;
    ColumnModel<AttackRecord>* m_attackerRows;
    ColumnModel<AttackPlace>* m_placeRows;
    ColumnTable* m_attackers;
    ColumnTable* m_places;
    std::vector<ColumnTable*> m_tables; ///< in the order in which they are copied
};

} // namespace kavela::desktop
