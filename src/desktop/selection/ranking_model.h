#pragma once

#include "desktop/selection/real_ranking.h"
#include "results/selection_edit.h"
#include "results/selection_ranking.h"

#include <QAbstractTableModel>

#include <optional>
#include <string>
#include <vector>

namespace kavela::desktop {

class SelectionDocument;

/// The ranking of one category: place, who, score and bonus, the results of every race. Results,
/// names, clubs and birth years are edited in place. What is typed changes places and scores at
/// once, but the rows keep their order until the row is left: values that belong together are typed
/// one after the other. In what-if mode places say what they really are.
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
    /// In what-if mode, how the athlete of a row really stands; none for one who is not there.
    [[nodiscard]] std::optional<Standing> realStandingOfRow(int row) const;
    /// Puts the rows into the order of the ranking, after a row was left. Indexes that are kept
    /// follow their athletes.
    void orderAnew();
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
    /// As long as this stays the same, so do rows and columns.
    struct Shape {
        std::size_t category = 0;
        std::size_t athletes = 0;
        std::size_t races = 0;

        friend bool operator==(const Shape&, const Shape&) = default;
    };

    void reload();
    [[nodiscard]] Shape shape() const;
    void setOrder(std::vector<Standing> ranking);
    [[nodiscard]] bool isAssumed(int row, std::size_t race) const;
    [[nodiscard]] QString rankText(int row) const;
    [[nodiscard]] QVariant toolTip(const QModelIndex& index) const;
    [[nodiscard]] QVariant font(const QModelIndex& index) const;
    void setTime(const ResultPlace& place, saRaceStruct result, const QString& text);
    [[nodiscard]] const srCategoryStruct_v3* categoryShown() const;
    [[nodiscard]] const srAthleteStruct_v3& athleteAt(int row) const;
    [[nodiscard]] std::size_t races() const;
    [[nodiscard]] QString leadingText(int row, int column) const;
    [[nodiscard]] QString raceText(int row, std::size_t race, int part, int role) const;
    [[nodiscard]] QVariant raceToolTip(int row, std::size_t race) const;
    void setLeading(int row, int column, const QString& text);
    void setResultPart(int row, std::size_t race, int part, const QString& text);

    SelectionDocument& m_document;
    std::size_t m_category = 0;
    std::vector<Standing> m_standings;
    RealRanking m_real;
    Shape m_shape;
    bool m_isKeepingOrder = false;
};

} // namespace kavela::desktop
