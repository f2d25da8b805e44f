#pragma once

#include <QAbstractTableModel>

#include <optional>
#include <string>

namespace kavela::desktop {

class TeamDocument;

/// The athletes of a team in the order of the file. Names and birth years are edited in place,
/// retirement is a tick.
class AthleteModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { NameColumn, BirthYearColumn, CategoriesColumn, RetiredColumn, Columns };
    /// The categories of a row as a list of texts.
    static constexpr int CategoriesRole = Qt::UserRole;

    explicit AthleteModel(TeamDocument& document, QObject* parent = nullptr);

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
    [[nodiscard]] QVariant text(int row, int column) const;
    void rename(std::size_t athlete, const QString& typed);
    void setBirthYear(std::size_t athlete, const QString& typed);

    TeamDocument& m_document;
    int m_rows = 0;
};

/// The name as the team writes it. Throws RefusedEntry for an empty one and for one that another
/// athlete has; `athlete` is whose name it shall be, none for a new one.
[[nodiscard]] std::string checkedName(const TeamDocument& document, const QString& typed,
                                      std::optional<std::size_t> athlete);

} // namespace kavela::desktop
