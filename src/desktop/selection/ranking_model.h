#pragma once

#include "results/selection_edit.h"
#include "results/selection_ranking.h"

#include <QAbstractTableModel>

#include <vector>

namespace kavela::desktop {

class SelectionDocument;

/// The ranking of one category: place, who, score and bonus, the results of every race. Results,
/// names, clubs and birth years are edited in place.
class RankingModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum LeadingColumn {
        RankColumn,
        NameColumn,
        ScoreColumn,
        BonusColumn,
        YearColumn,
        ClubColumn,
        PreselectedColumn,
        LeadingColumns
    };
    enum RaceColumn { TimeColumn, PenaltyColumn, PercentColumn, RaceColumns };

    explicit RankingModel(SelectionDocument& document, QObject* parent = nullptr);

    void setCategory(std::size_t category);
    [[nodiscard]] std::size_t category() const { return m_category; }
    /// The athlete of a row, by the index in the category; and the row of an athlete.
    [[nodiscard]] std::size_t athleteOfRow(int row) const;
    [[nodiscard]] int rowOfAthlete(std::size_t athlete) const;
    [[nodiscard]] const Standing& standingOfRow(int row) const;
    /// The race that a column belongs to; none for other columns.
    [[nodiscard]] std::optional<std::size_t> raceOfColumn(int column) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;

signals:
    /// What was typed cannot be taken.
    void refused(const QString& reason);

private:
    void reload();
    [[nodiscard]] const srCategoryStruct_v3* categoryShown() const;
    [[nodiscard]] const srAthleteStruct_v3& athleteAt(int row) const;
    [[nodiscard]] std::size_t races() const;
    [[nodiscard]] QString leadingText(int row, int column) const;
    [[nodiscard]] QString raceText(int row, std::size_t race, int part, int role) const;
    [[nodiscard]] QVariant raceToolTip(int row, std::size_t race) const;
    [[nodiscard]] bool setLeading(int row, int column, const QString& text);
    [[nodiscard]] bool setResultPart(int row, std::size_t race, int part, const QString& text);

    SelectionDocument& m_document;
    std::size_t m_category = 0;
    std::vector<Standing> m_standings;
};

} // namespace kavela::desktop
