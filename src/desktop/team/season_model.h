#pragma once

#include "results/team_records.h"

#include <QAbstractItemModel>

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace kavela::desktop {

class TeamDocument;

/// A season of an athlete in a category, or one of its races.
struct SeasonPlace {
    std::size_t season = 0;
    std::optional<std::size_t> race;

    friend bool operator==(const SeasonPlace&, const SeasonPlace&) = default;
};

/// The seasons of an athlete in a category, as stored, and below each its races. Seasons are moved
/// by dragging; their order decides which two the categorization counts.
class SeasonModel : public QAbstractItemModel {
    Q_OBJECT

public:
    enum Column {
        TitleColumn, ///< year of a season, event of a race
        LocationColumn,
        FinalColumn,
        RankingColumn,
        PointsColumn,
        FirstPhaseColumn, ///< and the other three phases
        Columns = FirstPhaseColumn + 4
    };

    explicit SeasonModel(TeamDocument& document, QObject* parent = nullptr);

    /// Shows an athlete's results in a category; nothing without an athlete.
    void show(std::optional<std::size_t> athlete, const std::string& category);
    [[nodiscard]] std::optional<std::size_t> athlete() const { return m_athlete; }
    [[nodiscard]] const std::string& category() const { return m_category; }
    /// What is shown; null where there is nothing.
    [[nodiscard]] const mtCatsStruct* results() const;

    [[nodiscard]] SeasonPlace placeOf(const QModelIndex& index) const;
    [[nodiscard]] QModelIndex indexOf(const SeasonPlace& place, int column = TitleColumn) const;
    /// Whether a place is there.
    [[nodiscard]] bool has(const SeasonPlace& place) const;

    [[nodiscard]] QModelIndex index(int row, int column,
                                    const QModelIndex& parent = {}) const override;
    [[nodiscard]] QModelIndex parent(const QModelIndex& index) const override;
    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;

    [[nodiscard]] Qt::DropActions supportedDropActions() const override { return Qt::MoveAction; }
    [[nodiscard]] QStringList mimeTypes() const override;
    [[nodiscard]] QMimeData* mimeData(const QModelIndexList& indexes) const override;
    bool dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                      const QModelIndex& parent) override;

signals:
    /// What was typed cannot be taken.
    void refused(const QString& reason);
    /// A season was dropped in front of another, or behind the last.
    void seasonDropped(std::size_t from, std::size_t before);

private:
    void reload();
    [[nodiscard]] std::vector<std::size_t> shape() const;
    [[nodiscard]] QVariant seasonText(const mtSeasonStruct& season, std::size_t place,
                                      int column) const;
    [[nodiscard]] QVariant raceText(const mtRaceStruct& race, int column) const;
    void setSeason(std::size_t season, int column, const QString& typed);
    void setRace(const SeasonPlace& place, int column, const QString& typed);
    void edit(const QString& what, const std::function<void(mtCatsStruct&)>& change);

    TeamDocument& m_document;
    std::optional<std::size_t> m_athlete;
    std::string m_category;
    std::vector<std::size_t> m_shape; ///< number of races by season, as the views know it
};

} // namespace kavela::desktop
