#pragma once

#include "desktop/cross/cross_page.h"
#include "desktop/cross/results/result_table.h"
#include "splittaking/annotations/cross_results.h"

class QLabel;
class QTableWidget;
class QVBoxLayout;

namespace kavela::desktop {

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
    /// Copies from the tables with the platform's key.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void makeLayout();
    void makeAttacks(QVBoxLayout& column);
    void showRounds();
    /// `isDecided` tells that the next round is known.
    void addRound(const RoundResult& round, const QString& title, bool isDecided);
    [[nodiscard]] QWidget* heatBlock(const HeatResult& heat, const RoundResult& round,
                                     bool isDecided);
    [[nodiscard]] std::vector<ResultRow> rowsOf(const HeatResult& heat, const RoundResult& round,
                                                bool isDecided) const;
    void showAttacks();

    QLabel* m_empty;
    QVBoxLayout* m_rounds; ///< a widget per round, made anew with each content
    QWidget* m_attacks;
    QTableWidget* m_attackers;
    QTableWidget* m_places;
    std::vector<QTableWidget*> m_tables; ///< in the order in which they are copied
};

} // namespace kavela::desktop
