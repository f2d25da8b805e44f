#pragma once

#include <QAbstractTableModel>
#include <QColor>
#include <QIcon>

#include <functional>
#include <optional>
#include <vector>

namespace kavela::desktop {

/// What stands in one cell of a table.
struct Cell {
    enum class Look { Plain, Quiet, Bold, Italic, Warning };

    QString text = {};                    ///< as it is read
    std::optional<double> number = {};    ///< what is sorted by and copied, where it is one
    std::optional<double> sortValue = {}; ///< what is sorted by, where that is another
    std::optional<QString> typed = {};    ///< as it is typed, where that differs from the text
    QString tip = {};                     ///< why it looks as it does; else that of the column
    std::optional<bool> isTicked = {};    ///< has a box to tick
    Look look = Look::Plain;
    bool isStruck = false; ///< does not count
    bool isLocked = false; ///< cannot be typed in or ticked, though its column can
    QIcon badge = {};      ///< in front of the text
    QColor colour = {};    ///< of the text, where it has one of its own
    QColor ground = {};    ///< behind the text, where it has one of its own
};

/// Numbers stand at the right.
enum class ColumnKind { Text, Number };

/// What is told of a column whatever its rows are.
struct ColumnHead {
    QString title;
    QString unit = {}; ///< stands in brackets behind the title
    QString tip = {};
    QColor colour = {}; ///< of the title, where it has one
    ColumnKind kind = ColumnKind::Text;
    bool isTyped = false;
    bool isTicked = false;

    friend bool operator==(const ColumnHead&, const ColumnHead&) = default;
};

/// A table as views see it. Rows are shown anew without a reset: the selection, the cell of the
/// keyboard and an editor that is open stay with their rows. ColumnModel tells what the rows are.
class RowModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Role {
        SortRole = Qt::UserRole + 1000, ///< a number or a text; nothing in a cell that is empty
        CopyRole,                       ///< a number or a text
        ProposalsRole,                  ///< texts that are offered while the cell is typed
    };

    /// The place of a row in what was shown last; -1 for one that is just leaving.
    [[nodiscard]] int placeOf(int row) const;
    /// The row of a place; -1 for none.
    [[nodiscard]] int rowAt(int place) const;
    /// Whether rows are just coming, going or moving.
    [[nodiscard]] bool isFollowing() const { return m_isFollowing; }

    [[nodiscard]] const std::vector<ColumnHead>& heads() const { return m_heads; }
    /// Titles in front of the rows; none by default.
    void setRowTitles(std::function<QString(int place)> titles) { m_rowTitles = std::move(titles); }
    [[nodiscard]] bool hasRowTitles() const { return m_rowTitles != nullptr; }
    /// The cells look another way though the rows are the same.
    void refresh();

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
    /// What is typed, or with the role of check boxes a tick. Nothing where nothing changed.
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;

signals:
    /// What was typed cannot be taken.
    void refused(const QString& reason);
    /// All rows are where they belong.
    void followed();
    /// There are other columns.
    void columnsChanged();

protected:
    explicit RowModel(std::vector<ColumnHead> heads, QObject* parent);

    [[nodiscard]] virtual Cell cell(int place, int column) const = 0;
    /// Throws RefusedEntry.
    virtual void take(int place, int column, const QString& typed) = 0;
    virtual void tick(int place, int column, bool isTicked) = 0;
    [[nodiscard]] virtual QStringList proposals(int place, int column) const = 0;

    /// The rows are others now: for each row from before its place, or -1 for one that is gone.
    void follow(std::vector<int> movedTo, int count);
    /// The rows have nothing to do with those from before; between the calls of a reset.
    void startWith(int count);
    /// The columns are others now, which `take` keeps; a cell that is chosen stays where it is as
    /// long as there are as many.
    void changeHeads(std::vector<ColumnHead> heads, const std::function<void()>& take);

private:
    void takeOut();
    void arrange();
    void bringIn(int count);
    [[nodiscard]] Cell cellAt(const QModelIndex& index) const;
    [[nodiscard]] QVariant look(const Cell& cell, int role) const;
    [[nodiscard]] QString columnName(int section) const;
    void noteChanges();

    std::vector<ColumnHead> m_heads;
    std::vector<int> m_places; ///< by row
    std::function<QString(int place)> m_rowTitles;
    bool m_isFollowing = false;
};

/// Where each of the rows from before stands among those of now, -1 for one that is gone, of rows
/// that are known by what they hold alone. A row between two that stayed is the same, changed.
[[nodiscard]] std::vector<int> followedRows(int before, int now,
                                            const std::function<bool(int was, int is)>& isSame);

} // namespace kavela::desktop
